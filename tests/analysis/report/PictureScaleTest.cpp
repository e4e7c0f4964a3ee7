#include "report/PictureScale.h"

#include <gtest/gtest.h>

#include <string>

namespace vifanalysis {
namespace {

TEST(PictureScaleTest, WritesLengthsWithADecimalAtMost) {
  EXPECT_EQ(LengthText(0), "0");
  EXPECT_EQ(LengthText(5), "0.5");
  EXPECT_EQ(LengthText(1200), "120");
  EXPECT_EQ(LengthText(1205), "120.5");
}

TEST(PictureScaleTest, EndsTheVoltageAxisAboveTheHighest) {
  EXPECT_EQ(VoltageAxis(5000).limit, 6000U);
  EXPECT_EQ(VoltageAxis(5000).step, 1000U);
  EXPECT_EQ(VoltageAxis(20'000).limit, 25'000U);
  EXPECT_EQ(VoltageAxis(48'000).limit, 50'000U);
  EXPECT_EQ(VoltageAxis(48'000).step, 5000U);
  EXPECT_EQ(VoltageAxis(100'000).limit, 120'000U);
}

TEST(PictureScaleTest, LeavesRoomForLabelsAboveTheGreatestCurrent) {
  EXPECT_EQ(CurrentAxis(500).limit, 600U);
  EXPECT_EQ(CurrentAxis(3000).limit, 3500U);
  EXPECT_EQ(CurrentAxis(3250).limit, 4000U);
  EXPECT_EQ(CurrentAxis(5000).limit, 6000U);
  EXPECT_EQ(CurrentAxis(5000).step, 1000U);
}

TEST(PictureScaleTest, HasAxesOfSomeLengthForNothing) {
  EXPECT_EQ(VoltageAxis(0).limit, 1000U);
  EXPECT_EQ(CurrentAxis(0).limit, 100U);
}

TEST(PictureScaleTest, KnowsThatSomeTextsAreWiderThanOthers) {
  EXPECT_EQ(TextWidth("", 120), 0);
  EXPECT_LT(TextWidth("3.3 V", 120), TextWidth("3333V", 120));
  EXPECT_LT(TextWidth("iii", 120), TextWidth("WWW", 120));
  EXPECT_LT(TextWidth("·", 120), TextWidth("→", 120));
  EXPECT_LT(TextWidth("→", 120), TextWidth("中", 120));
  EXPECT_EQ(TextWidth("9 V", 240), 2 * TextWidth("9 V", 120));
}

TEST(PictureScaleTest, CutsTextsThatAreTooWide) {
  const std::string text = "3333";
  EXPECT_EQ(CutToLength(text, 100, TextWidth(text, 100)), text);
  EXPECT_EQ(CutToLength(text, 100, TextWidth(text, 100) - 1), "33…");
  EXPECT_EQ(CutToLength("中中中", 100, TextWidth("中中", 100)), "中…");
  EXPECT_EQ(CutToLength("", 100, 0), "");
}

}  // namespace
}  // namespace vifanalysis
