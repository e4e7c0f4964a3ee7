// Which groups correspond to each other.
#include "diff/Report.h"
#include "diff/Vif.h"

#include <analysis/Differences.h>

#include <gmock/gmock.h>

#include <algorithm>

namespace vifanalysis::difftest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Alignment, OneMorePdoIsOneAddition) {
  const Differences differences = Compare(Pdos({100, 180, 300, 400}), Pdos({100, 180, 240, 300, 400}));
  EXPECT_THAT(GroupReport(differences),
              ElementsAre("+ Component 1, Source PDO 3", "Component 1, Source PDO 3 > Component 1, Source PDO 4",
                          "Component 1, Source PDO 4 > Component 1, Source PDO 5"));
  EXPECT_THAT(FieldReport(differences), IsEmpty());
  EXPECT_EQ(differences.groups[0].summary, "Fixed, 12 V, 3 A, 36 W");
  EXPECT_EQ(differences.groups[0].fieldCount, 4U);
  EXPECT_EQ(differences.fields.size(), 4U);
  for (const Difference& difference : differences.fields) EXPECT_EQ(difference.group, 0U);
}

TEST(Alignment, OnePdoLessIsOneRemoval) {
  const Differences differences = Compare(Pdos({100, 180, 300}), Pdos({180, 300}));
  EXPECT_THAT(GroupReport(differences),
              ElementsAre("- Component 1, Source PDO 1", "Component 1, Source PDO 2 > Component 1, Source PDO 1",
                          "Component 1, Source PDO 3 > Component 1, Source PDO 2"));
}

TEST(Alignment, APdoPutBeforeOneThatChangedIsStillOneAddition) {
  Fields after = Pdos({100, 180, 240, 300});
  after.back() = Number(SrcPdo(4), "Src_PDO_Max_Current", 250);
  const Differences differences = Compare(Pdos({100, 180, 300}), after);
  EXPECT_THAT(GroupReport(differences),
              ElementsAre("+ Component 1, Source PDO 3", "Component 1, Source PDO 3 > Component 1, Source PDO 4"));
  EXPECT_THAT(FieldReport(differences), ElementsAre("Component 1, Source PDO 4: Src_PDO_Max_Current 300 > 250"));
}

TEST(Alignment, AnotherVoltageIsAChange) {
  const Differences differences = Compare(Pdos({100, 180, 300}), Pdos({100, 240, 300}));
  EXPECT_THAT(GroupReport(differences), IsEmpty());
  EXPECT_THAT(FieldReport(differences), ElementsAre("Component 1, Source PDO 2: Src_PDO_Voltage 180 > 240"));
}

TEST(Alignment, APdoWithOneFieldIsAChangeToo) {
  const Differences differences =
      Compare(Fields{Number(SrcPdo(1), "Src_PDO_Voltage", 100)}, Fields{Number(SrcPdo(1), "Src_PDO_Voltage", 180)});
  EXPECT_THAT(GroupReport(differences), IsEmpty());
  EXPECT_THAT(FieldReport(differences), ElementsAre("Component 1, Source PDO 1: Src_PDO_Voltage 100 > 180"));
}

TEST(Alignment, WhatHasMovedIsSaidToHaveMoved) {
  const Differences differences = Compare(Pdos({100, 180, 300, 400}), Pdos({100, 400, 180, 300}));
  EXPECT_THAT(GroupReport(differences), ElementsAre("moved Component 1, Source PDO 4 > Component 1, Source PDO 2",
                                                    "Component 1, Source PDO 2 > Component 1, Source PDO 3",
                                                    "Component 1, Source PDO 3 > Component 1, Source PDO 4"));
  EXPECT_THAT(differences.fields, IsEmpty());
  EXPECT_FALSE(differences.IsEmpty());
}

TEST(Alignment, OfTwoNeighboursThatChangedPlacesOneHasMovedPastTheOther) {
  const Differences differences = Compare(Pdos({100, 180, 300, 400}), Pdos({100, 300, 180, 400}));
  EXPECT_THAT(differences.fields, IsEmpty());
  EXPECT_THAT(GroupReport(differences),
              testing::AnyOf(ElementsAre("moved Component 1, Source PDO 3 > Component 1, Source PDO 2",
                                         "Component 1, Source PDO 2 > Component 1, Source PDO 3"),
                             ElementsAre("Component 1, Source PDO 3 > Component 1, Source PDO 2",
                                         "moved Component 1, Source PDO 2 > Component 1, Source PDO 3")));
}

