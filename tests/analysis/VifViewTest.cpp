#include "rules/VifView.h"

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

FoundFields List(std::initializer_list<CVIFField> fields) {
  FoundFields list;
  for (const CVIFField& field : fields) list.push_back({field, list.size() + 1, 0, field.Name()});
  return list;
}

CVIFField Numeric(const char* name, const char* value, const Place& place) { return {true, name, value, place}; }

TEST(VifViewTest, HasComponentsAndPdosInTheOrderOfTheirNumbers) {
  const FoundFields fields =
      List({Numeric("Src_PDO_Voltage", "3", SrcPdo(2, 3)), Numeric("Src_PDO_Voltage", "1", SrcPdo(2, 1)),
            Numeric("A", "7", Component(1)), Numeric("Src_PDO_Voltage", "2", SrcPdo(2, 2))});
  const CVifView view(fields);
  ASSERT_EQ(view.Components().size(), 2U);
  EXPECT_EQ(view.Components()[0].Number("A"), 7U);
  const CComponentView& second = view.Components()[1];
  EXPECT_EQ(second.Index(), 2U);
  ASSERT_EQ(second.Pdos(PdoSide::Source).size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(second.Pdos(PdoSide::Source)[i].Index(), i + 1);
    EXPECT_EQ(second.Pdos(PdoSide::Source)[i].OwnNumber("Voltage"), i + 1);
  }
  EXPECT_TRUE(second.Pdos(PdoSide::Sink).empty());
  EXPECT_EQ(&second.File(), &view);
}

TEST(VifViewTest, LeavesOutGroupsWithoutANumber) {
  const FoundFields fields = List(
      {Numeric("Src_PDO_Voltage", "3", SrcPdo(1, CVIFField::INDEX_NOT_SPECIFIED)), Numeric("A", "1", Component(1))});
  const CVifView view(fields);
  ASSERT_EQ(view.Components().size(), 1U);
  EXPECT_TRUE(view.Components()[0].Pdos(PdoSide::Source).empty());
}

TEST(VifViewTest, HasGroupsOfGroups) {
  const FoundFields fields = List({Numeric("SVID_Mode_Enter_SOP", "1", SopSvidMode(1, 2, 3))});
  const CVifView view(fields);
  ASSERT_EQ(view.Components().size(), 1U);
  const auto svids = view.Components()[0].Groups(eVifLocSopSvid);
  ASSERT_EQ(svids.size(), 1U);
  EXPECT_EQ(svids[0].Index(), 2U);
  ASSERT_EQ(svids[0].Groups(eVifLocSopSvidMode).size(), 1U);
  EXPECT_TRUE(svids[0].Groups(eVifLocSopSvidMode)[0].IsYes("SVID_Mode_Enter_SOP"));
  EXPECT_EQ(view.Components()[0].FirstField(), &fields[0]);
}

TEST(VifViewTest, TellsAFieldThatIsNoFromOneThatIsMissing) {
  const FoundFields fields =
      List({Numeric("A", "NO", Component(1)), Numeric("B", "true", Component(1)), Numeric("C", "x", Component(1))});
  const CVifView view(fields);
  const CComponentView& component = view.Components().front();
  EXPECT_TRUE(component.IsNo("A"));
  EXPECT_FALSE(component.IsYes("A"));
  EXPECT_TRUE(component.IsYes("B"));
  EXPECT_FALSE(component.IsNo("C") || component.IsYes("C"));
  EXPECT_TRUE(component.Has("C"));
  EXPECT_EQ(component.Number("C"), std::nullopt);
  EXPECT_FALSE(component.IsNo("D") || component.IsYes("D") || component.Has("D"));
}

TEST(VifViewTest, TakesTheFirstOfSeveralFieldsOfOneName) {
  const FoundFields fields = List({Numeric("A", "1", Component(1)), Numeric("A", "2", Component(1))});
  const CVifView view(fields);
  EXPECT_EQ(view.Components().front().Number("A"), 1U);
}

TEST(VifViewTest, FindsHeaderFieldsInBothFormsOfAFile) {
  const CExample text("gan-charger-65w.txt");
  const CExample xml("gan-charger-65w.xml");
  const CVifView textView(text.Fields());
  const CVifView xmlView(xml.Fields());
  for (const CVifView* view : {&textView, &xmlView}) {
    EXPECT_EQ(view->GetEdition(), (Edition{3, 26}));
    ASSERT_NE(view->FindHeader("Vendor_Name"), nullptr);
    EXPECT_EQ(TextOf(*view->FindHeader("Vendor_Name")), "Quillmere Power Works");
    EXPECT_EQ(view->FindHeader("Port_Type"), nullptr);
  }
}

