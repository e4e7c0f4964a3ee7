#include "report/Sections.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <utility>

namespace vifanalysis {

namespace {

constexpr Fact kProtocols[] = {
    {"USB4_USB3_Tunneling_Supported", "USB3"},
    {"USB4_DP_Tunneling_Supported", "DP"},
    {"USB4_PCIe_Tunneling_Supported", "PCIe"},
    {"USB4_TBT3_Compatibility_Supported", "TBT3"},
};

/// The protocols that go through the USB4 port.
std::string ProtocolsOf(const CComponentView& component) {
  std::string text;
  for (const Fact& protocol : kProtocols) {
    if (component.IsYes(protocol.name)) text.append(text.empty() ? "" : ", ").append(protocol.label);
  }
  return text.empty() ? "no tunneled protocol" : text;
}

/// The ports of a router, with their speed and protocols.
void WritePortsOf(CMarkup& page, const Side& side, const CGroupView& router) {
  page.Begin("ul", {{"class", "content"}});
  for (const CComponentView& component : side.vif->View().Components()) {
    if (component.Number("USB4_Router_Index") != router.Index()) continue;
    const std::string speed = side.vif->Says(component, "USB4_Max_Speed");
    page.Element("li",
                 PlaceInWords(component.Place()) + ": " + (speed.empty() ? "" : speed + "; ") + ProtocolsOf(component));
  }
  page.End();
}

void WriteEndpoints(CMarkup& page, const Side& side, const CGroupView& router) {
  const auto endpoints = router.AllGroups(eVifLocRouterPcie);
  if (endpoints.empty()) return;
  page.Begin("table", {{"class", "pdos"}});
  page.Element("caption", side.label.empty() ? "PCIe endpoints" : "PCIe endpoints \u00b7 " + std::string(side.label));
  page.Begin("thead");
  page.Begin("tr");
  for (const std::string_view heading : {"Endpoint", "Vendor", "Device", "Class"}) {
    page.Element("th", {{"scope", "col"}}, heading);
  }
  page.End();
  page.End();
  page.Begin("tbody");
  for (std::size_t i = 0; i < std::min(endpoints.size(), kMostShown); ++i) {
    const CGroupView& endpoint = endpoints[i];
    page.Begin("tr");
    page.Element("th", {{"scope", "row"}}, NumberText(endpoint.Place()[2]));
    for (const std::string_view name : {"Vendor_ID", "Device_ID", "Class_Code"}) {
      page.Element("td", side.vif->Says(endpoint, "USB4_PCIe_Endpoint_" + std::string(name)));
    }
    page.End();
  }
  page.End();
  page.End();
  WriteOthers(page, endpoints.size(), "endpoint");
}

/// What the routers declare, in the order of the later file.
std::vector<Fact> FactsOf(const Sides& sides) {
  std::vector<Fact> facts;
  for (auto side = sides.rbegin(); side != sides.rend(); ++side) {
    if (side->group == nullptr) continue;
    for (const FoundField* found : side->vif->FieldsOf(*side->group)) {
      const std::string_view name = found->field.Name();
      const auto isKnown = [&](const Fact& fact) { return fact.name == name; };
      if (std::none_of(facts.begin(), facts.end(), isKnown)) facts.push_back({name, {}});
    }
  }
  return facts;
}

void WriteRouter(CMarkup& page, const Sides& sides) {
  const Side& shown = sides.back().group != nullptr ? sides.back() : sides.front();
  page.Element("h3", PlaceInWords(shown.group->Place()));
  std::vector<Fact> facts = FactsOf(sides);
  std::vector<std::string> labels;
  labels.reserve(facts.size());
  for (const Fact& fact : facts) labels.push_back(FieldLabel(fact.name));
  for (std::size_t i = 0; i < facts.size(); ++i) facts[i].label = labels[i];
  WriteFacts(page, "Adapters and protocols", sides, facts);
  page.Begin("div", {{"class", "sides"}});
  for (const Side& side : sides) {
    if (side.group == nullptr) continue;
    page.Begin("div", {{"class", "side"}});
    WritePortsOf(page, side, *side.group);
    WriteEndpoints(page, side, *side.group);
    page.End();
  }
  page.End();
}

}  // namespace

void WriteRouters(CMarkup& page, const Sides& sides) {
  std::map<std::uint64_t, Sides> routers;
  for (std::size_t i = 0; i < sides.size(); ++i) {
    if (sides[i].group == nullptr) continue;
    for (const CGroupView& router : sides[i].group->Groups(eVifLocRouter)) {
      Sides& row = routers.try_emplace(router.Index(), sides).first->second;
      if (row[i].group == sides[i].group) row[i].group = &router;
    }
  }
  if (routers.empty()) return;
  page.Begin("section", {{"id", "routers"}});
  page.Element("h2", "USB4 routers");
  std::size_t count = 0;
  for (auto& [number, row] : routers) {
    if (++count > kMostShown) break;
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (row[i].group == sides[i].group) row[i].group = nullptr;  // this file does not have the router
    }
    WriteRouter(page, row);
  }
  WriteOthers(page, routers.size(), "router");
  page.End();
}

}  // namespace vifanalysis
