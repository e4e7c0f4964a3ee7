#include "GroupNames.h"

#include <algorithm>
#include <iterator>

namespace vif {

namespace {

struct GroupName {
  std::wstring_view name;
  EVifLocation location;
};

constexpr GroupName kGroupNames[] = {
    {L"VIF", eVifLocVif},
    {L"VIF_App", eVifLocAppVersion},
    {L"Product", eVifLocProduct},
    {L"USB4RouterList", eVifLocRouter},
    {L"Usb4Router", eVifLocRouter},
    {L"PCIeEndpointList", eVifLocRouterPcie},
    {L"PCIeEndpoint", eVifLocRouterPcie},
    {L"Component", eVifLocComponent},
    {L"SrcPdoList", eVifLocSrcPdo},
    {L"SrcPDO", eVifLocSrcPdo},
    {L"SnkPdoList", eVifLocSnkPdo},
    {L"SnkPDO", eVifLocSnkPdo},
    {L"SOPSVIDList", eVifLocSopSvid},
    {L"SOPSVID", eVifLocSopSvid},
    {L"SOPSVIDModeList", eVifLocSopSvidMode},
    {L"SOPSVIDMode", eVifLocSopSvidMode},
    {L"CableSVIDList", eVifLocCableSvid},
    {L"CableSVID", eVifLocCableSvid},
    {L"CableSVIDModeList", eVifLocCableSvidMode},
    {L"CableSVIDMode", eVifLocCableSvidMode},
};

}  // namespace

std::optional<EVifLocation> FindGroupLocation(std::wstring_view localName) {
  const auto* found = std::find_if(std::begin(kGroupNames), std::end(kGroupNames),
                                   [&](const GroupName& group) { return group.name == localName; });
  if (found == std::end(kGroupNames)) return std::nullopt;
  return found->location;
}

}  // namespace vif
