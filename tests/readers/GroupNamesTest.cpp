// The location that the name of an element stands for.
#include "GroupNames.h"

#include <gtest/gtest.h>

#include <utility>

namespace vif {

namespace {

TEST(GroupNamesTest, EveryNameHasItsLocation) {
  const std::pair<const wchar_t*, EVifLocation> names[] = {
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
  for (const auto& [name, location] : names) EXPECT_EQ(FindGroupLocation(name), location) << name;
}

TEST(GroupNamesTest, NoOtherNameHasOne) {
  for (const wchar_t* name : {L"", L"vif", L"SrcPDOList", L"Usb4RouterList", L"USB4Router", L"SopSvidList",
                              L"vif:SrcPdoList", L"SrcPdoList ", L"SrcPdo", L"OptionalContent"}) {
    EXPECT_EQ(FindGroupLocation(name), std::nullopt) << name;
  }
}

}  // namespace

}  // namespace vif
