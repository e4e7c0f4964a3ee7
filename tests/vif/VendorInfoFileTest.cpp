// The object that holds the fields of one or more files: construction, copying, moving, appending.
#include "VendorInfoFile.h"

#include "BaseUtilities/Exceptions.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::AppendFile;
using testsupport::FieldTexts;
using testsupport::TempDir;

std::vector<std::string> Texts(const CVendorInfoFile& vif) { return FieldTexts(*vif.GetFields()); }

CVIFField Field(const std::string& name) {
  return {
      true, name, "1", "", {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX}};
}

void ExpectEmpty(const CVendorInfoFile& vif) {
  EXPECT_EQ(vif.Count(), 0U);
  EXPECT_EQ(vif.ComponentCount(), 0U);
  EXPECT_STREQ(vif.FileName(), L"");
  EXPECT_THAT(Texts(vif), IsEmpty());
}

/// Two files, and a table in which one of their names is known.
class VendorInfoFileTest : public testing::Test {
 protected:
  TempDir m_dir;
  std::filesystem::path m_first = m_dir.Write("first.txt", "USB_VID: 1\nA: 2\n");
  std::filesystem::path m_second = m_dir.Write("second.txt", "PID: 3\nA: 4\n");
  std::vector<VifFieldDef> m_table = {{L"Known", std::wregex(L"A"), {eVifLocComponent}}};
};

// Construction.

TEST_F(VendorInfoFileTest, DefaultIsEmpty) { ExpectEmpty(CVendorInfoFile()); }

TEST_F(VendorInfoFileTest, FromAPathHoldsTheFile) {
  const CVendorInfoFile vif(m_first);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2"));
  EXPECT_EQ(vif.Count(), 2U);
  EXPECT_EQ(vif.ComponentCount(), 1U);
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, FromAPathAndATableResolvesThroughTheTable) {
  const CVendorInfoFile vif(m_first, &m_table);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1", "Known=2 @6.1"));
}

TEST_F(VendorInfoFileTest, FromAnEmptyPathIsEmpty) { ExpectEmpty(CVendorInfoFile(std::filesystem::path())); }

TEST_F(VendorInfoFileTest, FromALiteralNullIsEmpty) {
  ExpectEmpty(CVendorInfoFile(nullptr));
  ExpectEmpty(CVendorInfoFile(nullptr, nullptr));
}

