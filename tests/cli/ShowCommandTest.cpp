// `vif show` as a user runs it. TranscriptsTest compares its output for whole examples.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;
using testsupport::Example;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::TempDir;
using testsupport::Vif;

std::string Show(const std::string& content) {
  const TempDir dir;
  const ProgramResult result = Vif({"show", dir.Write("a.txt", content).string()});
  EXPECT_EQ(result.status, 0) << result.error;
  return result.output;
}

struct PdoCase {
  std::string content;
  std::string line;
};

class ShowPdo : public testing::TestWithParam<PdoCase> {};

TEST_P(ShowPdo, IsInVoltsAmperesAndWatts) { EXPECT_THAT(Lines(Show(GetParam().content)), Contains(GetParam().line)); }

INSTANTIATE_TEST_SUITE_P(
    Source, ShowPdo,
    testing::Values(
        PdoCase{"Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 180\nSrc_PDO_Max_Current1: 325\n",
                "    1    Fixed   9 V      3.25 A   29.25 W"},
        PdoCase{
            "Src_PDO_Supply_Type2: 1\nSrc_PDO_Min_Voltage2: 95\nSrc_PDO_Max_Voltage2: 300\nSrc_PDO_Max_Power2: 61\n",
            "    2    Battery  4.75 to 15 V           15.25 W"},
        PdoCase{
            "Src_PDO_Supply_Type2: 2\nSrc_PDO_Min_Voltage2: 95\nSrc_PDO_Max_Voltage2: 300\nSrc_PDO_Max_Current2: 1\n",
            "    2    Variable  4.75 to 15 V  0.01 A"},
        PdoCase{"Src_PDO_Supply_Type2: 3\nSrc_PDO_APDO_Type2: 0\nSrc_PDO_Min_Voltage2: 33\nSrc_PDO_Max_Voltage2: 110\n"
                "Src_PDO_Max_Current2: 61\n",
                "    2    PPS     3.3 to 11 V  3.05 A"},
        // Up to edition 3.12 there is no field for the kind of augmented supply: 3 is PPS.
        PdoCase{"Src_PDO_Supply_Type2: 3\nSrc_PDO_Min_Voltage2: 33\nSrc_PDO_Max_Voltage2: 110\nSrc_PDO_Max_Current2: "
                "61\n",
                "    2    PPS     3.3 to 11 V  3.05 A"}));

INSTANTIATE_TEST_SUITE_P(
    Sink, ShowPdo,
    testing::Values(
        PdoCase{"Snk_PDO_Supply_Type1: 0\nSnk_PDO_Voltage1: 100\nSnk_PDO_Op_Current1: 50\n",
                "    1    Fixed   5 V      0.5 A    2.5 W"},
        PdoCase{"Snk_PDO_Supply_Type1: 1\nSnk_PDO_Min_Voltage1: 100\nSnk_PDO_Max_Voltage1: 200\n"
                "Snk_PDO_Op_Power1: 40\n",
                "    1    Battery  5 to 10 V           10 W"},
        PdoCase{"Snk_PDO_Supply_Type1: 3\nSnk_PDO_APDO_Type1: 0\nSnk_PDO_Min_Voltage1: 33\nSnk_PDO_Max_Voltage1: 59\n"
                "Snk_PDO_Op_Current1: 20\n",
                "    1    PPS     3.3 to 5.9 V  1 A"},
        PdoCase{
            "Snk_PDO_Supply_Type1: 3\nSnk_PDO_Min_Voltage1: 33\nSnk_PDO_Max_Voltage1: 59\nSnk_PDO_Op_Current1: 20\n",
            "    1    PPS     3.3 to 5.9 V  1 A"}));

