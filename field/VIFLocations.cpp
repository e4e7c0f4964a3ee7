#include "VIFLocations.h"

#include <array>
#include <cstddef>

namespace {

constexpr VifLocTypeInfo kUnset = {
    eVifLocUnset, "<unset>",
    // Deliberately not an XPath: code that prints the path of an unused slot then shows plainly that there is none.
    "<Nothing there: any associated value should be ignored>"};

// The blank at the end of each path belongs to it, and the mixed spelling of the element names is the format's own. For
// a group in a list, the path has the list's name just before the group's.
constexpr VifLocTypeInfo Describe(EVifLocation location) {
  switch (location) {
    case eVifLocUnset: break;
    case eVifLocVif: return {location, "VIF", "/VIF "};
    case eVifLocAppVersion: return {location, "AppVersion", "/VIF/VIF_App "};
    case eVifLocProduct: return {location, "Product", "/VIF/Product "};
    case eVifLocRouter: return {location, "Router", "/VIF/Product/USB4RouterList/Usb4Router "};
    case eVifLocRouterPcie:
      return {location, "RouterPcie", "/VIF/Product/USB4RouterList/Usb4Router/PCIeEndpointList/PCIeEndpoint "};
    case eVifLocComponent: return {location, "Component", "/VIF/Component "};
    case eVifLocSrcPdo: return {location, "SrcPdo", "/VIF/Component/SrcPdoList/SrcPDO "};
    case eVifLocSnkPdo: return {location, "SnkPdo", "/VIF/Component/SnkPdoList/SnkPDO "};
    case eVifLocSopSvid: return {location, "SopSvid", "/VIF/Component/SOPSVIDList/SOPSVID "};
    case eVifLocSopSvidMode:
      return {location, "SopSvidMode", "/VIF/Component/SOPSVIDList/SOPSVID/SOPSVIDModeList/SOPSVIDMode "};
    case eVifLocCableSvid: return {location, "CableSvid", "/VIF/Component/CableSVIDList/CableSVID "};
    case eVifLocCableSvidMode:
      return {location, "CableSvidMode", "/VIF/Component/CableSVIDList/CableSVID/CableSVIDModeList/CableSVIDMode "};
  }
  return kUnset;
}

constexpr std::size_t CountLocations() {
  std::size_t count = 1;
  while (Describe(static_cast<EVifLocation>(count)).location != eVifLocUnset) ++count;
  return count;
}

constexpr auto ListLocations() {
  std::array<VifLocTypeInfo, CountLocations()> locations{};
  for (std::size_t value = 0; value < locations.size(); ++value) {
    locations[value] = Describe(static_cast<EVifLocation>(value));
  }
  return locations;
}

// In the order of their values, which have no gaps.
constexpr auto kLocations = ListLocations();

}  // namespace

const VifLocTypeInfo& GetVifLocInfo(EVifLocation location) {
  const auto index = static_cast<std::size_t>(location);  // a negative value becomes a huge one
  return index < kLocations.size() ? kLocations[index] : kUnset;
}
