// Which ports of a file are compared, and in what.
#include "diff/Report.h"
#include "diff/Vif.h"

#include <VendorInfoFile.h>
#include <analysis/Differences.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <stdexcept>

namespace vifanalysis::difftest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Adds a port of a role with a value of its own.
void AddPort(Fields& fields, std::uint64_t number, std::uint64_t role, std::uint64_t value) {
  const GroupPlace place = Component(number);
  fields.push_back(XmlText(place, "Port_Label", "port " + std::to_string(number)));
  fields.push_back(Number(place, "PID_SOP", 1'000 + number));
  fields.push_back(Number(place, "PD_Port_Type", role));
  fields.push_back(Number(place, "Type_C_State_Machine", 2));
  fields.push_back(Number(place, "Connector_Type", 2));
  fields.push_back(Number(place, "Host_Speed", value));
}

std::vector<std::string> Pairs(const std::vector<PortComparison>& comparisons) {
  std::vector<std::string> pairs;
  for (const PortComparison& comparison : comparisons) {
    pairs.push_back(std::to_string(comparison.other) + "-" + std::to_string(comparison.component) + ": " +
                    std::to_string(comparison.differences.fields.size()));
  }
  return pairs;
}

TEST(ComparePorts, LeavesOutWhatIsAPortsOwn) {
  Fields fields;
  AddPort(fields, 1, 4, 1);
  AddPort(fields, 2, 4, 1);
  EXPECT_THAT(Pairs(ComparePorts(fields)), ElementsAre("1-2: 0"));
}

TEST(ComparePorts, ComparesPortsOfOneKind) {
  Fields fields;
  AddPort(fields, 1, 4, 1);
  AddPort(fields, 2, 3, 1);
  AddPort(fields, 3, 4, 2);
  const std::vector<PortComparison> comparisons = ComparePorts(fields);
  EXPECT_THAT(Pairs(comparisons), ElementsAre("1-3: 1"));
  EXPECT_THAT(FieldReport(comparisons.at(0).differences), ElementsAre("Component 3: Host_Speed 1 > 2"));
}

TEST(ComparePorts, ChoosesTheEarlierOneThatIsMostAlike) {
  Fields fields;
  AddPort(fields, 1, 4, 1);
  AddPort(fields, 2, 4, 2);
  AddPort(fields, 3, 4, 2);
  EXPECT_THAT(Pairs(ComparePorts(fields)), ElementsAre("1-2: 1", "2-3: 0"));
}

TEST(ComparePorts, SkipsPortsWhoseKindIsNotKnown) {
  Fields fields;
  AddPort(fields, 1, 4, 1);
  fields.push_back(Number(Component(2), "PD_Port_Type", 4));
  EXPECT_THAT(ComparePorts(fields), IsEmpty());
  EXPECT_THAT(ComparePorts({}), IsEmpty());
}

TEST(ComparePorts, ComparesTwoThatAreChosenWhateverTheirKind) {
  Fields fields;
  AddPort(fields, 1, 4, 1);
  AddPort(fields, 2, 3, 1);
  const PortComparison comparison = ComparePorts(fields, 2, 1);
  EXPECT_EQ(comparison.other, 2U);
  EXPECT_EQ(comparison.component, 1U);
  EXPECT_THAT(FieldReport(comparison.differences), ElementsAre("Component 1: PD_Port_Type 3 > 4"));
}

TEST(ComparePorts, NeedsBothComponents) {
  Fields fields;
  AddPort(fields, 1, 4, 1);
  try {
    ComparePorts(fields, 1, 7);
    FAIL() << "nothing thrown";
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "there is no component 7");
  }
}

TEST(ComparePorts, ComparesWithTheFirstEightAndTheLastThatDiffer) {
  Fields fields;
  for (std::uint64_t number = 1; number <= 11; ++number) AddPort(fields, number, 4, number);
  AddPort(fields, 12, 4, 10);
  AddPort(fields, 13, 4, 11);
  AddPort(fields, 14, 4, 8);
  const std::vector<PortComparison> comparisons = ComparePorts(fields);
  ASSERT_THAT(comparisons, SizeIs(13));
  const auto other = [&](std::size_t component) { return comparisons[component - 2].other; };
  EXPECT_EQ(comparisons[12 - 2].differences.fields.size(), 1U) << "10 is neither among the first nor the last";
  EXPECT_EQ(comparisons[13 - 2].differences.fields.size(), 1U) << "12 has come after 11";
  EXPECT_EQ(other(14), 8U);
  EXPECT_TRUE(comparisons[14 - 2].differences.IsEmpty());
}

}  // namespace

}  // namespace vifanalysis::difftest
