#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "over-3a-unasked";

TEST(Over3AUnaskedTest, FindsAPortThatCannotSpeakToTheCable) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "SOP_P_Capable", "NO");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "SOP_P_Capable",
                    "Component 1: a source PDO offers 3.25 A, and a cable has to say that it carries more than 3 A, "
                    "but SOP_P_Capable is NO, so the port cannot ask it"}}));
}

TEST(Over3AUnaskedTest, FindsAPortThatCannotPowerTheCable) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "Type_C_Sources_VCONN", "NO");
  EXPECT_THAT(dock.FindingsOf(kCode), Are({}));  // vconn-source-needed finds it
  for (const char* name : {"SOP_P_Capable", "VCONN_Swap_To_On_Supported", "VCONN_Swap_To_Off_Supported"}) {
    dock.Remove(Component(1), name);
  }
  EXPECT_THAT(dock.FindingsOf(kCode),
              Are({{kCode, "Type_C_Sources_VCONN",
                    "Component 1: a source PDO offers 4.8 A, and a cable has to say that it carries more than 3 A, "
                    "but Type_C_Sources_VCONN is NO, so the port cannot ask it"}}));
}

TEST(Over3AUnaskedTest, AllowsWhatEveryCableCarries) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "SOP_P_Capable", "NO");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "300").Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "60");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "301");
  EXPECT_EQ(charger.FindingsOf(kCode).size(), 1U);
}

TEST(Over3AUnaskedTest, AllowsACaptiveCable) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "SOP_P_Capable", "NO");
  EXPECT_EQ(CExample(charger).Remove(Component(1), "Captive_Cable").FindingsOf(kCode).size(), 1U);
  EXPECT_THAT(CExample(charger).Set(Component(1), "Captive_Cable", "YES").FindingsOf(kCode), Are({}));
}

TEST(Over3AUnaskedTest, LeavesWrongPdosToOtherRules) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "SOP_P_Capable", "NO");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "300").Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "60");
  EXPECT_THAT(CExample(charger).Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "101").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "500").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "310", "3 A").FindingsOf(kCode), Are({}));
}

TEST(Over3AUnaskedTest, NeedsTheFields) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "SOP_P_Capable").Remove(Component(1), "Type_C_Sources_VCONN");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

}  // namespace
}  // namespace vifanalysis
