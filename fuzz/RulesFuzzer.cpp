// Applies the rules of `vif check` to any fields.
//
// Each line is one of a text VIF, or a field in any place: @SLOTS|NAME|VALUE|DESCRIPTION. A name with a dollar sign is
// that of a text.
#include "Checks.h"
#include "Input.h"
#include "TextReader.h"
#include "files/FormRules.h"
#include "files/GroupTree.h"
#include "files/KnownNames.h"
#include "rules/Rule.h"

#include <analysis/Rules.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>

namespace {

using fuzz::Require;
using vifanalysis::Finding;
using vifanalysis::Findings;
using vifanalysis::FoundField;
using vifanalysis::FoundFields;
using vifanalysis::NameStyle;
using vifanalysis::UndefinedNames;

/// The lines of an input, which both kinds of fields come from.
class CInput {
 public:
  explicit CInput(std::string_view lines) {
    while (!lines.empty()) {
      const std::string_view line = fuzz::TakeUpTo('\n', lines);
      ++m_lines;
      const bool isField = line.starts_with('@');
      if (isField) AddField(line.substr(1));
      m_text.append(isField ? std::string_view() : line).push_back('\n');
    }
    std::istringstream stream(m_text);
    const VifFieldObserver add = [&](std::size_t line, const CVIFField& field) { Add(line, field); };
    vif::FollowTextVif(stream, "fuzzed", nullptr, {[](const VifLineReport&) {}, add});
  }

  const FoundFields& Fields() const { return m_fields; }
  std::size_t Lines() const { return m_lines; }

 private:
  void Add(std::size_t line, const CVIFField& field) { m_fields.push_back({field, line, 0, field.Name()}); }

  void AddField(std::string_view text) {
    const fuzz::Slots slots = fuzz::SlotsIn(fuzz::TakeUpTo('|', text));
    const std::string name(fuzz::TakeUpTo('|', text));
    const std::string value(fuzz::TakeUpTo('|', text));
    Add(m_lines, CVIFField(!name.starts_with('$'), name, value, std::string(text), slots));
  }

  std::string m_text;
  FoundFields m_fields;
  std::size_t m_lines = 0;
};

/// The names that neither form of a VIF defines.
UndefinedNames UndefinedNamesOf(const FoundFields& fields) {
  UndefinedNames names;
  for (const FoundField& found : fields) {
    const std::string name = found.field.Name();
    const bool isDefined = vifanalysis::FindDefinedAsWritten(name) != nullptr;
    if (!isDefined) names.push_back({name, found.line, found.column, found.element});
  }
  return names;
}

Findings Check(const FoundFields& fields) {
  Findings findings;
  const vifanalysis::Edition edition = vifanalysis::EditionNamedBy(fields).value_or(vifanalysis::Edition{});
  for (const NameStyle style : {NameStyle::Text, NameStyle::Xml}) {
    vifanalysis::FindUndefinedNames(UndefinedNamesOf(fields), style, edition, findings);
  }
  const vifanalysis::GroupTree tree = vifanalysis::MakeGroupTree(fields);
  vifanalysis::FindDuplicates(fields, tree, findings);
  vifanalysis::FindBadNumbering(fields, tree, findings);
  vifanalysis::FindWrongCounts(tree, findings);
  for (const auto find :
       {vifanalysis::FindBadNumbers, vifanalysis::FindNothing, vifanalysis::FindTextsForGroups,
        vifanalysis::FindMissingValues, vifanalysis::FindMisplaced, vifanalysis::FindContradictions}) {
    find(fields, findings);
  }
  return findings;
}

bool AreSame(const Finding& one, const Finding& other) {
  return std::tie(one.severity, one.code, one.line, one.column, one.element, one.message) ==
         std::tie(other.severity, other.code, other.line, other.column, other.element, other.message);
}

void CheckFinding(const Finding& finding, std::size_t lines) {
  const vifanalysis::RuleInfo* rule = vifanalysis::FindRule(finding.code);
  Require(rule != nullptr && rule->severity == finding.severity, "a finding has a rule's code and severity");
  Require(finding.line <= lines, "a finding is in the file");
  const std::string& message = finding.message;
  Require(!message.empty() && fuzz::IsUtf8(message), "a finding has a message");
  Require(std::string_view(" .,;:").find(message.back()) == std::string_view::npos, "the message is complete");
  Require(std::none_of(message.begin(), message.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }),
          "the message is one line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const CInput input(std::string_view(reinterpret_cast<const char*>(data), size));
  const Findings findings = Check(input.Fields());
  for (const Finding& finding : findings) CheckFinding(finding, input.Lines());
  // At other addresses, on which no finding depends.
  const FoundFields copy = input.Fields();  // NOLINT(performance-unnecessary-copy-initialization)
  const Findings again = Check(copy);
  Require(std::equal(findings.begin(), findings.end(), again.begin(), again.end(), AreSame),
          "the same fields have the same findings");
  return 0;
}
