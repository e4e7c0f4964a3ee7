// What the C interface says about the library.
#include "Handles.h"

#include <VIFLocations.h>
#include <gtest/gtest.h>

namespace {

TEST(CLibraryTest, HasTheVersionOfTheProject) { EXPECT_STREQ(vif_version(), PROJECT_VERSION); }

TEST(CLibraryTest, LocationsHaveTheirShortNames) {
  EXPECT_STREQ(vif_location_name(VIF_LOCATION_SRC_PDO), "SrcPdo");
  EXPECT_STREQ(vif_location_name(VIF_LOCATION_UNSET), "<unset>");
  EXPECT_STREQ(vif_location_name(99), "<unset>");
  EXPECT_STREQ(vif_location_name(-1), "<unset>");
}

TEST(CLibraryTest, LocationsAreThoseOfCpp) {
  EXPECT_EQ(int{VIF_LOCATION_VIF}, int{eVifLocVif});
  EXPECT_EQ(int{VIF_LOCATION_APP_VERSION}, int{eVifLocAppVersion});
  EXPECT_EQ(int{VIF_LOCATION_PRODUCT}, int{eVifLocProduct});
  EXPECT_EQ(int{VIF_LOCATION_ROUTER}, int{eVifLocRouter});
  EXPECT_EQ(int{VIF_LOCATION_ROUTER_PCIE}, int{eVifLocRouterPcie});
  EXPECT_EQ(int{VIF_LOCATION_COMPONENT}, int{eVifLocComponent});
  EXPECT_EQ(int{VIF_LOCATION_SRC_PDO}, int{eVifLocSrcPdo});
  EXPECT_EQ(int{VIF_LOCATION_SNK_PDO}, int{eVifLocSnkPdo});
  EXPECT_EQ(int{VIF_LOCATION_SOP_SVID}, int{eVifLocSopSvid});
  EXPECT_EQ(int{VIF_LOCATION_SOP_SVID_MODE}, int{eVifLocSopSvidMode});
  EXPECT_EQ(int{VIF_LOCATION_CABLE_SVID}, int{eVifLocCableSvid});
  EXPECT_EQ(int{VIF_LOCATION_CABLE_SVID_MODE}, int{eVifLocCableSvidMode});
}

}  // namespace