TEST(Alignment, TwoThatChangedPlacesAcrossOthersHaveMoved) {
  const Differences differences = Compare(Pdos({100, 180, 300, 400}), Pdos({100, 400, 300, 180}));
  EXPECT_THAT(differences.fields, IsEmpty());
  EXPECT_THAT(GroupReport(differences), ElementsAre("moved Component 1, Source PDO 4 > Component 1, Source PDO 2",
                                                    "moved Component 1, Source PDO 2 > Component 1, Source PDO 4"));
}

TEST(Alignment, TheFirstAndTheLastThatChangedPlacesHaveMoved) {
  const Differences differences = Compare(Pdos({100, 180, 300}), Pdos({300, 180, 100}));
  EXPECT_THAT(differences.fields, IsEmpty());
  EXPECT_THAT(GroupReport(differences), ElementsAre("moved Component 1, Source PDO 3 > Component 1, Source PDO 1",
                                                    "moved Component 1, Source PDO 1 > Component 1, Source PDO 3"));
}

TEST(Alignment, WhatIsEqualInBothIsNotTakenForAChange) {
  Fields after = Pdos({100, 400, 300, 180});
  after[11] = Number(SrcPdo(3), "Src_PDO_Max_Current", 250);
  const Differences differences = Compare(Pdos({100, 180, 300, 400}), after);
  EXPECT_THAT(FieldReport(differences), ElementsAre("Component 1, Source PDO 3: Src_PDO_Max_Current 300 > 250"));
  EXPECT_THAT(GroupReport(differences), SizeIs(2));
}

/// A programmable PDO, which declares more than a fixed one, so that it is worth more to pair.
void AddProgrammable(Fields& fields, const GroupPlace& place) {
  fields.push_back(Number(place, "Src_PDO_Supply_Type", 3));
  fields.push_back(Number(place, "Src_PDO_APDO_Type", 0));
  for (const char* name : {"Src_PDO_Min_Voltage", "Src_PDO_Max_Voltage", "Src_PDO_Max_Current"}) {
    fields.push_back(Number(place, name, 33));
  }
}

TEST(Alignment, WhatHasItsOldNumberHasNotMoved) {
  Fields before = Pdos({100, 180});
  AddProgrammable(before, SrcPdo(3));
  Fields after;
  AddProgrammable(after, SrcPdo(1));
  AddPdo(after, SrcPdo(2), 180);
  AddPdo(after, SrcPdo(3), 100);
  const Differences differences = Compare(before, after);
  EXPECT_THAT(differences.fields, IsEmpty());
  EXPECT_THAT(GroupReport(differences), testing::Each(testing::Not(testing::HasSubstr("PDO 2"))));
  EXPECT_THAT(GroupReport(differences), SizeIs(2));
}

TEST(Alignment, WhatAFileHasOnceIsComparedFieldByField) {
  const GroupPlace router = At({eVifLocProduct, 0}, {eVifLocRouter, 0});
  const Fields before = {Number(Component(1), "PID_SOP", 1)};
  Fields after = before;
  after.push_back(Text("Vendor_Name", "A"));
  after.push_back(Text("Model_Part_Number", "X"));
  after.push_back(Number(At({eVifLocProduct, 0}), "Product_Total_Source_Power_mW", 9));
  after.push_back(Number(router, "USB4_Router_ID", 1));
  const Differences added = Compare(before, after);
  EXPECT_THAT(FieldReport(added),
              ElementsAre(": Model_Part_Number - > X", ": Vendor_Name - > A", ": Product_Total_Source_Power_mW - > 9"));
  EXPECT_THAT(GroupReport(added), ElementsAre("+ Router 0"));
  const Differences removed = Compare(after, before);
  EXPECT_THAT(FieldReport(removed),
              ElementsAre(": Model_Part_Number X > -", ": Vendor_Name A > -", ": Product_Total_Source_Power_mW 9 > -"));
  EXPECT_THAT(GroupReport(removed), ElementsAre("- Router 0"));
  EXPECT_EQ(removed.fields.front().place, At({eVifLocVif, 0}));
}

TEST(Alignment, FieldsOfARemovedGroupStandWhereItWouldBe) {
  const auto port = [](std::uint64_t number, const std::string& label, const std::vector<std::uint64_t>& voltages) {
    Fields fields = {XmlText(Component(number), "Port_Label", label), Number(Component(number), "PID_SOP", 5)};
    for (std::size_t i = 0; i < voltages.size(); ++i) AddPdo(fields, SrcPdo(i + 1, number), voltages[i]);
    return fields;
  };
  Fields after = port(1, "new", {70});
  const Fields second = port(2, "old", {100});
  after.insert(after.end(), second.begin(), second.end());
  const Differences differences = Compare(port(1, "old", {100, 180}), after);
  ASSERT_FALSE(differences.fields.empty());
  const Difference& removed = differences.fields.back();
  ASSERT_EQ(removed.kind, DifferenceKind::Removed);
  EXPECT_EQ(removed.place, SrcPdo(2, 2));
  EXPECT_EQ(removed.before->place, SrcPdo(2, 1));
}

