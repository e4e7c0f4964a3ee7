#include "report/Sections.h"

#include <analysis/Rules.h>
#include <analysis/Text.h>

#include <set>
#include <span>

namespace vifanalysis {

namespace {

/// Where the file has what was found.
std::string PlaceOf(const Finding& finding) {
  if (finding.line == 0) return {};
  std::string place = "line " + std::to_string(finding.line);
  if (finding.column != 0) place += ", column " + std::to_string(finding.column);
  return place;
}

void WriteFinding(CMarkup& page, const Finding& finding, const CFieldRows& rows) {
  const std::string severity = SeverityName(finding.severity);
  page.Begin("li", {{"class", "finding " + severity}});
  page.Element("span", {{"class", "count " + severity}}, severity);
  page.Text(" ");
  if (finding.position != Finding::kNoPosition) {
    rows.WriteLink(page, finding.position, finding.message);
  } else {
    page.Text(finding.message);
  }
  page.Begin("span", {{"class", "place"}});
  page.Text(std::string(" ").append(PlaceOf(finding)).append(" "));
  if (FindRule(finding.code) != nullptr) {
    page.Element("a", {{"href", "#rule-" + finding.code}}, finding.code);
  } else {
    page.Text(finding.code);
  }
  page.End();
  page.End();
}

void WriteList(CMarkup& page, std::span<const Finding> findings, const CFieldRows& rows) {
  if (findings.empty()) return;
  page.Begin("ol", {{"class", "findings"}});
  for (const Finding& finding : findings) WriteFinding(page, finding, rows);
  page.End();
}

/// Why what was found is wrong, each rule once.
void WriteReasons(CMarkup& page, const std::set<std::string_view>& codes) {
  if (codes.empty()) return;
  page.Begin("details", {{"class", "rules"}});
  page.Element("summary", "What these findings mean");
  page.Begin("dl");
  for (const std::string_view code : codes) {
    const RuleInfo* rule = FindRule(code);
    if (rule == nullptr) continue;
    page.Element("dt", {{"id", "rule-" + std::string(rule->code)}}, std::string(rule->code) + ": " + rule->what);
    page.Element("dd", rule->why);
  }
  page.End();
  page.End();
}

std::set<std::string_view> CodesOf(const ShownFiles& files) {
  std::set<std::string_view> codes;
  for (const ShownFile& file : files) {
    for (const Finding& finding : file.vif->File().findings) codes.insert(finding.code);
  }
  return codes;
}

std::vector<Finding> FindingsOf(const ShownFile& file) {
  return {file.vif->File().findings.begin(), file.vif->File().findings.end()};
}

/// The findings that are not among some of them, which are in the same order.
std::vector<Finding> Without(std::span<const Finding> findings, std::span<const Finding> some) {
  const auto isSame = [](const Finding& a, const Finding& b) {
    return a.position == b.position && a.line == b.line && a.column == b.column && a.code == b.code &&
           a.message == b.message;
  };
  std::vector<Finding> others;
  for (const Finding& finding : findings) {
    if (!some.empty() && isSame(finding, some.front())) {
      some = some.subspan(1);
    } else {
      others.push_back(finding);
    }
  }
  return others;
}

void WritePart(CMarkup& page, const std::string& title, std::span<const Finding> findings, const ShownFile& file) {
  if (findings.empty()) return;
  page.Element("h3", title + ": " + std::to_string(findings.size()));
  WriteList(page, findings, *file.rows);
}

}  // namespace

void WriteFindings(CMarkup& page, const ShownFile& file) {
  const std::span<const Finding> findings = file.vif->File().findings;
  page.Begin("section", {{"id", "findings"}});
  page.Element("h2", "Findings");
  if (findings.empty()) page.Element("p", "None. What the file declares is consistent as far as can be checked.");
  WriteList(page, findings, *file.rows);
  WriteReasons(page, CodesOf({file}));
  page.End();
}

void WriteFindings(CMarkup& page, const ShownFiles& files, const Differences& differences) {
  const ShownFile& before = files.front();
  const ShownFile& after = files.back();
  const FindingChanges changes = CompareFindings(FindingsOf(before), FindingsOf(after), differences);
  page.Begin("section", {{"id", "findings"}});
  page.Element("h2", "Findings");
  if (before.vif->File().findings.empty() && after.vif->File().findings.empty()) {
    page.Element("p", "None. What the files declare is consistent as far as can be checked.");
  }
  WritePart(page, "Only in " + std::string(after.label), changes.added, after);
  WritePart(page, "Only in " + std::string(before.label), changes.fixed, before);
  WritePart(page, "In both", Without(after.vif->File().findings, changes.added), after);
  WriteReasons(page, CodesOf(files));
  page.End();
}

}  // namespace vifanalysis