TEST(VifViewTest, IsEmptyForNoFields) {
  const FoundFields fields;
  const CVifView view(fields);
  EXPECT_TRUE(view.Components().empty());
  EXPECT_EQ(view.Product(), nullptr);
  EXPECT_EQ(view.FindHeader("A"), nullptr);
  EXPECT_EQ(view.GetEdition(), std::nullopt);
}

TEST(VifViewTest, KnowsTheQuantitiesOfAFixedPdo) {
  const CExample charger("gan-charger-65w.txt");
  const CVifView view(charger.Fields());
  const CPdoView& pdo = view.Components().front().Pdos(PdoSide::Source).at(3);
  EXPECT_EQ(pdo.GetSupply(), Supply::Fixed);
  EXPECT_EQ(pdo.Quantities().voltage, 20'000U);
  EXPECT_EQ(pdo.Quantities().current, 3'250U);
  EXPECT_EQ(pdo.Quantities().maxVoltage, std::nullopt);
  EXPECT_EQ(pdo.GreatestPower(), 65'000U);
  EXPECT_EQ(pdo.PowerStep(), 200U);
}

TEST(VifViewTest, KnowsTheQuantitiesOfAProgrammablePdo) {
  const CExample charger("gan-charger-65w.txt");
  const CVifView view(charger.Fields());
  const CPdoView& pdo = view.Components().front().Pdos(PdoSide::Source).at(5);
  EXPECT_EQ(pdo.GetSupply(), Supply::Programmable);
  EXPECT_TRUE(pdo.IsAugmented());
  EXPECT_EQ(pdo.Quantities().minVoltage, 3'300U);
  EXPECT_EQ(pdo.Quantities().maxVoltage, 21'000U);
  EXPECT_EQ(pdo.Quantities().current, 3'250U);
  EXPECT_EQ(pdo.HighestVoltage(), 21'000U);
}

TEST(VifViewTest, KnowsTheQuantitiesOfABatteryAndOfAnAdjustableSupply) {
  const FoundFields fields = List({
      Numeric("Snk_PDO_Supply_Type", "1", SnkPdo(1, 1)),
      Numeric("Snk_PDO_Max_Voltage", "400", SnkPdo(1, 1)),
      Numeric("Snk_PDO_Op_Power", "60", SnkPdo(1, 1)),
      Numeric("Src_PDO_Supply_Type", "3", SrcPdo(1, 1)),
      Numeric("Src_PDO_APDO_Type", "1", SrcPdo(1, 1)),
      Numeric("Src_PDO_Max_Voltage", "280", SrcPdo(1, 1)),
      Numeric("Src_PDO_PDP_Rating", "140", SrcPdo(1, 1)),
  });
  const CVifView view(fields);
  const CPdoView& battery = view.Components().front().Pdos(PdoSide::Sink).front();
  EXPECT_EQ(battery.GetSupply(), Supply::Battery);
  EXPECT_EQ(battery.GreatestPower(), 15'000U);
  EXPECT_EQ(battery.PowerStep(), 250U);
  EXPECT_EQ(battery.HighestVoltage(), 20'000U);
  const CPdoView& adjustable = view.Components().front().Pdos(PdoSide::Source).front();
  EXPECT_EQ(adjustable.GetSupply(), Supply::EprAdjustable);
  EXPECT_EQ(adjustable.GreatestPower(), 140'000U);
  EXPECT_EQ(adjustable.HighestVoltage(), 28'000U);
  EXPECT_EQ(&adjustable.PowerField(), &fields[6]);
}

TEST(VifViewTest, HasNoQuantitiesForUnknownSuppliesAndForAbsurdNumbers) {
  const FoundFields fields = List({
      Numeric("Src_PDO_Supply_Type", "4", SrcPdo(1, 1)),
      Numeric("Src_PDO_Voltage", "100", SrcPdo(1, 1)),
      Numeric("Src_PDO_Supply_Type", "0", SrcPdo(1, 2)),
      Numeric("Src_PDO_Voltage", "18446744073709551614", SrcPdo(1, 2)),
      Numeric("Src_PDO_Max_Current", "300", SrcPdo(1, 2)),
  });
  const CVifView view(fields);
  for (const CPdoView& pdo : view.Components().front().Pdos(PdoSide::Source)) {
    EXPECT_EQ(pdo.Quantities().voltage, std::nullopt);
    EXPECT_EQ(pdo.GreatestPower(), std::nullopt);
    EXPECT_EQ(pdo.PowerStep(), std::nullopt);
  }
}

}  // namespace
}  // namespace vifanalysis
