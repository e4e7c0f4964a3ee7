// Which findings only one of two files has.
#include "diff/Vif.h"
#include "files/Sentence.h"

#include <analysis/Differences.h>

#include <gmock/gmock.h>

namespace vifanalysis::difftest {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

Finding Make(std::size_t line, const std::string& element, const std::string& message = "m") {
  return {Severity::Error, "code", line, 0, element, message};
}

TEST(CompareFindings, LinesMove) {
  const FindingChanges changes = CompareFindings({Make(3, "A")}, {Make(7, "A")});
  EXPECT_THAT(changes.fixed, IsEmpty());
  EXPECT_THAT(changes.added, IsEmpty());
}

Finding Duplicate(const std::string& message) { return {Severity::Error, "declared-twice", 9, 0, "A", message}; }

TEST(CompareFindings, LinesInTheMessageMoveToo) {
  const FindingChanges changes = CompareFindings({Duplicate("'A' is already declared on line 4, so it fails")},
                                                 {Duplicate("'A' is already declared on line 12, so it fails")});
  EXPECT_THAT(changes.fixed, IsEmpty());
  EXPECT_THAT(changes.added, IsEmpty());
}

TEST(CompareFindings, OnlyTheRuleThatNamesALineHasItLeftOut) {
  EXPECT_THAT(CompareFindings({Make(1, "A", "is 'x on line 4'")}, {Make(1, "A", "is 'x on line 5'")}).added, SizeIs(1));
  EXPECT_EQ(StableMessage("declared-twice", "'a on line 3' is already declared on line 4, so"),
            "'a on line 3' is already declared, so");
  EXPECT_EQ(StableMessage("declared-twice", "'A' is already declared, so"), "'A' is already declared, so");
  EXPECT_EQ(StableMessage("code", "A on line 3"), "A on line 3");
}

/// The findings with these messages that only one of the files has, as "-" or "+" and the message.
std::vector<std::string> Changed(const Fields& before, const std::vector<std::string>& messagesBefore,
                                 const Fields& after, const std::vector<std::string>& messagesAfter) {
  std::vector<Finding> findingsBefore;
  std::vector<Finding> findingsAfter;
  for (const std::string& message : messagesBefore) findingsBefore.push_back(Make(1, "A", message));
  for (const std::string& message : messagesAfter) findingsAfter.push_back(Make(2, "A", message));
  std::vector<std::string> changed;
  const FindingChanges changes = CompareFindings(findingsBefore, findingsAfter, Compare(before, after));
  for (const Finding& finding : changes.fixed) changed.push_back("-" + finding.message);
  for (const Finding& finding : changes.added) changed.push_back("+" + finding.message);
  return changed;
}

TEST(CompareFindings, FollowAPdoThatWasRenumbered) {
  EXPECT_THAT(Changed(Pdos({100, 300}), {"Component 1, Source PDO 2: m", "'A' (Component 1 \u00B7 SrcPdo 2) n"},
                      Pdos({100, 180, 300}), {"Component 1, Source PDO 3: m", "'A' (Component 1 \u00B7 SrcPdo 3) n"}),
              IsEmpty());
}

TEST(CompareFindings, StayWithTheirPdoIfAnotherHasItsNumberNow) {
  EXPECT_THAT(Changed(Pdos({100, 300}), {"Component 1, Source PDO 2: m"}, Pdos({100, 180, 300}),
                      {"Component 1, Source PDO 2: m"}),
              ElementsAre("-Component 1, Source PDO 2: m", "+Component 1, Source PDO 2: m"));
}

TEST(CompareFindings, OfARemovedPdoAreFixed) {
  EXPECT_THAT(Changed(Pdos({100, 180, 300}), {"Component 1, Source PDO 2: m", "Component 1, Source PDO 3: m"},
                      Pdos({100, 300}), {"Component 1, Source PDO 2: m"}),
              ElementsAre("-Component 1, Source PDO 2: m"));
}

TEST(CompareFindings, FollowPdosThatChangedPlaces) {
  EXPECT_THAT(Changed(Pdos({100, 180, 300, 400}), {"Component 1, Source PDO 2: a", "Component 1, Source PDO 4: b"},
                      Pdos({100, 400, 300, 180}), {"Component 1, Source PDO 4: a", "Component 1, Source PDO 2: b"}),
              IsEmpty());
}

TEST(CompareFindings, NumbersOfSeveralDigitsAreWholeNumbers) {
  std::vector<std::uint64_t> voltages;
  for (std::uint64_t i = 0; i < 12; ++i) voltages.push_back(100 + 10 * i);
  const Fields before = Pdos(voltages);
  voltages.erase(voltages.begin());
  EXPECT_THAT(Changed(before, {"Component 1, Source PDO 12: m"}, Pdos(voltages), {"Component 1, Source PDO 11: m"}),
              IsEmpty());
}

Fields Ports(const std::vector<std::string>& labels) {
  Fields fields;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    fields.push_back(XmlText(Component(i + 1), "Port_Label", labels[i]));
    AddPdo(fields, SrcPdo(1, i + 1), 100);
  }
  return fields;
}

