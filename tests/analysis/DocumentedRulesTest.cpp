// The tables of codes in the documentation of the command against the rules.
#include <analysis/Edition.h>
#include <analysis/Rules.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {
namespace {

using Cells = std::vector<std::string>;

/// One row of a table, by the headings of its columns.
using DocumentedRow = std::map<std::string, std::string>;

/// The cells of a line "| a | b |"; none for any other line.
Cells CellsOf(std::string_view line) {
  Cells cells;
  if (!line.starts_with('|')) return cells;
  line.remove_prefix(1);
  for (std::size_t end = line.find('|'); end != std::string_view::npos; end = line.find('|')) {
    const std::string_view cell = line.substr(0, end);
    const std::size_t first = std::min(cell.find_first_not_of(' '), cell.size());
    cells.emplace_back(cell.substr(first, cell.find_last_not_of(' ') + 1 - first));
    line.remove_prefix(end + 1);
  }
  return cells;
}

bool IsRule(const Cells& cells) {
  return std::all_of(cells.begin(), cells.end(), [](const std::string& cell) { return cell.starts_with("---"); });
}

/// All rows of the tables with a column "code", in their order.
std::vector<DocumentedRow> DocumentedRules() {
  std::vector<DocumentedRow> rows;
  std::ifstream file(std::string(VIF_DOCS) + "/command.md");
  Cells headings;
  for (std::string line; std::getline(file, line);) {
    const Cells cells = CellsOf(line);
    if (cells.empty()) {
      headings.clear();
    } else if (headings.empty()) {
      headings = cells;
    } else if (!IsRule(cells) && std::find(headings.begin(), headings.end(), "code") != headings.end()) {
      DocumentedRow& row = rows.emplace_back();
      for (std::size_t i = 0; i < headings.size(); ++i) row[headings[i]] = i < cells.size() ? cells[i] : "";
    }
  }
  return rows;
}

std::string EditionsText(const RuleInfo& rule) {
  return rule.first == Edition{} ? "all" : EditionText(rule.first) + " and later";
}

std::string InCodeFont(const char* code) { return "`" + std::string(code) + "`"; }

TEST(DocumentedRules, AreAllRulesAndNoOthers) {
  std::vector<std::string> documented;
  for (const DocumentedRow& row : DocumentedRules()) documented.push_back(row.at("code"));
  std::vector<std::string> codes;
  for (const RuleInfo& rule : Rules()) codes.push_back(InCodeFont(rule.code));
  std::sort(documented.begin(), documented.end());
  std::sort(codes.begin(), codes.end());
  EXPECT_EQ(documented, codes);
}

TEST(DocumentedRules, HaveTheSeverityAndEditionsOfTheRule) {
  for (DocumentedRow& row : DocumentedRules()) {
    const std::string code = row["code"].substr(1, row["code"].size() - 2);
    const RuleInfo* rule = FindRule(code);
    ASSERT_NE(rule, nullptr) << code;
    EXPECT_EQ(row["severity"], SeverityName(rule->severity)) << code;
    // The rules about the form of a file are for all editions, so their table does not say so.
    EXPECT_EQ(row.contains("editions") ? row["editions"] : "all", EditionsText(*rule)) << code;
    EXPECT_EQ(row.contains("editions"), !std::string_view(rule->sources).empty()) << code;
  }
}

TEST(DocumentedRules, AreDescribedAsByExplain) {
  for (DocumentedRow& row : DocumentedRules()) {
    const RuleInfo* rule = FindRule(row["code"].substr(1, row["code"].size() - 2));
    if (rule != nullptr && row.contains("editions")) {
      std::string what = rule->what;
      std::replace(what.begin(), what.end(), '"', '`');  // Markdown takes what looks like a tag only as code
      EXPECT_EQ(row["found"], what);
    }
  }
}

}  // namespace
}  // namespace vifanalysis