INSTANTIATE_TEST_SUITE_P(
    Unsettled, ShowPdo,
    testing::Values(PdoCase{"Src_PDO_Voltage1: 100\nSrc_PDO_Max_Current1: 300\n", "    1    ?       ?        ?"},
                    PdoCase{"Src_PDO_Supply_Type1: 4\nSrc_PDO_Voltage1: 100\n", "    1    ?       ?"},
                    PdoCase{"Src_PDO_Supply_Type1: 3\nSrc_PDO_APDO_Type1: 1\nSrc_PDO_Min_Voltage1: 9\n",
                            "    1    Augmented  0.9 to ? V                  Src_PDO_APDO_Type=1"},
                    PdoCase{"Src_PDO_Supply_Type1: 3\nSrc_PDO_APDO_Type1: 99999999999999999999\n"
                            "Src_PDO_Max_Current1: 60\n",
                            "    1    Augmented           ?               Src_PDO_APDO_Type=99999999999999999999"},
                    // Only an adjustable voltage supply has a PDP rating.
                    PdoCase{
                        "Src_PDO_Supply_Type1: 3\nSrc_PDO_PDP_Rating1: 140\nSrc_PDO_Min_Voltage1: 9\n",
                        "    1    Augmented  0.9 to ? V                  Src_PDO_PDP_Rating=140 (140 W, uncertain)"},
                    PdoCase{"Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 99999999999999999999\n", "    1    Fixed   ?"},
                    PdoCase{"Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 18446744073709551614\n", "    1    Fixed   ?"},
                    PdoCase{"Src_PDO_Supply_Type: 0\nSrc_PDO_Voltage: 100\n", "    ?    Fixed   5 V"}));

TEST(Show, OtherFieldsOfAPdoAreListed) {
  EXPECT_THAT(Show("Src_PDO_Supply_Type1: 0\nSrc_PDO_Peak_Current1: 2\nSrc_PD_OCP_UV_Debounce1: 5\n"),
              HasSubstr("Src_PDO_Peak_Current=2, Src_PD_OCP_UV_Debounce=5 (5 ms)"));
}

TEST(Show, TheThresholdOfAPdoIsInTheUnitOfItsType) {
  const std::string pdo = "Src_PDO_Supply_Type1: 0\nSrc_PD_OCP_UV_Threshold1: 80\nSrc_PD_OCP_UV_Threshold_Type1: ";
  EXPECT_THAT(Show(pdo + "0\n"), HasSubstr("Src_PD_OCP_UV_Threshold=80 (0.8 V)"));
  EXPECT_THAT(Show(pdo + "1\n"), HasSubstr("Src_PD_OCP_UV_Threshold=80 (80 %)"));
}

TEST(Show, PdosAreInTheOrderOfTheirNumbers) {
  const std::string output = Show("Src_PDO_Supply_Type10: 0\nSrc_PDO_Supply_Type9: 1\n");
  EXPECT_LT(output.find("9    Battery"), output.find("10   Fixed"));
}

TEST(Show, RoutersAreInTheProductAndEndpointsInTheirRouter) {
  EXPECT_THAT(Lines(Show("USB4_Dock: YES\n"
                         "USB4_Router_ID1: 7\n"
                         "USB4_PCIe_Endpoint1_Vendor_ID2: 0x8086\n")),
              testing::Contains("Product"));
  EXPECT_THAT(Show("USB4_Dock: YES\nUSB4_Router_ID1: 7\nUSB4_PCIe_Endpoint1_Vendor_ID2: 0x8086\n"),
              HasSubstr("Product\n"
                        "  USB4_Dock  1  YES\n"
                        "  Router 1\n"
                        "    USB4_Router_ID  7\n"
                        "    RouterPcie 2\n"
                        "      USB4_PCIe_Endpoint_Vendor_ID  0x8086\n"));
}

TEST(Show, SvidsAreInTheirComponentAndModesInTheirSvid) {
  EXPECT_THAT(Show("SVID1: 0xFF01\nSVID1_Mode2_Enter: YES\nSVID3_SOP: 0x8087\n"),
              HasSubstr("Component 1\n"
                        "  SopSvid 3\n"
                        "    SVID_SOP  0x8087\n"
                        "  CableSvid 1\n"
                        "    SVID  0xFF01\n"
                        "    CableSvidMode 2\n"
                        "      SVID_Mode_Enter  1  YES\n"));
}

TEST(Show, SeveralFilesAreSeveralComponents) {
  const TempDir dir;
  const std::string first = dir.Write("a.txt", "PID: 1\n").string();
  const std::string second = dir.Write("b.txt", "PID: 2\n").string();
  const std::string output = Vif({"show", first, second}).output;
  EXPECT_THAT(output, HasSubstr("Component 1\n  PID  1\n"));
  EXPECT_THAT(output, HasSubstr("Component 2\n  PID  2\n"));
}

