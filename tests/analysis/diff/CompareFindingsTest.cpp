// Which findings only one of two files has.
#include <analysis/Differences.h>

#include <gmock/gmock.h>

namespace vifanalysis {

namespace {

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
  EXPECT_THAT(CompareFindings({Make(1, "/VIF/Component[1]/A")}, {Make(1, "/VIF/Component[2]/A")}).fixed, SizeIs(1));
}

TEST(CompareFindings, OfAPathOnlyTheNameCountsAgainstATextFile) {
  const FindingChanges changes =
      CompareFindings({Make(1, "$Port_Label")}, {Make(9, "/vif:VIF/vif:Component[1]/vif:Port_Label[1]")});
  EXPECT_THAT(changes.fixed, IsEmpty());
  EXPECT_THAT(changes.added, IsEmpty());
}

}  // namespace

}  // namespace vifanalysis
