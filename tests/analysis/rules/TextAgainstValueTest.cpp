#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "text-against-value";

/// Gives a field of an example another text, or another value, and expects one finding about it.
void ExpectMismatch(const Place& place, const std::string& name, const std::string& value, const std::string& text,
                    const std::string& message) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(place, name, value, text);
  EXPECT_THAT(laptop.FindingsOf(kCode), Are({{kCode, name, message}}));
}

void ExpectMatch(const Place& place, const std::string& name, const std::string& value, const std::string& text) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(place, name, value, text);
  EXPECT_THAT(laptop.FindingsOf(kCode), Are({})) << name << ": " << text;
}

TEST(TextAgainstValueTest, FindsAnotherVoltage) {
  ExpectMismatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "12000 mV (Factor = 50)",
                 "Component 1, Source PDO 2: 'Src_PDO_Voltage' is 180 (9 V), but its text says '12000 mV (Factor = "
                 "50)'");
}

TEST(TextAgainstValueTest, FindsAnotherCurrentAndAnotherPower) {
  ExpectMismatch(SrcPdo(1, 2), "Src_PDO_Max_Current", "225", "2 A",
                 "Component 1, Source PDO 2: 'Src_PDO_Max_Current' is 225 (2.25 A), but its text says '2 A'");
  ExpectMismatch(Component(1), "PD_Power_As_Sink", "65000", "60 W",
                 "Component 1: 'PD_Power_As_Sink' is 65000 (65 W), but its text says '60 W'");
}

TEST(TextAgainstValueTest, FindsAnotherTime) {
  ExpectMismatch(SrcPdo(1, 2), "Src_PD_OCP_OC_Debounce", "8", "80 msec",
                 "Component 1, Source PDO 2: 'Src_PD_OCP_OC_Debounce' is 8 (8 ms), but its text says '80 msec'");
}

TEST(TextAgainstValueTest, FindsTheNameOfAnotherValue) {
  ExpectMismatch(Component(1), "PD_Port_Type", "4", "Provider Only",
                 "Component 1: 'PD_Port_Type' is 4 (DRP), but its text says 'Provider Only'");
  ExpectMismatch(Component(1), "Connector_Type", "0", "Type-C®",
                 "Component 1: 'Connector_Type' is 0 (Type-A), but its text says 'Type-C®'");
}

TEST(TextAgainstValueTest, FindsTheNameOfAnotherValueForANumberWithoutOne) {
  ExpectMismatch(Component(1), "PD_Port_Type", "9", "DRP", "Component 1: 'PD_Port_Type' is 9, but its text says 'DRP'");
}

TEST(TextAgainstValueTest, FindsNoForYes) {
  ExpectMismatch(Component(1), "Captive_Cable", "1", "NO",
                 "Component 1: 'Captive_Cable' is 1 (YES), but its text says 'NO'");
}

TEST(TextAgainstValueTest, FindsAnotherIdentifier) {
  ExpectMismatch(Component(1), "USB_VID_SOP", "59725", "E94E",
                 "Component 1: 'USB_VID_SOP' is 59725 (0xE94D), but its text says 'E94E'");
  ExpectMismatch(Component(1), "XID_SOP", "40377", "0x00009DB8",
                 "Component 1: 'XID_SOP' is 40377, but its text says '0x00009DB8'");
}

TEST(TextAgainstValueTest, FindsAnotherCount) {
  ExpectMismatch(Component(1), "Num_Snk_PDOs", "4", "3 Snk PDOs",
                 "Component 1: 'Num_Snk_PDOs' is 4, but its text says '3 Snk PDOs'");
  ExpectMismatch(Component(1), "Num_Fixed_Batteries", "1", "2",
                 "Component 1: 'Num_Fixed_Batteries' is 1, but its text says '2'");
}

TEST(TextAgainstValueTest, FindsAnotherRemarkInATextFile) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "65", "650 mA");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Src_PDO_Max_Current",
                    "Component 1, Source PDO 6: 'Src_PDO_Max_Current' is 65 (3.25 A), but its text says '650 mA'"}}));
}

TEST(TextAgainstValueTest, BlamesTheSupplyTypeAloneForUnitsThatDoNotFit) {
  CExample charger("gan-charger-65w.xml");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Supply_Type", "3", "Fixed").Add(SrcPdo(1, 2), "Src_PDO_APDO_Type", "0");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Src_PDO_Supply_Type",
                    "Component 1, Source PDO 2: 'Src_PDO_Supply_Type' is 3 (Augmented), but its text says 'Fixed'"}}));
}