TEST(Alignment, TheSummaryLeavesOutWhatIsNotKnown) {
  const Fields component = {Number(Component(1), "PID_SOP", 1)};
  const auto summary = [&](const Fields& pdo) {
    Fields after = component;
    after.insert(after.end(), pdo.begin(), pdo.end());
    return Compare(component, after).groups.at(0).summary;
  };
  EXPECT_EQ(summary({Number(SrcPdo(1), "Src_PDO_Voltage", 180)}), "");
  EXPECT_EQ(summary({Number(SrcPdo(1), "Src_PDO_Supply_Type", "0"), Number(SrcPdo(1), "Src_PDO_Voltage", "x")}),
            "Fixed");
}

TEST(Alignment, WhatHasMovedMayHaveChanged) {
  Fields after = Pdos({100, 400, 180, 300});
  after[7] = Number(SrcPdo(2), "Src_PDO_Max_Current", 325);
  const Differences differences = Compare(Pdos({100, 180, 300, 400}), after);
  EXPECT_THAT(GroupReport(differences),
              testing::Contains("moved Component 1, Source PDO 4 > Component 1, Source PDO 2"));
  EXPECT_THAT(FieldReport(differences), ElementsAre("Component 1, Source PDO 2: Src_PDO_Max_Current 300 > 325"));
}

TEST(Alignment, OtherNumbersAreReported) {
  Fields before;
  AddPdo(before, SrcPdo(2), 100);
  EXPECT_THAT(GroupReport(Compare(before, Pdos({100}))),
              ElementsAre("Component 1, Source PDO 2 > Component 1, Source PDO 1"));
}

TEST(Alignment, SvidsAreAlignedWithTheirModes) {
  const auto svid = [](std::uint64_t number, std::uint64_t id, const std::vector<std::uint64_t>& modes) {
    const VifIndex component = {eVifLocComponent, 1};
    Fields fields = {Number(At(component, {eVifLocSopSvid, number}), "SVID_SOP", id)};
    for (std::size_t i = 0; i < modes.size(); ++i) {
      const GroupPlace mode = At(component, {eVifLocSopSvid, number}, {eVifLocSopSvidMode, i + 1});
      fields.push_back(Number(mode, "SVID_Mode_Enter_SOP", 1));
      fields.push_back(Number(mode, "SVID_Mode_Recog_Value_SOP", modes[i]));
    }
    return fields;
  };
  Fields after = svid(1, 0x8087, {1});
  const Fields second = svid(2, 0xFF01, {3, 4, 5});
  after.insert(after.end(), second.begin(), second.end());
  const Differences differences = Compare(svid(1, 0xFF01, {3, 5}), after);
  EXPECT_THAT(GroupReport(differences),
              ElementsAre("+ Component 1, SOP SVID 1", "Component 1, SOP SVID 1 > Component 1, SOP SVID 2",
                          "+ Component 1, SOP SVID 2, Mode 2",
                          "Component 1, SOP SVID 1, Mode 2 > Component 1, SOP SVID 2, Mode 3"));
  EXPECT_EQ(differences.groups[0].summary, "0x8087");
}

TEST(Alignment, ComponentsAreAligned) {
  const auto port = [](std::uint64_t number, const std::string& label) {
    Fields fields = {XmlText(Component(number), "Port_Label", label), Number(Component(number), "Connector_Type", 2)};
    AddPdo(fields, SrcPdo(1, number), 100);
    return fields;
  };
  Fields after = port(1, "front");
  const Fields second = port(2, "back");
  after.insert(after.end(), second.begin(), second.end());
  EXPECT_THAT(GroupReport(Compare(port(1, "back"), after)), ElementsAre("+ Component 1", "Component 1 > Component 2"));
}

TEST(Alignment, TheOnlyComponentOfEachCorrespondsWhateverIsInIt) {
  const Differences differences = Compare(Fields{Number(Component(1), "A", 1)}, Fields{Number(Component(1), "B", 2)});
  EXPECT_THAT(GroupReport(differences), IsEmpty());
  EXPECT_THAT(FieldReport(differences), ElementsAre("Component 1: A 1 > -", "Component 1: B - > 2"));
}