TEST(CompareFindings, FollowAComponentThatWasRenumbered) {
  EXPECT_THAT(Changed(Ports({"a", "b"}),
                      {"Component 1: m", "Component 2, Source PDO 1: m", "Component 2: the same as in Component 1"},
                      Ports({"new", "a", "b"}),
                      {"Component 2: m", "Component 3, Source PDO 1: m", "Component 3: the same as in Component 2"}),
              IsEmpty());
}

Fields Svids(const std::vector<std::uint64_t>& ids) {
  Fields fields;
  for (std::size_t i = 0; i < ids.size(); ++i) {
    fields.push_back(Number(At({eVifLocComponent, 1}, {eVifLocSopSvid, i + 1}), "SVID_SOP", ids[i]));
  }
  return fields;
}

TEST(CompareFindings, FollowASecondPlaceInTheSameComponent) {
  EXPECT_THAT(Changed(Svids({1, 2, 1}), {"Component 1, SOP SVID 3: SVID_SOP is 1, the same as in SOP SVID 1"},
                      Svids({7, 1, 2, 1}), {"Component 1, SOP SVID 4: SVID_SOP is 1, the same as in SOP SVID 2"}),
              IsEmpty());
}

TEST(CompareFindings, FollowGroupsInPaths) {
  const Differences differences = Compare(Pdos({100, 300}), Pdos({100, 180, 300}));
  const auto at = [](const std::string& pdo, const std::string& name) {
    const std::string path = "VIF/Component/SrcPdoList/SrcPDO" + pdo + "/" + name;
    return Make(1, path, Quoted(path) + " yields no field");
  };
  const FindingChanges changes = CompareFindings({at("[1]", "A"), at("[2]", "A"), at("[2]", "B[2]")},
                                                 {at("[1]", "A"), at("[3]", "A"), at("[3]", "B[2]")}, differences);
  EXPECT_THAT(changes.fixed, IsEmpty());
  EXPECT_THAT(changes.added, IsEmpty());
  EXPECT_THAT(CompareFindings({at("[2]", "A")}, {at("[2]", "A")}, differences).fixed, SizeIs(1));
  EXPECT_THAT(CompareFindings({at("[2]", "A")}, {at("[3]", "B")}, differences).fixed, SizeIs(1));
  EXPECT_THAT(CompareFindings({at("[2]", "A")}, {at("[2]", "A")}, Compare(Pdos({100, 300}), Pdos({100}))).fixed,
              SizeIs(1));
}

TEST(CompareFindings, PathsHaveNoNumberForTheOnlyGroup) {
  const FindingChanges changes = CompareFindings({Make(1, "VIF/Component/A")}, {Make(1, "VIF/Component[1]/A")});
  EXPECT_THAT(changes.fixed, IsEmpty());
  EXPECT_THAT(changes.added, IsEmpty());
  EXPECT_THAT(CompareFindings({Make(1, "VIF/Component/A")}, {Make(1, "VIF/Component[2]/A")},
                              Compare(Ports({"a"}), Ports({"n", "a"})))
                  .fixed,
              IsEmpty());
}

TEST(CompareFindings, OtherMessagesAndElementsAreOtherFindings) {
  const FindingChanges changes = CompareFindings({Make(1, "A"), Make(2, "B")}, {Make(1, "A", "n"), Make(2, "C")});
  EXPECT_THAT(changes.fixed, SizeIs(2));
  EXPECT_THAT(changes.added, SizeIs(2));
}

TEST(CompareFindings, EqualOnesAreCounted) {
  const FindingChanges changes = CompareFindings({Make(1, "A"), Make(2, "A"), Make(3, "A")}, {Make(1, "A")});
  EXPECT_THAT(changes.fixed, SizeIs(2));
  EXPECT_THAT(changes.added, IsEmpty());
}

TEST(CompareFindings, PathsCountInFull) {
  EXPECT_THAT(CompareFindings({Make(1, "VIF/Component[1]/A")}, {Make(1, "VIF/Component[2]/A")}).fixed, SizeIs(1));
}

TEST(CompareFindings, OfAPathOnlyTheNameCountsAgainstATextFile) {
  const FindingChanges changes = CompareFindings({Make(1, "$Port_Label")}, {Make(9, "VIF/Component[1]/Port_Label")});
  EXPECT_THAT(changes.fixed, IsEmpty());
  EXPECT_THAT(changes.added, IsEmpty());
}

}  // namespace

}  // namespace vifanalysis::difftest
