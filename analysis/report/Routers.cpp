#include "report/Sections.h"

#include <algorithm>
#include <cstdint>
#include <set>

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
    const bool differs = side.rows->HasDifferent(*side.vif, endpoint);
    page.Begin("tr", {{"class", differs ? "changed" : "same"}});
    page.Begin("th", {{"scope", "row"}});
    page.Text(NumberText(endpoint.Place()[2]));
    if (differs) WriteMark(page, KindText(DifferenceKind::Changed));
    page.End();
    for (const std::string_view name : {"Vendor_ID", "Device_ID", "Class_Code"}) {
      page.Element("td", side.vif->Says(endpoint, "USB4_PCIe_Endpoint_" + std::string(name)));
    }
    page.End();
  }
  page.End();
  page.End();
  WriteOthers(page, endpoints.size(), "endpoint");
}

/// The names of what the routers declare, in the order of the later file; not too many.
std::vector<std::string_view> NamesOf(const Sides& sides) {
  std::vector<std::string_view> names;
  std::set<std::string_view> known;
  for (auto side = sides.rbegin(); side != sides.rend(); ++side) {
    if (side->group == nullptr) continue;
    for (const FoundField* found : side->vif->FieldsOf(*side->group)) {
      if (names.size() < kMostShown && known.insert(found->field.Name()).second)
        names.emplace_back(found->field.Name());
    }
  }
  return names;
}

void WriteRouter(CMarkup& page, const Sides& sides) {
  page.Element("h3", TitleOf(sides));
  const std::vector<std::string_view> names = NamesOf(sides);
  std::vector<std::string> labels;
  std::vector<Fact> facts;
  labels.reserve(names.size());  // the facts borrow them
  for (const std::string_view name : names) {
    labels.push_back(FieldLabel(name));
    facts.push_back({name, labels.back()});
  }
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

void WriteRouters(CMarkup& page, const ReportedRouters& routers) {
  if (routers.empty()) return;
  page.Begin("section", {{"id", "routers"}});
  page.Element("h2", "USB4 routers");
  for (std::size_t i = 0; i < std::min(routers.size(), kMostShown); ++i) WriteRouter(page, routers[i]);
  WriteOthers(page, routers.size(), "router");
  page.End();
}

}  // namespace vifanalysis
