// Which fields differ, and which mean the same.
#include "diff/Report.h"
#include "diff/Vif.h"

#include <VendorInfoFile.h>
#include <analysis/Differences.h>

#include <gmock/gmock.h>

#include <filesystem>

namespace vifanalysis::difftest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Report(const Fields& before, const Fields& after, const CompareOptions& options = {}) {
  return FieldReport(Compare(before, after, options));
}

TEST(Compare, NothingDiffersFromItself) {
  for (const auto& entry : std::filesystem::directory_iterator(VIF_EXAMPLES)) {
    const CVendorInfoFile vif(entry.path());
    EXPECT_TRUE(Compare(vif.Fields(), vif.Fields(), {true}).IsEmpty()) << entry.path();
  }
  EXPECT_TRUE(Compare({}, {}).IsEmpty());
}

TEST(Compare, NumbersAreComparedByNumber) {
  const GroupPlace place = Component(1);
  EXPECT_THAT(Report({Number(place, "PID_SOP", "0x64")}, {Number(place, "PID_SOP", "100")}), IsEmpty());
  EXPECT_THAT(Report({Number(place, "PID_SOP", "0x0064")}, {Number(place, "PID_SOP", "0X64")}), IsEmpty());
  EXPECT_THAT(Report({Number(place, "USB4_Supported", "YES")}, {Number(place, "USB4_Supported", "1")}), IsEmpty());
  EXPECT_THAT(Report({Number(place, "USB4_Supported", "no")}, {Number(place, "USB4_Supported", "FALSE")}), IsEmpty());
  EXPECT_THAT(Report({Number(place, "PID_SOP", "100")}, {Number(place, "PID_SOP", "0x100")}),
              ElementsAre("Component 1: PID_SOP 100 > 256"));
}

TEST(Compare, WhatFollowsANumberCounts) {
  const GroupPlace place = Component(1);
  EXPECT_THAT(Report({Number(place, "Unknown", "12 V")}, {Number(place, "Unknown", "12 mV")}),
              ElementsAre("Component 1: Unknown 12 V > 12 mV"));
}

TEST(Compare, NumbersBeyond64BitsAreComparedAsTexts) {
  const GroupPlace place = Component(1);
  EXPECT_THAT(
      Report({Number(place, "PID_SOP", "18446744073709551616")}, {Number(place, "PID_SOP", "18446744073709551617")}),
      testing::SizeIs(1));
}

TEST(Compare, TheGreatestNumberIsComparedByNumberThoughItIsReserved) {
  const GroupPlace place = Component(1);
  EXPECT_THAT(Report({Number(place, "Odd", "18446744073709551615")}, {Number(place, "Odd", "0xFFFFffffFFFFffff")}),
              IsEmpty());
  EXPECT_THAT(Report({Number(place, "Odd", "0x0FFFFFFFFFFFFFFFF")}, {Number(place, "Odd", "18446744073709551615")}),
              IsEmpty());
  EXPECT_THAT(Report({Number(place, "Odd", "0xFFFFFFFFFFFFFFFF")}, {Number(place, "Odd", "0xFFFFFFFFFFFFFFFE")}),
              testing::SizeIs(1));
}

TEST(Compare, AQuotedNumberIsNotANumber) {
  const GroupPlace place = Component(1);
  const Differences differences =
      Compare(Fields{Number(place, "PID_SOP", "100")}, Fields{CVIFField(false, "PID_SOP", "100", "", place)});
  ASSERT_EQ(differences.fields.size(), 1U);
  EXPECT_EQ(differences.fields[0].before->number, 100U);
  EXPECT_FALSE(differences.fields[0].after->number);
}

TEST(Compare, ATextFieldIsATextWithQuotesOrWithout) {
  EXPECT_THAT(Report({Text("TID", "00123")}, {Number(Nowhere(), "TID", "00123")}), IsEmpty());
  EXPECT_THAT(Report({Text("TID", "00123")}, {Number(Nowhere(), "TID", "123")}), testing::SizeIs(1));
}

TEST(Compare, TextsOfATextFileStandWhereTheXmlFormHasThem) {
  EXPECT_THAT(Report({Text("Vendor_Name", "A")}, {XmlText(At({eVifLocVif, 0}), "Vendor_Name", "A")}), IsEmpty());
  EXPECT_THAT(Report({Text("Port_Label", "C1")}, {XmlText(Component(1), "Port_Label", "C1")}), IsEmpty());
  EXPECT_THAT(Report({Text("Port_Label", "C1")}, {XmlText(Component(1), "Port_Label", "C2")}),
              ElementsAre("Component 1: Port_Label C1 > C2"));
}

TEST(Compare, TheEditionIsTheSameWithTheWordOfTheXmlForm) {
  const CVIFField xml(false, "VIF_Specification", "Version 3.26", "Version 3.26", At({eVifLocVif, 0}));
  EXPECT_THAT(Report({Text("VIF_Specification", "3.26")}, {xml}), IsEmpty());
  EXPECT_THAT(Report({Text("VIF_Specification", "3.25")}, {xml}), ElementsAre(": VIF_Specification 3.25 > 3.26"));
}

TEST(Compare, TheProducerCountsOnlyBetweenFilesOfOneForm) {
  const CVIFField xml(false, "VIF_Producer", "Maker 1.0", "Maker 1.0", At({eVifLocVif, 0}));
  EXPECT_THAT(Report({Text("VIF_Producer", "Maker, 1.0")}, {xml}), IsEmpty());
  EXPECT_THAT(Report({Text("VIF_Producer", "Maker 1")}, {Text("VIF_Producer", "Maker 2")}), testing::SizeIs(1));
}