TEST_F(VendorInfoFileTest, NullTableIsTheBuiltInOne) {
  const CVendorInfoFile vif(m_first, nullptr);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

TEST_F(VendorInfoFileTest, TableGivenWithoutAPathIsForLaterAppends) {
  CVendorInfoFile vif(nullptr, &m_table);
  AppendFile(vif, m_first);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1", "Known=2 @6.1"));
}

TEST_F(VendorInfoFileTest, FromFieldsHoldsThemAndNothingElse) {
  const CVendorInfoFile vif(std::vector<CVIFField>{Field("X"), Field("Y")});
  EXPECT_THAT(Texts(vif), ElementsAre("X=1", "Y=1"));
  EXPECT_EQ(vif.ComponentCount(), 0U);
  EXPECT_STREQ(vif.FileName(), L"");
}

TEST_F(VendorInfoFileTest, FromNoFieldsIsEmpty) { ExpectEmpty(CVendorInfoFile(std::vector<CVIFField>())); }

// Appending files.

TEST_F(VendorInfoFileTest, AppendedFileIsTheNextComponentAfterTheFieldsHeld) {
  CVendorInfoFile vif(m_first);
  AppendFile(vif, m_second);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2", "PID=3 @6.2", "A=4"));
  EXPECT_EQ(vif.ComponentCount(), 2U);
}

TEST_F(VendorInfoFileTest, SameFileMayBeAppendedAgain) {
  CVendorInfoFile vif(m_first);
  AppendFile(vif, m_first);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2", "USB_VID=1 @6.2", "A=2"));
}

TEST_F(VendorInfoFileTest, AppendResolvesThroughTheTableOfTheObject) {
  CVendorInfoFile vif(m_first, &m_table);
  AppendFile(vif, m_second);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1", "Known=2 @6.1", "PID=3", "Known=4 @6.2"));
}

TEST_F(VendorInfoFileTest, AppendingNullOrTheEmptyNameDoesNothing) {
  CVendorInfoFile vif(m_first);
  vif.Append(nullptr);
  vif.Append("");
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2"));
  EXPECT_EQ(vif.ComponentCount(), 1U);
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, AppendingNullOrTheEmptyNameToAnEmptyObjectLeavesItEmpty) {
  CVendorInfoFile vif;
  vif.Append(nullptr);
  vif.Append("");
  ExpectEmpty(vif);
}

TEST_F(VendorInfoFileTest, FileThatCannotBeLoadedAddsNoComponent) {
  CVendorInfoFile vif(m_first);
  EXPECT_THROW(AppendFile(vif, m_dir.Path() / "missing.txt"), CZoRunTimeException);
  EXPECT_THROW(AppendFile(vif, m_dir.Write("vif.json", "")), CZoRunTimeException);
  AppendFile(vif, m_second);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2", "PID=3 @6.2", "A=4"));
}

// The file name.

TEST_F(VendorInfoFileTest, FirstAppendedFileSetsTheName) {
  CVendorInfoFile vif;
  AppendFile(vif, m_first);
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, NameIsSetOnlyOnce) {
  CVendorInfoFile vif(m_first);
  AppendFile(vif, m_second);
  EXPECT_EQ(vif.FileName(), m_first.wstring());
  CVendorInfoFile appended;
  AppendFile(appended, m_second);
  AppendFile(appended, m_first);
  EXPECT_EQ(appended.FileName(), m_second.wstring());
}

TEST_F(VendorInfoFileTest, FileThatCannotBeLoadedSetsNoName) {
  CVendorInfoFile vif;
  EXPECT_THROW(AppendFile(vif, m_dir.Path() / "missing.txt"), CZoRunTimeException);
  EXPECT_STREQ(vif.FileName(), L"");
  AppendFile(vif, m_second);
  EXPECT_EQ(vif.FileName(), m_second.wstring());
}

TEST_F(VendorInfoFileTest, NamesAreUtf8) {
  const std::filesystem::path path = m_dir.Write(u8"ger\u00E4t \u4E2D \U0001F50C.txt", "USB_VID: 1");
  const std::u8string utf8 = path.u8string();
  CVendorInfoFile vif;
  vif.Append(std::string(utf8.begin(), utf8.end()).c_str());
  EXPECT_EQ(vif.Count(), 1U);
  EXPECT_EQ(vif.FileName(), (m_dir.Path() / "").wstring() + L"ger\u00E4t \u4E2D \U0001F50C.txt");
}

// Appending fields.

TEST_F(VendorInfoFileTest, AppendedFieldsFollowTheFieldsHeld) {
  CVendorInfoFile vif(m_first);
  vif.Append(std::vector<CVIFField>{Field("X"), Field("Y")});
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2", "X=1", "Y=1"));
  EXPECT_EQ(vif.ComponentCount(), 1U);
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, AppendedFieldsAreFullCopies) {
  const CVIFField field(false, "N", "V", "D", VifIndex(eVifLocComponent, 7), VifIndex(eVifLocSrcPdo, 2),
                        VifIndex(eVifLocVif, 0));
  CVendorInfoFile vif;
  {
    const std::vector<CVIFField> fields(2, field);
    vif.Append(fields);
  }
  EXPECT_THAT(Texts(vif), ElementsAre("N=\"V\" ; D @6.7 @7.2 @1.0", "N=\"V\" ; D @6.7 @7.2 @1.0"));
}

TEST_F(VendorInfoFileTest, AppendingNoFieldsChangesNothing) {
  CVendorInfoFile vif(m_first);
  vif.Append(std::vector<CVIFField>());
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

TEST_F(VendorInfoFileTest, ObjectMayBeAppendedItsOwnFields) {
  CVendorInfoFile vif(m_first);
  vif.Append(*vif.GetFields());
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2", "USB_VID=1 @6.1", "A=2"));
}

TEST_F(VendorInfoFileTest, ObjectMayBeAppendedTheVeryListThatItHolds) {
  CVendorInfoFile vif(m_first);
  vif.Append(vif.Fields());
  vif.Append(vif.Fields());
  std::vector<std::string> expected;
  for (int i = 0; i < 4; ++i) expected.insert(expected.end(), {"USB_VID=1 @6.1", "A=2"});
  EXPECT_EQ(Texts(vif), expected);
}

TEST_F(VendorInfoFileTest, EmptyObjectMayBeAppendedItsOwnList) {
  CVendorInfoFile vif;
  vif.Append(vif.Fields());
  EXPECT_EQ(vif.Count(), 0U);
}

TEST_F(VendorInfoFileTest, AppendedFieldsSetNoNameAndAddNoComponent) {
  CVendorInfoFile vif(std::vector<CVIFField>{Field("X")});
  AppendFile(vif, m_first);
  EXPECT_THAT(Texts(vif), ElementsAre("X=1", "USB_VID=1 @6.1", "A=2"));
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, FieldListOutlivesTheObject) {
  VifFieldList fields;
  {
    const CVendorInfoFile vif(m_first);
    fields = vif.GetFields();
  }
  EXPECT_THAT(FieldTexts(*fields), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

// Access to the fields.

TEST_F(VendorInfoFileTest, FieldsAreThoseOfTheListOfAll) {
  CVendorInfoFile vif(m_first);
  AppendFile(vif, m_second);
  vif.Append({Field("X")});
  EXPECT_EQ(FieldTexts(vif.Fields()), Texts(vif));
  EXPECT_THAT(FieldTexts(vif.Fields()), ElementsAre("USB_VID=1 @6.1", "A=2", "PID=3 @6.2", "A=4", "X=1"));
}

TEST_F(VendorInfoFileTest, FieldsAreNotCopied) {
  const CVendorInfoFile vif(m_first);
  EXPECT_EQ(&vif.Fields(), &vif.Fields());
  EXPECT_EQ(vif.Fields().data(), vif.Fields().data());
  static_assert(std::is_same_v<decltype(vif.Fields()), const std::vector<CVIFField>&>);
  static_assert(noexcept(vif.Fields()));
}

TEST_F(VendorInfoFileTest, FieldsOfAnEmptyObjectAreEmpty) {
  EXPECT_THAT(CVendorInfoFile().Fields(), IsEmpty());
  EXPECT_THAT(CVendorInfoFile(nullptr).Fields(), IsEmpty());
  EXPECT_THAT(CVendorInfoFile(std::vector<CVIFField>()).Fields(), IsEmpty());
}

TEST_F(VendorInfoFileTest, FieldsMoveWithTheContent) {
  CVendorInfoFile source(m_first);
  const CVIFField* first = source.Fields().data();
  const CVendorInfoFile target(std::move(source));
  EXPECT_EQ(target.Fields().data(), first);
  EXPECT_EQ(target.Fields().size(), 2U);
  EXPECT_THAT(source.Fields(), IsEmpty());
}

TEST_F(VendorInfoFileTest, FieldsOfAMovedFromObjectThatIsUsedAgainAreItsOwn) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  source.Append({Field("X")});
  EXPECT_THAT(FieldTexts(source.Fields()), ElementsAre("X=1"));
  EXPECT_THAT(FieldTexts(target.Fields()), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

// Copying.

TEST_F(VendorInfoFileTest, CopyHoldsTheSame) {
  CVendorInfoFile vif(m_first);
  AppendFile(vif, m_second);
  const CVendorInfoFile copy(vif);
  EXPECT_EQ(Texts(copy), Texts(vif));
  EXPECT_EQ(copy.ComponentCount(), 2U);
  EXPECT_EQ(copy.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, CopyIsIndependentOfTheOriginal) {
  CVendorInfoFile vif(m_first);
  CVendorInfoFile copy(vif);
  AppendFile(copy, m_second);
  EXPECT_THAT(Texts(copy), ElementsAre("USB_VID=1 @6.1", "A=2", "PID=3 @6.2", "A=4"));
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2"));
  EXPECT_EQ(vif.ComponentCount(), 1U);
}

TEST_F(VendorInfoFileTest, OriginalIsIndependentOfTheCopy) {
  CVendorInfoFile vif(m_first);
  const CVendorInfoFile copy(vif);
  AppendFile(vif, m_second);
  EXPECT_EQ(copy.Count(), 2U);
}

TEST_F(VendorInfoFileTest, CopyOutlivesTheOriginal) {
  CVendorInfoFile copy;
  {
    const CVendorInfoFile vif(m_first);
    copy = vif;
  }
  EXPECT_THAT(Texts(copy), ElementsAre("USB_VID=1 @6.1", "A=2"));
  EXPECT_EQ(copy.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, CopyUsesTheTableOfTheOriginal) {
  const CVendorInfoFile vif(nullptr, &m_table);
  CVendorInfoFile copy(vif);
  AppendFile(copy, m_first);
  EXPECT_THAT(Texts(copy), ElementsAre("USB_VID=1", "Known=2 @6.1"));
}

TEST_F(VendorInfoFileTest, CopyOfAnEmptyObjectIsEmpty) {
  const CVendorInfoFile vif;
  ExpectEmpty(CVendorInfoFile(vif));
}

TEST_F(VendorInfoFileTest, CopyAssignmentReplacesEverything) {
  CVendorInfoFile vif(m_first);
  AppendFile(vif, m_first);
  const CVendorInfoFile other(m_second, &m_table);
  vif = other;
  EXPECT_THAT(Texts(vif), ElementsAre("PID=3", "Known=4 @6.1"));
  EXPECT_EQ(vif.ComponentCount(), 1U);
  EXPECT_EQ(vif.FileName(), m_second.wstring());
  EXPECT_EQ(Texts(other), Texts(vif));
}

TEST_F(VendorInfoFileTest, CopyAssignmentCopiesTheTable) {
  CVendorInfoFile vif;
  const CVendorInfoFile other(nullptr, &m_table);
  vif = other;
  AppendFile(vif, m_first);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1", "Known=2 @6.1"));
}

TEST_F(VendorInfoFileTest, CopyAssignmentCopiesTheNullTableToo) {
  CVendorInfoFile vif(nullptr, &m_table);
  const CVendorInfoFile other;
  vif = other;
  AppendFile(vif, m_first);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

TEST_F(VendorInfoFileTest, AssignedCopyIsIndependent) {
  const CVendorInfoFile other(m_first);
  CVendorInfoFile vif;
  vif = other;
  AppendFile(vif, m_second);
  EXPECT_EQ(vif.Count(), 4U);
  EXPECT_EQ(other.Count(), 2U);
}

TEST_F(VendorInfoFileTest, CopyAssignmentToItselfChangesNothing) {
  CVendorInfoFile vif(m_first, &m_table);
  const CVendorInfoFile& self = vif;
  vif = self;
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1", "Known=2 @6.1"));
  EXPECT_EQ(vif.ComponentCount(), 1U);
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, CopyAssignmentToItselfLeavesTheFieldsWhereTheyAre) {
  CVendorInfoFile vif(m_first);
  const CVendorInfoFile& self = vif;
  const std::vector<CVIFField>* const before = &vif.Fields();
  vif = self;
  EXPECT_EQ(&vif.Fields(), before);
}

// Moving.

TEST_F(VendorInfoFileTest, MoveTakesEverythingAndLeavesTheSourceEmpty) {
  CVendorInfoFile source(m_first, &m_table);
  CVendorInfoFile target(std::move(source));
  AppendFile(target, m_second);
  EXPECT_THAT(Texts(target), ElementsAre("USB_VID=1", "Known=2 @6.1", "PID=3", "Known=4 @6.2"));
  EXPECT_EQ(target.FileName(), m_first.wstring());
  ExpectEmpty(source);
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeAppendedAFile) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  AppendFile(source, m_second);
  EXPECT_THAT(Texts(source), ElementsAre("PID=3 @6.1", "A=4"));
  EXPECT_EQ(source.FileName(), m_second.wstring());
  EXPECT_EQ(target.Count(), 2U);
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeAppendedFields) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  source.Append(std::vector<CVIFField>{Field("X")});
  EXPECT_THAT(Texts(source), ElementsAre("X=1"));
  EXPECT_EQ(target.Count(), 2U);
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeAppendedNothing) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  source.Append(nullptr);
  source.Append(std::vector<CVIFField>());
  ExpectEmpty(source);
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeCopied) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  CVendorInfoFile copy(source);
  ExpectEmpty(copy);
  AppendFile(copy, m_second);
  EXPECT_EQ(copy.Count(), 2U);
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeAssigned) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  CVendorInfoFile assigned(m_second);
  assigned = source;
  ExpectEmpty(assigned);
  AppendFile(assigned, m_second);
  EXPECT_THAT(Texts(assigned), ElementsAre("PID=3 @6.1", "A=4"));
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeAssignedTo) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  source = target;
  EXPECT_EQ(Texts(source), Texts(target));
  EXPECT_EQ(source.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, MovedFromObjectMayBeMovedFromAgain) {
  CVendorInfoFile source(m_first);
  const CVendorInfoFile target(std::move(source));
  const CVendorInfoFile second(std::move(source));
  ExpectEmpty(second);
  ExpectEmpty(source);
}

TEST_F(VendorInfoFileTest, MoveAssignmentSwaps) {
  CVendorInfoFile target(m_first, &m_table);
  CVendorInfoFile source(m_second);
  AppendFile(source, m_second);
  target = std::move(source);
  EXPECT_THAT(Texts(target), ElementsAre("PID=3 @6.1", "A=4", "PID=3 @6.2", "A=4"));
  EXPECT_EQ(target.FileName(), m_second.wstring());
  EXPECT_EQ(target.ComponentCount(), 2U);
  EXPECT_THAT(Texts(source), ElementsAre("USB_VID=1", "Known=2 @6.1"));
  EXPECT_EQ(source.FileName(), m_first.wstring());
  EXPECT_EQ(source.ComponentCount(), 1U);
}

TEST_F(VendorInfoFileTest, MoveAssignmentSwapsTheTables) {
  CVendorInfoFile target;
  CVendorInfoFile source(nullptr, &m_table);
  target = std::move(source);
  AppendFile(target, m_first);
  AppendFile(source, m_first);
  EXPECT_THAT(Texts(target), ElementsAre("USB_VID=1", "Known=2 @6.1"));
  EXPECT_THAT(Texts(source), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

TEST_F(VendorInfoFileTest, MoveAssignmentFromAMovedFromObjectGivesItTheContent) {
  CVendorInfoFile source(m_first);
  CVendorInfoFile target(std::move(source));
  target = std::move(source);
  ExpectEmpty(target);
  EXPECT_THAT(Texts(source), ElementsAre("USB_VID=1 @6.1", "A=2"));
}

TEST_F(VendorInfoFileTest, MoveAssignmentToItselfChangesNothing) {
  CVendorInfoFile vif(m_first, &m_table);
  CVendorInfoFile& self = vif;
  vif = std::move(self);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1", "Known=2 @6.1"));
  EXPECT_EQ(vif.FileName(), m_first.wstring());
}

TEST_F(VendorInfoFileTest, MovesAreNoexcept) {
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<CVendorInfoFile>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<CVendorInfoFile>);
}

TEST_F(VendorInfoFileTest, ObjectsMayBeKeptInAVector) {
  std::vector<CVendorInfoFile> vifs(10, CVendorInfoFile(m_first));
  vifs.erase(vifs.begin());
  for (const CVendorInfoFile& vif : vifs) EXPECT_EQ(vif.Count(), 2U);
}

}  // namespace