TEST(Show, EveryFieldOfEveryExampleAppears) {
  for (const char* name : {"gan-charger-65w.txt", "dual-role-tablet.txt", "active-cable.txt"}) {
    const std::string shown = Vif({"show", Example(name)}).output;
    const std::vector<std::string> values = Lines(Vif({"get", Example(name), "(?!S(rc|nk)_PDO_).*"}).output);
    EXPECT_GT(values.size(), 50U);
    EXPECT_TRUE(std::all_of(values.begin(), values.end(), [&](const std::string& value) {
      return shown.find(value) != std::string::npos;
    })) << name;
  }
}

TEST(Show, AddsWhatAValueStandsForWhereTheFileDoesNotSay) {
  EXPECT_THAT(Lines(Show("PD_Port_Type: 3\nConnector_Type: 2 ; a plug\nPD_Power_As_Source: 65000\n")),
              testing::IsSupersetOf({"  PD_Port_Type        3      (Provider Only)",
                                     "  Connector_Type      2      a plug", "  PD_Power_As_Source  65000  (65 W)"}));
}

TEST(Show, AddsNothingThatIsNotKnown) {
  EXPECT_THAT(
      Lines(Show("PD_Port_Type: 77\nPID: 5\nXID: 18446744073709551616\n")),
      testing::IsSupersetOf({"  PD_Port_Type  77", "  PID           5", "  XID           18446744073709551616"}));
}

TEST(Show, MarksWhatIsUncertain) {
  EXPECT_THAT(Lines(Show("Product_Type_DFP_SOP: 3\n")),
              Contains("  Product_Type_DFP_SOP  3  (Power Brick, uncertain)"));
}

TEST(Show, TakesTheTextOfTheFilesEdition) {
  const std::string repeater = "VIF_Product_Type: 2\n";
  EXPECT_THAT(Show("$VIF_Specification: \"1.40\"\n" + repeater), HasSubstr("VIF_Product_Type    2     (Re-timer)"));
  EXPECT_THAT(Show("$VIF_Specification: \"3.26\"\n" + repeater), HasSubstr("VIF_Product_Type    2     (Repeater)"));
  EXPECT_THAT(Show(repeater), HasSubstr("VIF_Product_Type  2  (Repeater)"));
}

TEST(Show, APipeHasNoColour) { EXPECT_THAT(Show("PID: 1\n"), Not(HasSubstr("\x1b"))); }

class ShowOnTerminal : public testing::Test {
 protected:
  void SetUp() override {
    if (!testsupport::HasTerminals()) GTEST_SKIP() << testsupport::kNoTerminals;
  }
};

TEST_F(ShowOnTerminal, HasBoldHeadings) {
  const ProgramResult result = testsupport::VifOnTerminal({"show", Example("active-cable.txt")}, 100);
  EXPECT_THAT(result.output, HasSubstr("\x1b[1mComponent 1\x1b[0m"));
}

TEST_F(ShowOnTerminal, DimsWhatIsNotTheFiles) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "PD_Port_Type: 3\nConnector_Type: 2 ; a plug\n").string();
  const ProgramResult result = testsupport::VifOnTerminal({"show", file}, 100);
  EXPECT_THAT(result.output, HasSubstr("\x1b[2m(Provider Only)\x1b[0m"));
  EXPECT_THAT(result.output, HasSubstr("  Connector_Type  2  a plug"));
}

TEST_F(ShowOnTerminal, HonoursNoColor) {
  const ProgramResult result =
      testsupport::RunOnTerminal({"/usr/bin/env", "NO_COLOR=1", VIF_COMMAND, "show", Example("active-cable.txt")}, 100);
  EXPECT_THAT(result.output, HasSubstr("Component 1"));
  EXPECT_THAT(result.output, Not(HasSubstr("\x1b")));
}

TEST_F(ShowOnTerminal, IgnoresAnEmptyNoColor) {
  const ProgramResult result =
      testsupport::RunOnTerminal({"/usr/bin/env", "NO_COLOR=", VIF_COMMAND, "show", Example("active-cable.txt")}, 100);
  EXPECT_THAT(result.output, HasSubstr("\x1b[1m"));
}

}  // namespace
