#include "report/Page.h"
#include "report/Sections.h"

#include <analysis/Differences.h>
#include <analysis/Report.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <utility>

namespace vifanalysis {

namespace {

/// The numbers that groups of a kind have in the later file, by those that they had in the earlier one, where they are
/// others; nothing for a group that is gone. Of the kinds asked for, a file has its groups in one place.
using NewNumbers = std::map<std::uint64_t, std::optional<std::uint64_t>>;

NewNumbers NewNumbersOf(const Differences& differences, EVifLocation kind) {
  NewNumbers numbers;
  for (const GroupChange& change : differences.groups) {
    if (change.kind == GroupChangeKind::Added || GroupKind(change.before) != kind) continue;
    const std::size_t last = GroupDepth(change.before) - 1;
    const bool isRemoved = change.kind == GroupChangeKind::Removed;
    numbers.emplace(std::get<1>(change.before[last]),
                    isRemoved ? std::nullopt : std::optional(std::get<1>(change.after[last])));
  }
  return numbers;
}

/// A group in the earlier and in the later file; either may be null.
template <class Group>
using Pair = std::pair<const Group*, const Group*>;

/// The groups of both files in the order of the later, those that only the earlier has at the end.
template <class Group>
std::vector<Pair<Group>> PairGroups(std::span<const Group> before, std::span<const Group> after,
                                    const NewNumbers& newNumbers) {
  std::vector<Pair<Group>> pairs;
  std::map<std::uint64_t, std::size_t> rows;
  for (const Group& group : after) {
    rows.emplace(group.Index(), pairs.size());
    pairs.emplace_back(nullptr, &group);
  }
  for (const Group& group : before) {
    const auto changed = newNumbers.find(group.Index());
    const std::optional<std::uint64_t> number = changed == newNumbers.end() ? group.Index() : changed->second;
    const auto row = number ? rows.find(*number) : rows.end();
    if (row == rows.end()) {
      pairs.emplace_back(&group, nullptr);
    } else {
      pairs[row->second].first = &group;
    }
  }
  return pairs;
}

PortSide MakeSide(const ShownFile& file, const CComponentView* component) { return {{file, component}, component}; }

ReportedPorts PortsOf(const ShownFiles& files, const Differences& differences) {
  ReportedPorts ports;
  const std::vector<CComponentView>& later = files.back().vif->View().Components();
  if (files.size() == 1) {
    for (const CComponentView& component : later) ports.push_back({{}, {MakeSide(files.back(), &component)}});
  } else {
    const std::span<const CComponentView> earlier = files.front().vif->View().Components();
    const NewNumbers numbers = NewNumbersOf(differences, eVifLocComponent);
    for (const auto& [before, after] : PairGroups<CComponentView>(earlier, later, numbers)) {
      ports.push_back({{}, {MakeSide(files.front(), before), MakeSide(files.back(), after)}});
    }
  }
  return ports;
}

std::span<const CGroupView> RoutersIn(const ShownFile& file) {
  const CGroupView* product = file.vif->View().Product();
  return product == nullptr ? std::span<const CGroupView>() : product->Groups(eVifLocRouter);
}

ReportedRouters RoutersOf(const ShownFiles& files, const Differences& differences) {
  ReportedRouters routers;
  if (files.size() == 1) {
    for (const CGroupView& router : RoutersIn(files.back())) routers.push_back({{files.back(), &router}});
  } else {
    const NewNumbers numbers = NewNumbersOf(differences, eVifLocRouter);
    for (const auto& [before, after] :
         PairGroups<CGroupView>(RoutersIn(files.front()), RoutersIn(files.back()), numbers)) {
      routers.push_back({{files.front(), before}, {files.back(), after}});
    }
  }
  return routers;
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

std::string PageTitle(const ShownFiles& files) {
  std::string title;
  for (const ShownFile& file : files) title += (title.empty() ? "" : " and ") + TitleOf(*file.vif);
  return title + " \u2013 VIF report";
}

std::string MakePage(const ShownFiles& files, const Differences& differences) {
  const bool isComparison = files.size() == 2;
  ReportedPorts ports = PortsOf(files, differences);
  NumberSections(ports);
  const ReportedRouters routers = RoutersOf(files, differences);
  CMarkup page;
  BeginPage(page, PageTitle(files));
  WriteSummary(page, files, ports);
  WriteContents(page, ports, isComparison, !routers.empty());
  if (isComparison) WriteDifferences(page, files, differences);
  WritePorts(page, ports);
  WriteRouters(page, routers);
  if (isComparison) {
    WriteFindings(page, files, differences);
    WriteFieldsSideBySide(page, files, differences);
  } else {
    WriteFindings(page, files.front());
    WriteFields(page, *files.front().vif);
  }
  EndPage(page);
  return page.Take();
}

}  // namespace

std::string MakeReport(const ReportedFile& file) {
  const CReportedVif vif(file);
  const CFieldRows rows(vif);
  return MakePage({{&vif, {}, &rows}}, {});
}

std::string MakeReport(const ReportedFile& before, const ReportedFile& after) {
  const CReportedVif first(before);
  const CReportedVif second(after);
  const Differences differences = Compare(before.fields, after.fields);
  const CFieldRows firstRows = CFieldRows::OfEarlier(first, second, differences);
  const CFieldRows secondRows = CFieldRows::OfLater(second, differences);
  return MakePage({{&first, before.name, &firstRows}, {&second, after.name, &secondRows}}, differences);
}

}  // namespace vifanalysis
