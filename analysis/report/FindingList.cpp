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
void WriteReasons(CMarkup& page, const std::vector<std::span<const Finding>>& lists) {
  std::set<std::string_view> codes;
  for (const auto& findings : lists) {
    for (const Finding& finding : findings) codes.insert(finding.code);
  }
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

}  // namespace

void WriteFindings(CMarkup& page, const CReportedVif& vif) {
  const std::span<const Finding> findings = vif.File().findings;
  page.Begin("section", {{"id", "findings"}});
  page.Element("h2", "Findings");
  if (findings.empty()) {
    page.Element("p", "None: what the file declares is consistent as far as can be checked.");
  } else {
    WriteList(page, findings, CFieldRows());
    WriteReasons(page, {findings});
  }
  page.End();
}

void WriteFindingChanges(CMarkup& page, const FindingChanges& changes, const CFieldRows& earlier) {
  page.Begin("section", {{"id", "findings"}});
  page.Element("h2", "Findings");
  if (changes.added.empty() && changes.fixed.empty()) {
    page.Element("p", "Both files have the same findings.");
  } else {
    page.Element("h3", "Only in the second file: " + Amount(changes.added.size(), "finding"));
    WriteList(page, changes.added, CFieldRows());
    page.Element("h3", "Only in the first file: " + Amount(changes.fixed.size(), "finding"));
    WriteList(page, changes.fixed, earlier);
    WriteReasons(page, {changes.added, changes.fixed});
  }
  page.End();
}

}  // namespace vifanalysis
