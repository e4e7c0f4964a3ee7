#include "VIFLocations.h"

#include "VIFFieldDefs.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

static_assert(sizeof(EVifLocation) == 4);
static_assert(std::is_convertible_v<EVifLocation, std::int32_t>, "an unscoped enumeration");
static_assert(std::is_same_v<decltype(GetVifLocInfo(eVifLocVif)), const VifLocTypeInfo&>);

// The numbers are part of the interface.
static_assert(eVifLocUnset == 0);
static_assert(eVifLocVif == 1);
static_assert(eVifLocAppVersion == 2);
static_assert(eVifLocProduct == 3);
static_assert(eVifLocRouter == 4);
static_assert(eVifLocRouterPcie == 5);
static_assert(eVifLocComponent == 6);
static_assert(eVifLocSrcPdo == 7);
static_assert(eVifLocSnkPdo == 8);
static_assert(eVifLocSopSvid == 9);
static_assert(eVifLocSopSvidMode == 10);
static_assert(eVifLocCableSvid == 11);
static_assert(eVifLocCableSvidMode == 12);

constexpr const char* kNoPath = "<Nothing there: any associated value should be ignored>";

const VifLocTypeInfo& Info(std::int32_t value) { return GetVifLocInfo(static_cast<EVifLocation>(value)); }

void ExpectInfo(EVifLocation location, const char* name, const char* xpath) {
  EXPECT_EQ(GetVifLocInfo(location).location, location);
  EXPECT_STREQ(GetVifLocInfo(location).name, name);
  EXPECT_STREQ(GetVifLocInfo(location).xpath, xpath);
}

TEST(GetVifLocInfo, DescribesNoLocation) { ExpectInfo(eVifLocUnset, "<unset>", kNoPath); }

TEST(GetVifLocInfo, DescribesTheVif) { ExpectInfo(eVifLocVif, "VIF", "/VIF "); }

TEST(GetVifLocInfo, DescribesTheApplicationHeader) { ExpectInfo(eVifLocAppVersion, "AppVersion", "/VIF/VIF_App "); }

TEST(GetVifLocInfo, DescribesTheProduct) { ExpectInfo(eVifLocProduct, "Product", "/VIF/Product "); }

TEST(GetVifLocInfo, DescribesARouter) {
  ExpectInfo(eVifLocRouter, "Router", "/VIF/Product/USB4RouterList/Usb4Router ");
}

TEST(GetVifLocInfo, DescribesAPcieEndpoint) {
  ExpectInfo(eVifLocRouterPcie, "RouterPcie", "/VIF/Product/USB4RouterList/Usb4Router/PCIeEndpointList/PCIeEndpoint ");
}

TEST(GetVifLocInfo, DescribesAComponent) { ExpectInfo(eVifLocComponent, "Component", "/VIF/Component "); }

TEST(GetVifLocInfo, DescribesASourcePdo) { ExpectInfo(eVifLocSrcPdo, "SrcPdo", "/VIF/Component/SrcPdoList/SrcPDO "); }

TEST(GetVifLocInfo, DescribesASinkPdo) { ExpectInfo(eVifLocSnkPdo, "SnkPdo", "/VIF/Component/SnkPdoList/SnkPDO "); }

TEST(GetVifLocInfo, DescribesASopSvid) { ExpectInfo(eVifLocSopSvid, "SopSvid", "/VIF/Component/SOPSVIDList/SOPSVID "); }

TEST(GetVifLocInfo, DescribesASopSvidMode) {
  ExpectInfo(eVifLocSopSvidMode, "SopSvidMode", "/VIF/Component/SOPSVIDList/SOPSVID/SOPSVIDModeList/SOPSVIDMode ");
}

TEST(GetVifLocInfo, DescribesACableSvid) {
  ExpectInfo(eVifLocCableSvid, "CableSvid", "/VIF/Component/CableSVIDList/CableSVID ");
}

TEST(GetVifLocInfo, DescribesACableSvidMode) {
  ExpectInfo(eVifLocCableSvidMode, "CableSvidMode",
             "/VIF/Component/CableSVIDList/CableSVID/CableSVIDModeList/CableSVIDMode ");
}

TEST(GetVifLocInfo, EndsEveryPathWithExactlyOneBlank) {
  for (std::int32_t value = 1; value <= 12; ++value) {
    const std::string_view xpath = Info(value).xpath;
    EXPECT_EQ(xpath.find(' '), xpath.size() - 1) << xpath;
  }
}