TEST(Alignment, RoutersAndEndpointsAreAligned) {
  const VifIndex product = {eVifLocProduct, 0};
  const auto endpoint = [&](std::uint64_t router, std::uint64_t number, std::uint64_t device) {
    const GroupPlace place = At(product, {eVifLocRouter, router}, {eVifLocRouterPcie, number});
    return Fields{Number(place, "USB4_PCIe_Endpoint_Vendor_ID", 0x8086),
                  Number(place, "USB4_PCIe_Endpoint_Device_ID", device)};
  };
  Fields before = endpoint(0, 1, 7);
  Fields after = endpoint(0, 1, 6);
  const Fields second = endpoint(0, 2, 7);
  after.insert(after.end(), second.begin(), second.end());
  EXPECT_THAT(GroupReport(Compare(before, after)),
              ElementsAre("+ Router 0, PCIe Endpoint 1", "Router 0, PCIe Endpoint 1 > Router 0, PCIe Endpoint 2"));
}

TEST(Alignment, AGroupWithoutANumberCorrespondsToOneWithout) {
  const GroupPlace place = At({eVifLocComponent, 1}, {eVifLocSrcPdo, CVIFField::INDEX_NOT_SPECIFIED});
  Fields before = Pdos({100});
  before.push_back(Number(place, "Src_PDO_Voltage", 180));
  Fields after = Pdos({100});
  after.push_back(Number(place, "Src_PDO_Voltage", 240));
  EXPECT_THAT(FieldReport(Compare(before, after)), ElementsAre("Component 1, Source PDO ?: Src_PDO_Voltage 180 > 240"));
}

/// Lists that are too long to compare each group with each. How long that takes is measured by the benchmark.
class LongLists : public testing::Test {
 protected:
  static constexpr std::size_t kCount = 10'000;

  static std::vector<std::uint64_t> Voltages(std::uint64_t from) {
    std::vector<std::uint64_t> voltages;
    for (std::size_t i = 0; i < kCount; ++i) voltages.push_back(from + i);
    return voltages;
  }
};

TEST_F(LongLists, OneMoreIsOneAddition) {
  std::vector<std::uint64_t> voltages = Voltages(0);
  const Fields before = Pdos(voltages);
  voltages.insert(voltages.begin() + 5'000, 77'777);
  const Differences differences = Compare(before, Pdos(voltages));
  EXPECT_THAT(FieldReport(differences), IsEmpty());
  EXPECT_EQ(differences.groups.front().kind, GroupChangeKind::Added);
  EXPECT_EQ(differences.groups.size(), 1U + 5'000U);
}

TEST_F(LongLists, OneMoreAmongAllThatChanged) {
  std::vector<std::uint64_t> voltages = Voltages(0);
  const Fields before = Pdos(voltages);
  voltages.insert(voltages.begin() + 5'000, 77'777);
  Fields after;
  for (std::size_t i = 0; i < voltages.size(); ++i) AddPdo(after, SrcPdo(i + 1), voltages[i], 250);
  const Differences differences = Compare(before, after);
  EXPECT_EQ(FieldReport(differences).size(), kCount);
  EXPECT_EQ(differences.groups.front().kind, GroupChangeKind::Added);
  EXPECT_EQ(differences.groups.size(), 1U + 5'000U);
}

TEST_F(LongLists, AllDifferent) {
  const Differences differences = Compare(Pdos(Voltages(0)), Pdos(Voltages(kCount)));
  EXPECT_EQ(FieldReport(differences).size(), kCount);
}

TEST_F(LongLists, Reversed) {
  std::vector<std::uint64_t> voltages = Voltages(0);
  const Fields before = Pdos(voltages);
  std::reverse(voltages.begin(), voltages.end());
  const Differences differences = Compare(before, Pdos(voltages));
  EXPECT_THAT(differences.fields, IsEmpty());
}

TEST_F(LongLists, FewKindsOverAndOver) {
  std::vector<std::uint64_t> before;
  std::vector<std::uint64_t> after;
  for (std::size_t i = 0; i < kCount; ++i) {
    before.push_back(100 + i * i % 7);
    after.push_back(100 + i * i % 5);
  }
  const Differences differences = Compare(Pdos(before), Pdos(after));
  // Of the voltages 100 to 104, those are in both lists for as often as they are in the list with fewer of them.
  std::size_t common = 0;
  for (std::uint64_t voltage = 100; voltage < 105; ++voltage) {
    common += static_cast<std::size_t>(
        std::min(std::count(before.begin(), before.end(), voltage), std::count(after.begin(), after.end(), voltage)));
  }
  std::size_t withoutCounterpart = 0;
  for (const GroupChange& change : differences.groups) {
    if (change.kind == GroupChangeKind::Added) ++withoutCounterpart;
  }
  EXPECT_EQ(FieldReport(differences).size() + withoutCounterpart, kCount - common);
}

}  // namespace

}  // namespace vifanalysis::difftest