TEST(TextAgainstValueTest, IsTheOnlyFindingAboutAValue) {
  const auto expectOne = [](const Place& place, const std::string& name, const std::string& value,
                            const std::string& text) {
    CExample laptop("two-port-laptop.xml");
    laptop.Set(place, name, value, text);
    const std::vector<Finding> findings = laptop.Findings();
    ASSERT_EQ(findings.size(), 1U) << name << findings.back();
    EXPECT_EQ(findings.front().code, kCode) << name;
  };
  expectOne(SrcPdo(1, 2), "Src_PDO_Max_Current", "500", "2250 mA");  // or pdo-above-rating
  expectOne(SrcPdo(1, 2), "Src_PDO_Voltage", "60", "9 V");           // or pdo-limits
  expectOne(SrcPdo(1, 1), "Src_PDO_Voltage", "60", "5000 mV");       // or first-pdo-not-5v
  expectOne(SrcPdo(1, 2), "Src_PDO_Supply_Type", "3", "Fixed");      // or pdo-fields-for-type
  expectOne(Component(1), "PD_Power_As_Sink", "650000", "65 W");     // or rating-above-pdos
  expectOne(Component(1), "PD_Port_Type", "3", "DRP");               // or role-mismatch
  expectOne(Component(1), "USB_PD_Support", "0", "YES");             // or role-leftover
  expectOne(Component(1), "USB_Comms_Capable", "0", "YES");          // or comms-role
}

TEST(TextAgainstValueTest, BlamesTheSupplyTypeAloneWhereverItStands) {
  CExample charger("gan-charger-65w.xml");
  charger.Remove(SrcPdo(1, 2), "Src_PDO_Supply_Type").Add(SrcPdo(1, 2), "Src_PDO_Supply_Type", "2");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Supply_Type", "3", "Fixed").Add(SrcPdo(1, 2), "Src_PDO_APDO_Type", "0");
  EXPECT_EQ(charger.FindingsOf(kCode).size(), 1U);
}

TEST(TextAgainstValueTest, ReadsACountBeforeAWholeWordOfTheName) {
  ExpectMatch(Component(1), "Num_Snk_PDOs", "4", "3 S");
  ExpectMatch(Component(1), "Num_Snk_PDOs", "4", "3 PDO");
  ExpectMatch(Component(1), "Num_Fixed_Batteries", "1", "2 bat");
  ExpectMismatch(Component(1), "Num_Snk_PDOs", "4", "3 PDOs, all fixed",
                 "Component 1: 'Num_Snk_PDOs' is 4, but its text says '3 PDOs, all fixed'");
}

TEST(TextAgainstValueTest, TakesOtherUnitsAndOtherNamesForTheSame) {
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "9 V");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Max_Current", "225", "2.25 A");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Max_Current", "225", " 2250.0 mA ");
  ExpectMatch(Component(1), "Connector_Type", "2", "type-c™");
  ExpectMatch(Component(1), "USB_VID_SOP", "59725", "0xe94d (own)");
  ExpectMatch(Component(1), "USB_VID_SOP", "5972", "5972");
}

TEST(TextAgainstValueTest, IsSilentAboutTextsOfAnotherKind) {
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "5 V to 9 V");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "12,000 mV");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "3 A");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "12");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "99999999999999999999999 mV");
  ExpectMatch(SrcPdo(1, 2), "Src_PDO_Voltage", "180", "0.0005 mV");
  ExpectMatch(Component(1), "PD_Port_Type", "4", "a port with both roles");
  ExpectMatch(Component(1), "Captive_Cable", "1", "");
  ExpectMatch(Component(1), "USB_VID_SOP", "59725", "Decade Ltd.");
  ExpectMatch(Component(1), "USB_VID_SOP", "59725", "ADD");  // a name, although all its letters are digits
  ExpectMatch(Component(1), "USB_VID_SOP", "59725", "FFFFFFFFFFFFFFFFF");
  ExpectMatch(Component(1), "Num_Snk_PDOs", "4", "3x");
  ExpectMatch(Component(1), "Num_Fixed_Batteries", "1", "2 cells in series");
  ExpectMatch(Component(1), "PD_Power_As_Sink", "65000", std::string(1'000'000, '1'));
}

TEST(TextAgainstValueTest, DoesNotKnowTheUnitWithoutASupplyType) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SnkPdo(1, 4), "Snk_PDO_Max_Voltage", "300", "30 V");
  EXPECT_EQ(tablet.FindingsOf(kCode).size(), 1U);
  tablet.Remove(SnkPdo(1, 4), "Snk_PDO_Supply_Type");
  EXPECT_THAT(tablet.FindingsOf(kCode), Are({}));
}

TEST(TextAgainstValueTest, TakesAShortNumberForARemark) {
  ExpectMatch(Component(1), "bcdDevice_SOP", "512", "2");
  ExpectMatch(Component(1), "bcdDevice_SOP", "0x0200", "A1");
  ExpectMismatch(Component(1), "bcdDevice_SOP", "0x0200", "0xA1",
                 "Component 1: 'bcdDevice_SOP' is 512 (0x0200), but its text says '0xA1'");
}

}  // namespace
}  // namespace vifanalysis