TEST(Compare, OlderSpellingsAreTheNewerOnes) {
  EXPECT_THAT(
      Report({Number(Component(1), "Externally_Powered", "1")}, {Number(Component(1), "Unconstrained_Power", "1")}),
      IsEmpty());
  EXPECT_THAT(Report({Number(Nowhere(), "UUT_Device_Type", "3")}, {Number(Component(1), "PD_Port_Type", "4")}),
              ElementsAre("Component 1: PD_Port_Type 3 > 4"));
}

TEST(Compare, AnOlderFieldThatBecameTwoIsNeither) {
  EXPECT_THAT(
      Report({Number(Component(1), "Responds_To_Discov_SOP", "1")},
             {Number(Component(1), "Responds_To_Discov_SOP_UFP", "1")}),
      ElementsAre("Component 1: Responds_To_Discov_SOP 1 > -", "Component 1: Responds_To_Discov_SOP_UFP - > 1"));
}

TEST(Compare, TheOrderOfFieldsDoesNotCount) {
  const Fields fields = {Number(Component(1), "A", 1), Number(Component(1), "B", 2), Number(Component(2), "A", 3)};
  EXPECT_THAT(Report(fields, {fields.rbegin(), fields.rend()}), IsEmpty());
}

TEST(Compare, FieldsOfOneNameAreComparedInTheirOrder) {
  const auto list = [](std::initializer_list<std::uint64_t> values) {
    Fields fields;
    for (const std::uint64_t value : values) fields.push_back(Number(Component(1), "A", value));
    return fields;
  };
  EXPECT_THAT(Report(list({1, 2, 3}), list({1, 2, 3})), IsEmpty());
  EXPECT_THAT(Report(list({1, 2, 3}), list({1, 4, 3})), ElementsAre("Component 1: A 2 > 4"));
  EXPECT_THAT(Report(list({1, 2, 3}), list({0, 1, 2, 3})), ElementsAre("Component 1: A - > 0"));
  EXPECT_THAT(Report(list({1, 2, 3}), list({1, 3})), ElementsAre("Component 1: A 2 > -"));
  EXPECT_THAT(Report(list({1, 2}), list({2, 1})), ElementsAre("Component 1: A 1 > 2", "Component 1: A 2 > 1"));
}

TEST(Compare, DescriptionsCountOnlyWhenAskedFor) {
  const Fields before = {CVIFField(true, "PD_Port_Type", "3", "Provider", Component(1))};
  const Fields after = {CVIFField(true, "PD_Port_Type", "3", "Source", Component(1))};
  EXPECT_THAT(Report(before, after), IsEmpty());
  EXPECT_THAT(Report(before, after, {true}), testing::SizeIs(1));
}

TEST(Compare, ADescriptionThatRepeatsTheValueIsNone) {
  const Fields before = {CVIFField(true, "Num_Src_PDOs", "3", "3", Component(1))};
  EXPECT_THAT(Report(before, {Number(Component(1), "Num_Src_PDOs", "3")}, {true}), IsEmpty());
  EXPECT_THAT(Report({Text("Port_Label", "C1")}, {XmlText(Component(1), "Port_Label", "C1")}, {true}), IsEmpty());
}

TEST(Compare, GivesTheFieldsAsTheyWereDeclared) {
  const Fields before = {Number(Component(1), "A", 1), Text("Port_Label", "C1")};
  const Fields after = {XmlText(Component(1), "Port_Label", "C2"), Number(Component(1), "A", 1)};
  const Differences differences = Compare(before, after);
  ASSERT_EQ(differences.fields.size(), 1U);
  const Difference& difference = differences.fields[0];
  EXPECT_EQ(difference.kind, DifferenceKind::Changed);
  EXPECT_EQ(difference.name, "Port_Label");
  EXPECT_EQ(difference.place, Component(1));
  EXPECT_EQ(difference.before->name, "$Port_Label");
  EXPECT_EQ(difference.before->indexes, Nowhere());
  EXPECT_EQ(difference.before->place, Component(1));
  EXPECT_EQ(difference.before->value, "C1");
  EXPECT_EQ(difference.before->position, 1U);
  EXPECT_EQ(difference.after->name, "Port_Label");
  EXPECT_EQ(difference.after->description, "C2");
  EXPECT_EQ(difference.after->position, 0U);
}

std::string MeaningOfVoltage(std::uint64_t supplyType) {
  const Fields after = {Number(SrcPdo(1), "Src_PDO_Supply_Type", supplyType), Number(SrcPdo(1), "Src_PDO_APDO_Type", 0),
                        Number(SrcPdo(1), "Src_PDO_Max_Voltage", 110)};
  Fields before = after;
  before.back() = Number(SrcPdo(1), "Src_PDO_Max_Voltage", 111);
  return Compare(before, after).fields.at(0).after->meaning;
}

TEST(Compare, GivesNumbersInTheUnitsOfTheirSupply) {
  EXPECT_EQ(MeaningOfVoltage(2), "5.5 V");
  EXPECT_EQ(MeaningOfVoltage(3), "11 V");
  EXPECT_EQ(MeaningOfVoltage(9), "");
}

TEST(Compare, GivesTheTextsOfChoices) {
  const Differences differences =
      Compare(Fields{Number(Component(1), "PD_Port_Type", 3)}, Fields{Number(Component(1), "PD_Port_Type", 4)});
  ASSERT_EQ(differences.fields.size(), 1U);
  EXPECT_EQ(differences.fields[0].before->meaning, "Provider Only");
  EXPECT_EQ(differences.fields[0].after->meaning, "DRP");
}

}  // namespace

}  // namespace vifanalysis::difftest
