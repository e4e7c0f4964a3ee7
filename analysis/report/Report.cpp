#include "report/Page.h"
#include "report/Sections.h"

#include <analysis/Differences.h>
#include <analysis/Report.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>

namespace vifanalysis {

namespace {

std::vector<Finding> FindingsOf(const ReportedFile& file) { return {file.findings.begin(), file.findings.end()}; }

/// The numbers of the later file's components that were others in the earlier one, by their numbers there; nothing for
/// one that is gone.
std::map<std::uint64_t, std::optional<std::uint64_t>> NewNumbers(const Differences& differences) {
  std::map<std::uint64_t, std::optional<std::uint64_t>> numbers;
  for (const GroupChange& change : differences.groups) {
    if (change.kind == GroupChangeKind::Added || GroupKind(change.before) != eVifLocComponent) continue;
    const bool isRemoved = change.kind == GroupChangeKind::Removed;
    numbers.emplace(std::get<1>(change.before[0]),
                    isRemoved ? std::nullopt : std::optional(std::get<1>(change.after[0])));
  }
  return numbers;
}

PortSide MakeSide(const ShownFile& file, const CComponentView* component) { return {{file, component}, component}; }

ReportedPorts PortsOf(const ShownFile& file) {
  ReportedPorts ports;
  for (const CComponentView& component : file.vif->View().Components()) {
    ports.push_back({{}, {MakeSide(file, &component)}});
  }
  return ports;
}

/// The ports of both files, those that only the earlier has at the end.
ReportedPorts PortsOf(const ShownFile& before, const ShownFile& after, const Differences& differences) {
  const auto newNumbers = NewNumbers(differences);
  ReportedPorts ports;
  std::map<std::uint64_t, std::size_t> rows;
  for (const CComponentView& component : after.vif->View().Components()) {
    rows.emplace(component.Index(), ports.size());
    ports.push_back({{}, {MakeSide(before, nullptr), MakeSide(after, &component)}});
  }
  for (const CComponentView& component : before.vif->View().Components()) {
    const auto changed = newNumbers.find(component.Index());
    const std::optional<std::uint64_t> number =
        changed == newNumbers.end() ? std::optional(component.Index()) : changed->second;
    const auto row = number ? rows.find(*number) : rows.end();
    if (row == rows.end()) {
      ports.push_back({{}, {MakeSide(before, &component), MakeSide(after, nullptr)}});
    } else {
      ports[row->second].sides.front() = MakeSide(before, &component);
    }
  }
  return ports;
}

void NumberSections(ReportedPorts& ports) {
  for (std::size_t i = 0; i < ports.size(); ++i) ports[i].id = "component-" + std::to_string(i + 1);
}

std::string TitleOf(const CReportedVif& vif) {
  const std::string model = vif.HeaderSays("Model_Part_Number");
  return model.empty() ? vif.File().name : model + " (" + vif.File().name + ")";
}

void WritePorts(CMarkup& page, const ReportedPorts& ports) {
  for (std::size_t i = 0; i < std::min(ports.size(), kMostShown); ++i) WritePort(page, ports[i]);
}

/// The links at the top of the page.
void WriteContents(CMarkup& page, const ReportedPorts& ports, bool hasDifferences, bool hasRouters) {
  page.Begin("nav", {{"aria-label", "Contents"}});
  page.Begin("ul");
  const auto link = [&](const std::string& id, const std::string& text) {
    page.Begin("li");
    page.Element("a", {{"href", '#' + id}}, text);
    page.End();
  };
  if (hasDifferences) link("differences", "Differences");
  for (std::size_t i = 0; i < std::min(ports.size(), kMostShown); ++i) link(ports[i].id, TitleOf(ports[i]));
  if (hasRouters) link("routers", "USB4 routers");
  link("findings", "Findings");
  link("fields", "All fields");
  page.End();
  page.End();
}

bool HasRouters(const Sides& products) {
  return std::any_of(products.begin(), products.end(), [](const Side& side) {
    return side.group != nullptr && !side.group->Groups(eVifLocRouter).empty();
  });
}

}  // namespace

std::string MakeReport(const ReportedFile& file) {
  const CReportedVif vif(file);
  const CFieldRows rows;
  const ShownFile shown = {&vif, {}, &rows};
  ReportedPorts ports = PortsOf(shown);
  NumberSections(ports);
  const Sides products = {{shown, vif.View().Product()}};
  CMarkup page;
  BeginPage(page, TitleOf(vif) + " \u2013 VIF report");
  WriteSummary(page, {&vif}, ports);
  WriteContents(page, ports, false, HasRouters(products));
  WritePorts(page, ports);
  WriteRouters(page, products);
  WriteFindings(page, vif);
  WriteFields(page, vif);
  EndPage(page);
  return page.Take();
}

std::string MakeReport(const ReportedFile& before, const ReportedFile& after) {
  const CReportedVif first(before);
  const CReportedVif second(after);
  const Differences differences = Compare(before.fields, after.fields);
  const CFieldRows firstRows(first, second, differences);
  const CFieldRows secondRows;
  const ShownFile shownFirst = {&first, before.name, &firstRows};
  const ShownFile shownSecond = {&second, after.name, &secondRows};
  ReportedPorts ports = PortsOf(shownFirst, shownSecond, differences);
  NumberSections(ports);
  const Sides products = {{shownFirst, first.View().Product()}, {shownSecond, second.View().Product()}};
  CMarkup page;
  BeginPage(page, TitleOf(first) + " and " + TitleOf(second) + " \u2013 VIF report");
  WriteSummary(page, {&first, &second}, ports);
  WriteContents(page, ports, true, HasRouters(products));
  WriteDifferences(page, {&first, &second}, differences);
  WritePorts(page, ports);
  WriteRouters(page, products);
  WriteFindingChanges(page, CompareFindings(FindingsOf(before), FindingsOf(after), differences), firstRows);
  WriteFieldsSideBySide(page, {&first, &second}, differences);
  EndPage(page);
  return page.Take();
}

}  // namespace vifanalysis
