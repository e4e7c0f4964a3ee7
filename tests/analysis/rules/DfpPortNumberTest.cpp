#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(DfpPortNumberTest, FindsANumberOfMoreThanFiveBits) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "DFP_VDO_Port_Number", "32");
  EXPECT_THAT(charger.Findings(),
              Are({{"dfp-port-number", "DFP_VDO_Port_Number",
                    "Component 1: DFP_VDO_Port_Number is 32, but the port number has five bits: 0 to 31"}}));
}

TEST(DfpPortNumberTest, AllowsTheGreatestNumberOfFiveBits) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "DFP_VDO_Port_Number", "31");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(DfpPortNumberTest, FindsANumberOfTwoPorts) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "DFP_VDO_Port_Number", "0");
  EXPECT_THAT(laptop.Findings(), Are({{"dfp-port-number", "Component[2]/DFP_VDO_Port_Number",
                                       "Component 2: DFP_VDO_Port_Number is 0, the same as in Component 1"}}));
}

TEST(DfpPortNumberTest, IsNotForOlderEditions) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.40").Set(Component(1), "DFP_VDO_Port_Number", "32");
  EXPECT_THAT(charger.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis
