#include "VIFLocations.h"

#include <array>
#include <cstddef>

namespace {

constexpr const char* kUnsetName = "<unset>";

// Deliberately not an XPath: code that prints the path of an unused slot shows plainly that there is none.
constexpr const char* kUnsetXPath = "<Nothing there: any associated value should be ignored>";

// In the order of their values. The blank at the end of each path belongs to it, and the mixed spelling of the
// element names is the format's own.
constexpr std::array<VifLocTypeInfo, 13> kLocations = {{
    {eVifLocUnset, kUnsetName, kUnsetXPath},
    {eVifLocVif, "VIF", "/VIF "},
    {eVifLocAppVersion, "AppVersion", "/VIF/VIF_App "},
    {eVifLocProduct, "Product", "/VIF/Product "},
    {eVifLocRouter, "Router", "/VIF/Product/USB4RouterList/Usb4Router "},
    {eVifLocRouterPcie, "RouterPcie", "/VIF/Product/USB4RouterList/Usb4Router/PCIeEndpointList/PCIeEndpoint "},
    {eVifLocComponent, "Component", "/VIF/Component "},
    {eVifLocSrcPdo, "SrcPdo", "/VIF/Component/SrcPdoList/SrcPDO "},
    {eVifLocSnkPdo, "SnkPdo", "/VIF/Component/SnkPdoList/SnkPDO "},
    {eVifLocSopSvid, "SopSvid", "/VIF/Component/SOPSVIDList/SOPSVID "},
    {eVifLocSopSvidMode, "SopSvidMode", "/VIF/Component/SOPSVIDList/SOPSVID/SOPSVIDModeList/SOPSVIDMode "},
    {eVifLocCableSvid, "CableSvid", "/VIF/Component/CableSVIDList/CableSVID "},
    {eVifLocCableSvidMode, "CableSvidMode", "/VIF/Component/CableSVIDList/CableSVID/CableSVIDModeList/CableSVIDMode "},
}};

constexpr VifLocTypeInfo kUnknown = {eVifLocUnset, kUnsetName, kUnsetXPath};

}  // namespace

const VifLocTypeInfo& GetVifLocInfo(EVifLocation location) {
  const auto index = static_cast<size_t>(location);  // a negative value becomes a huge one
  return index < kLocations.size() ? kLocations[index] : kUnknown;
}