TEST(GetVifLocInfo, DescribesAnyOtherValueAsNoLocation) {
  constexpr std::int32_t others[] = {13,
                                     14,
                                     255,
                                     256,
                                     65536,
                                     -1,
                                     -13,
                                     std::numeric_limits<std::int32_t>::max(),
                                     std::numeric_limits<std::int32_t>::min()};
  for (const std::int32_t value : others) {
    EXPECT_EQ(Info(value).location, eVifLocUnset) << value;
    EXPECT_STREQ(Info(value).name, "<unset>") << value;
    EXPECT_STREQ(Info(value).xpath, kNoPath) << value;
  }
}

TEST(GetVifLocInfo, ReturnsTheSameObjectOnEveryCall) {
  for (const std::int32_t value : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, -1}) {
    EXPECT_EQ(&Info(value), &Info(value)) << value;
  }
}

TEST(GetVifLocInfo, ReturnsADifferentObjectForEachLocation) {
  for (std::int32_t value = 1; value <= 12; ++value) EXPECT_NE(&Info(value), &Info(value - 1)) << value;
}

TEST(GetVifLocInfo, AnswersManyThreadsAtOnce) {
  std::array<std::vector<const VifLocTypeInfo*>, 8> seen;
  std::vector<std::thread> threads;
  for (std::vector<const VifLocTypeInfo*>& mine : seen) {
    threads.emplace_back([&mine] {
      for (std::int32_t value = -1; value <= 13; ++value) mine.push_back(&Info(value));
    });
  }
  for (std::thread& thread : threads) thread.join();
  ASSERT_EQ(seen[0].size(), 15U);
  EXPECT_STREQ(seen[0][8]->name, "SrcPdo");
  for (const std::vector<const VifLocTypeInfo*>& mine : seen) EXPECT_EQ(mine, seen[0]);
}

std::string_view PathOf(std::int32_t value) {
  std::string_view xpath = Info(value).xpath;
  xpath.remove_suffix(1);
  return xpath;
}

/// The innermost enclosing group of a location, going by the paths of their elements; the VIF, which encloses
/// everything, has no slot.
std::int32_t InnermostGroupAround(std::int32_t value) {
  std::int32_t innermost = eVifLocUnset;
  std::size_t longest = 0;
  for (std::int32_t other = eVifLocVif + 1; other <= eVifLocCableSvidMode; ++other) {
    const std::string path = std::string(PathOf(other)) + '/';
    if (PathOf(value).starts_with(path) && path.size() > longest) {
      innermost = other;
      longest = path.size();
    }
  }
  return innermost;
}

TEST(GetVifLocParent, IsTheEnclosingGroupAccordingToThePaths) {
  for (std::int32_t value = 1; value <= 12; ++value) {
    EXPECT_EQ(GetVifLocParent(static_cast<EVifLocation>(value)), InnermostGroupAround(value)) << value;
  }
}

TEST(GetVifLocParent, IsTheLocationInTheSlotBefore) {
  for (const VifFieldDef& definition : VifFieldDefs::GetVifFieldDefs()) {
    EVifLocation before = eVifLocUnset;
    for (const EVifLocation location : definition.locations) {
      if (location == eVifLocUnset) break;
      EXPECT_EQ(GetVifLocParent(location), before);
      before = location;
    }
  }
}

TEST(GetVifLocParent, IsUnsetForAnyOtherValue) {
  for (const std::int32_t value : {0, 13, -1}) {
    EXPECT_EQ(GetVifLocParent(static_cast<EVifLocation>(value)), eVifLocUnset) << value;
  }
}

TEST(GetVifLocFirstIndex, IsZeroForProductsAndRoutersAndOneForOtherNumberedGroups) {
  for (const EVifLocation location : {eVifLocProduct, eVifLocRouter}) EXPECT_EQ(GetVifLocFirstIndex(location), 0U);
  for (const EVifLocation location : {eVifLocRouterPcie, eVifLocComponent, eVifLocSrcPdo, eVifLocSnkPdo, eVifLocSopSvid,
                                      eVifLocSopSvidMode, eVifLocCableSvid, eVifLocCableSvidMode}) {
    EXPECT_EQ(GetVifLocFirstIndex(location), 1U) << location;
  }
}

TEST(GetVifLocFirstIndex, IsZeroWhereNothingIsCounted) {
  for (const std::int32_t value : {0, 1, 2, 13, -1}) {
    EXPECT_EQ(GetVifLocFirstIndex(static_cast<EVifLocation>(value)), 0U) << value;
  }
}

}  // namespace
