// Loading files into a CVendorInfoFile.
#include "BaseUtilities/Exceptions.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/CodePage.h"
#include "support/FieldText.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ios>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

using namespace std::literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::AppendFile;
using testsupport::FieldTexts;
using testsupport::QuotedPath;
using testsupport::RunTimeErrorOf;
using testsupport::TempDir;

constexpr const char* kWrongType = "Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)";

std::vector<std::string> Texts(const CVendorInfoFile& vif) { return FieldTexts(*vif.GetFields()); }

/// The fields of a text VIF with that content.
std::vector<std::string> Load(std::string_view content) {
  const TempDir dir;
  return Texts(CVendorInfoFile(dir.Write("x.txt", content)));
}

/// The error of loading the file into a new object.
std::string LoadError(const std::filesystem::path& path) {
  return RunTimeErrorOf([&] { CVendorInfoFile vif(path); });
}

/// The error of appending the file to an object.
std::string AppendError(const std::filesystem::path& path) {
  CVendorInfoFile vif;
  return RunTimeErrorOf([&] { AppendFile(vif, path); });
}

std::string MissingText(const std::filesystem::path& path) {
  return "VIF Does not exist. (name: " + QuotedPath(path) + ")";
}

std::string CannotOpenText(const std::filesystem::path& path) {
  return "Couldn't open Vendor Info File: " + QuotedPath(path) + ".";
}

// File types.

TEST(LoadingTest, TextExtensionMayBeInAnyLetterCase) {
  const TempDir dir;
  for (const char* name : {"a.txt", "b.TXT", "c.Txt", "d.tXt"}) {
    EXPECT_THAT(Texts(CVendorInfoFile(dir.Write(name, "USB_VID: 1"))), ElementsAre("USB_VID=1 @6.1")) << name;
  }
}

TEST(LoadingTest, LastExtensionCounts) {
  const TempDir dir;
  EXPECT_EQ(LoadError(dir.Write("a.txt.bak", "USB_VID: 1")), kWrongType);
  EXPECT_THAT(Texts(CVendorInfoFile(dir.Write("a.bak.txt", "USB_VID: 1"))), ElementsAre("USB_VID=1 @6.1"));
}

TEST(LoadingTest, OtherExtensionsAreOfTheWrongType) {
  const TempDir dir;
  for (const char* name : {"vif.json", "vif", "vif.", "vif.txt.", "vif.text", "vif.tx", "vif.txt ", "txt", "vif.xm"}) {
    EXPECT_EQ(LoadError(dir.Write(name, "USB_VID: 1")), kWrongType) << name;
    EXPECT_EQ(AppendError(dir.Path() / name), kWrongType) << name;
  }
}

TEST(LoadingTest, NameThatIsOnlyAnExtensionHasNone) {
  const TempDir dir;
  EXPECT_EQ(LoadError(dir.Write(".txt", "USB_VID: 1")), kWrongType);
}

TEST(LoadingTest, ExtensionOfTheDirectoryDoesNotCount) {
  const TempDir dir;
  std::filesystem::create_directory(dir.Path() / "d.txt");
  EXPECT_EQ(LoadError(dir.Write("d.txt/vif", "USB_VID: 1")), kWrongType);
}

TEST(LoadingTest, XmlIsNotAWrongType) {
  const TempDir dir;
  for (const char* name : {"a.xml", "b.XML"}) {
    EXPECT_NE(LoadError(dir.Write(name, "no document")), kWrongType) << name;
    EXPECT_THROW(CVendorInfoFile(dir.Path() / name), CZoRunTimeException) << name;
  }
}

// Existence.

TEST(LoadingTest, MissingFileIsReportedWhateverItsType) {
  const TempDir dir;
  for (const char* name : {"vif.txt", "vif.xml", "vif.doc", "vif.json", "vif", ".txt"}) {
    EXPECT_EQ(LoadError(dir.Path() / name), MissingText(dir.Path() / name));
    EXPECT_EQ(AppendError(dir.Path() / name), MissingText(dir.Path() / name));
  }
}

TEST(LoadingTest, FileInAMissingDirectoryIsMissing) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "no directory" / "x.txt";
  EXPECT_EQ(LoadError(path), MissingText(path));
}

TEST(LoadingTest, FileBelowAFileIsMissing) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write("file", "") / "x.txt";
  EXPECT_EQ(LoadError(path), MissingText(path));
}

// On Windows no file can have these names, which is not the same error as a missing file.
TEST(LoadingTest, FileWhoseNameIsNotAllowedEverywhereIsMissing) {
  const TempDir dir;
  for (const char* name : {"a<b?.txt", "a<b?.xml", "*.txt", "a|b.json"}) {
    EXPECT_EQ(LoadError(dir.Path() / name), MissingText(dir.Path() / name));
    EXPECT_EQ(AppendError(dir.Path() / name), MissingText(dir.Path() / name));
  }
}

// What means another machine or drive on Windows is an ordinary directory elsewhere.
TEST(LoadingTest, FileOnAMissingNetworkOrDriveIsMissing) {
  for (const char* name :
       {"//no-such-host.invalid/share/x.txt", "//no-such-host.invalid/x.xml", "Q:/x.txt", "Q:x.xml"}) {
    EXPECT_EQ(LoadError(name), MissingText(name));
    EXPECT_EQ(AppendError(name), MissingText(name));
  }
}

TEST(LoadingTest, NameTooLongForTheSystemFailsTheExistenceTest) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / (std::string(5000, 'x') + ".txt");
#ifdef _WIN32
  // Windows reports such a name as a missing file.
  EXPECT_EQ(LoadError(path), MissingText(path));
#else
  try {
    const CVendorInfoFile vif(path);
    FAIL() << "no exception";
  } catch (const std::filesystem::filesystem_error& error) {
    EXPECT_EQ(error.code(), std::errc::filename_too_long);
    EXPECT_THAT(error.what(), testing::HasSubstr("exists"));
  }
#endif
}

TEST(LoadingTest, DirectoryNamedLikeATextVifCannotBeOpened) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "x.txt";
  std::filesystem::create_directory(path);
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
  EXPECT_EQ(AppendError(path), CannotOpenText(path));
}

TEST(LoadingTest, FileThatCannotBeOpenedAddsNoComponent) {
  const TempDir dir;
  std::filesystem::create_directory(dir.Path() / "x.txt");
  CVendorInfoFile vif;
  EXPECT_THROW(AppendFile(vif, dir.Path() / "x.txt"), CZoRunTimeException);
  EXPECT_EQ(vif.ComponentCount(), 0U);
  EXPECT_STREQ(vif.FileName(), L"");
}

TEST(LoadingTest, DirectoryWithAnotherExtensionIsOfTheWrongType) {
  const TempDir dir;
  EXPECT_EQ(LoadError(dir.Path()), kWrongType);
}

TEST(LoadingTest, MessagesQuoteTheNameUnchanged) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "%s%n %S 100%.txt";
  EXPECT_EQ(LoadError(path), MissingText(path));
  std::filesystem::create_directory(path);
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

// On Windows in the code page of file functions, which may lack some of the characters.
TEST(LoadingTest, MessagesQuoteNamesInAnyLanguage) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / u8"Ger\u00E4t \u4E2D \U0001F50C.txt";
  EXPECT_EQ(LoadError(path), MissingText(path));
  EXPECT_EQ(AppendError(path), MissingText(path));
  std::filesystem::create_directory(path);
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

TEST(LoadingTest, FileNameIsWideWhateverItsLanguage) {
  const TempDir dir;
  const CVendorInfoFile vif(dir.Write(u8"Ger\u00E4t \u4E2D \U0001F50C.txt", "USB_VID: 1"));
  EXPECT_EQ(vif.Count(), 1U);
  EXPECT_EQ(vif.FileName(), (dir.Path() / "").wstring() + L"Ger\u00E4t \u4E2D \U0001F50C.txt");
}

TEST(LoadingTest, PathMayBeRelative) {
  const TempDir dir;
  dir.Write("x.txt", "USB_VID: 1");
  const std::filesystem::path former = std::filesystem::current_path();
  std::filesystem::current_path(dir.Path());
  const CVendorInfoFile vif("x.txt");
  std::filesystem::current_path(former);
  EXPECT_THAT(Texts(vif), ElementsAre("USB_VID=1 @6.1"));
  EXPECT_STREQ(vif.FileName(), L"x.txt");
}

// Exceptions.

TEST(LoadingTest, FailureIsCatchableAsEachOfItsBases) {
  const TempDir dir;
  const std::function<void()> load = [&] { CVendorInfoFile vif(dir.Path() / "x.txt"); };
  EXPECT_THROW(load(), CZoRunTimeException);
  EXPECT_THROW(load(), CZoException);
  EXPECT_THROW(load(), std::runtime_error);
  EXPECT_THROW(load(), std::exception);
}

TEST(LoadingTest, FailureHasTheSameMessageAsEachOfItsBases) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "x.txt";
  std::string asZoException;
  std::string asStandardException;
  try {
    CVendorInfoFile vif(path);
  } catch (const CZoException& error) {
    asZoException = error.what();
  }
  try {
    CVendorInfoFile vif(path);
  } catch (const std::exception& error) {
    asStandardException = error.what();
  }
  EXPECT_EQ(asZoException, MissingText(path));
  EXPECT_EQ(asStandardException, MissingText(path));
}

TEST(LoadingTest, FailureKeepsItsMessageWhenAnotherFollows) {
  const TempDir dir;
  try {
    CVendorInfoFile vif(dir.Path() / "first.txt");
    FAIL() << "no exception";
  } catch (const CZoRunTimeException& error) {
    EXPECT_EQ(LoadError(dir.Path() / "second.txt"), MissingText(dir.Path() / "second.txt"));
    EXPECT_EQ(error.what(), MissingText(dir.Path() / "first.txt"));
  }
}

// Content.

TEST(LoadingTest, FieldsAreThoseOfTheLines) {
  EXPECT_THAT(Load("; a charger\r\n"
                   "$Vendor_Name: \"Acme; Inc.\" ; maker\r\n"
                   "\r\n"
                   "Captive_Cable: YES ; fixed\r\n"
                   "Captive_Cable: no\r\n"
                   "Captive_Cable: Yes\r\n"
                   "USB_VID: 0X1A2B\r\n"
                   "USB_VID = 5\r\n"
                   "Src_PDO_Voltage2 : 5000 ; 5 V\r\n"
                   "USB_VID: 0X1A2B"),
              ElementsAre("$Vendor_Name=\"Acme; Inc.\" ; maker", "Captive_Cable=1 ; YES @6.1",
                          "Captive_Cable=0 ; NO @6.1", "Captive_Cable=Yes @6.1", "USB_VID=0X1A2B @6.1",
                          "Src_PDO_Voltage=5000 ; 5 V @6.1 @7.2", "USB_VID=0X1A2B @6.1"));
}

TEST(LoadingTest, StringFollowedDirectlyByASemicolonIsSkipped) {
  EXPECT_THAT(Load("$Vendor_Name: \"Acme\"; maker\n"), IsEmpty());
}

TEST(LoadingTest, FileWithNoDeclarationIsAComponentWithoutFields) {
  const TempDir dir;
  for (const char* content : {"", "\n", "; comment\n", "nothing of use\n", "USB_VID: 5 V\nUSB_VID: -5\n"}) {
    const CVendorInfoFile vif(dir.Write("x.txt", content));
    EXPECT_EQ(vif.Count(), 0U);
    EXPECT_EQ(vif.ComponentCount(), 1U);
  }
}

TEST(LoadingTest, NulEndsContentAndComment) {
  EXPECT_THAT(Load("USB_VID: 5\0 junk\n$A: \"x\0y\"\n\0\nPID: 1 ; a\0b\n"sv),
              ElementsAre("USB_VID=5 @6.1", "PID=1 ; a @6.1"));
}

TEST(LoadingTest, CrDoesNotEndALine) {
  EXPECT_THAT(Load("USB_VID: 1\rPID: 2\r\nUSB_VID\r: 3\n$A: \"x\ry\"\n"), ElementsAre("USB_VID=3 @6.1"));
}

TEST(LoadingTest, CtrlZEndsTheFileOnWindowsOnly) {
  const std::vector<std::string> fields = Load("USB_VID: 1\nPID: 2\x1A\nUSB_VID: 3\n\x1A\nPID: 4");
#ifdef _WIN32
  // Text mode ends the file there.
  EXPECT_THAT(fields, ElementsAre("USB_VID=1 @6.1", "PID=2 @6.1"));
#else
  EXPECT_THAT(fields, ElementsAre("USB_VID=1 @6.1", "USB_VID=3 @6.1", "PID=4 @6.1"));
#endif
}

TEST(LoadingTest, LfCrLineEndsWorkLikeCrLf) {
  EXPECT_THAT(Load("USB_VID: 1\n\rPID: 2\n\r"), ElementsAre("USB_VID=1 @6.1", "PID=2 @6.1"));
}

TEST(LoadingTest, LineOf100MegabytesIsReadWhole) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write("x.txt", "PID: 1\n$Long: \"");
  constexpr std::size_t pieceSize = 1'000'000;
  constexpr std::size_t pieces = 100;
  {
    const std::string piece(pieceSize, 'v');
    std::ofstream file(path, std::ios::binary | std::ios::app);
    for (std::size_t i = 0; i < pieces; ++i) file << piece;
    file << "\" ; long\nPID: 2\n";
    ASSERT_TRUE(file.flush());
  }
  const CVendorInfoFile vif(path);
  const VifFieldList fields = vif.GetFields();
  ASSERT_EQ(fields->size(), 3U);
  const CVIFField& field = (*fields)[1];
  EXPECT_STREQ(field.Name(), "$Long");
  EXPECT_EQ(std::strspn(field.Value(), "v"), pieceSize * pieces);
  EXPECT_EQ(std::strlen(field.Value()), pieceSize * pieces);
  EXPECT_STREQ(field.Description(), "long");
  EXPECT_EQ(testsupport::FieldText((*fields)[2]), "PID=2 @6.1");
}

TEST(LoadingTest, FileOfAMillionLinesIsReadWhole) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "x.txt";
  constexpr std::size_t lines = 1'000'000;
  {
    std::ofstream file(path, std::ios::binary);
    for (std::size_t i = 1; i <= lines; ++i) file << "Src_PDO_Voltage" << i << ": 5\n";
    ASSERT_TRUE(file.flush());
  }
  const CVendorInfoFile vif(path);
  ASSERT_EQ(vif.Count(), lines);
  const VifFieldList fields = vif.GetFields();
  for (std::size_t i = 0; i < lines; ++i) ASSERT_EQ((*fields)[i].Index(eVifLocSrcPdo), i + 1);
}

// The caller's own table.

TEST(OwnTableTest, IsTriedInItsOwnOrder) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {
      {L"First", std::wregex(L"A."), {eVifLocVif}},
      {L"Second", std::wregex(L"AB|CD"), {eVifLocProduct}},
  };
  const CVendorInfoFile vif(dir.Write("x.txt", "AB: 1\nCD: 2\nEF: 3\nABC: 4"), &table);
  EXPECT_THAT(Texts(vif), ElementsAre("First=1 @1.0", "Second=2 @3.0", "EF=3", "ABC=4"));
}

TEST(OwnTableTest, ReplacesTheBuiltInOne) {
  const TempDir dir;
  std::vector<VifFieldDef> table;
  const CVendorInfoFile vif(dir.Write("x.txt", "Src_PDO_Voltage2: 1"), &table);
  EXPECT_THAT(Texts(vif), ElementsAre("Src_PDO_Voltage2=1"));
}

TEST(OwnTableTest, CopyOfTheBuiltInTableBehavesLikeTheBuiltInOne) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write(
      "x.txt",
      "VIF_Specification: 1\nSrc_PDO_Voltage2: 5000 ; 5 V\nSnk_PDO_Voltage: 1\nSVID3_Mode2_Recog_Mask_SOP: 1\n"
      "USB4_PCIe_Endpoint1_Device_ID4: 1\nCable_SOP''_Controller: YES\nOptionalContent: 1\nother: 1\n"
      "SVID18446744073709551616_SOP: 1\n$Vendor_Name: \"Acme\"\n");
  std::vector<VifFieldDef> table = VifFieldDefs::GetVifFieldDefs();
  EXPECT_EQ(Texts(CVendorInfoFile(path, &table)), Texts(CVendorInfoFile(path)));
}

TEST(OwnTableTest, MayExtendTheBuiltInOne) {
  const TempDir dir;
  std::vector<VifFieldDef> table = VifFieldDefs::GetVifFieldDefs();
  table.push_back({L"My_Field", std::wregex(L"My_Field([0-9]*)"), {eVifLocComponent, eVifLocSnkPdo}});
  const CVendorInfoFile vif(dir.Write("x.txt", "My_Field7: 1\nUSB_VID: 2"), &table);
  EXPECT_THAT(Texts(vif), ElementsAre("My_Field=1 @6.1 @8.7", "USB_VID=2 @6.1"));
}

TEST(OwnTableTest, NameMayBeNull) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {{nullptr, std::wregex(L"A"), {eVifLocComponent}}};
  const CVendorInfoFile vif(dir.Write("x.txt", "A: 1"), &table);
  EXPECT_THAT(Texts(vif), ElementsAre("=1 @6.1"));
}

TEST(OwnTableTest, PatternMayHaveTooFewGroups) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {
      {L"A", std::wregex(L"A"), {eVifLocComponent, eVifLocSrcPdo}},
      {L"B", std::wregex(L"B([0-9]+)"), {eVifLocComponent, eVifLocSopSvid, eVifLocSopSvidMode}},
  };
  const CVendorInfoFile vif(dir.Write("x.txt", "A: 1\nB7: 2"), &table);
  EXPECT_THAT(Texts(vif), ElementsAre("A=1 @6.1 @7.-", "B=2 @6.1 @9.7 @10.-"));
}

TEST(OwnTableTest, UnknownLocationFailsAtTheFirstNameThatMatchesAndNotBefore) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {
      {L"Bad", std::wregex(L"B"), {static_cast<EVifLocation>(13)}},
      {L"Good", std::wregex(L"A"), {eVifLocComponent}},
  };
  EXPECT_THAT(Texts(CVendorInfoFile(dir.Write("good.txt", "A: 1\nC: 2"), &table)), ElementsAre("Good=1 @6.1", "C=2"));
  const std::filesystem::path path = dir.Write("bad.txt", "A: 1\nB: 2\nA: 3");
  EXPECT_EQ(RunTimeErrorOf([&] { CVendorInfoFile vif(path, &table); }), "Internal error - Unknown EVifLocation: 13");
}

TEST(OwnTableTest, FailureInTheMiddleOfAnAppendKeepsWhatCameBefore) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {
      {L"Good", std::wregex(L"A"), {eVifLocComponent}},
      {L"Bad", std::wregex(L"B"), {static_cast<EVifLocation>(13)}},
  };
  CVendorInfoFile vif(dir.Write("a.txt", "A: 1"), &table);
  EXPECT_THROW(AppendFile(vif, dir.Write("b.txt", "A: 2\nB: 3\nA: 4")), CZoRunTimeException);
  AppendFile(vif, dir.Write("c.txt", "A: 5"));
  EXPECT_THAT(Texts(vif), ElementsAre("Good=1 @6.1", "Good=2 @6.2", "Good=5 @6.3"));
  EXPECT_EQ(vif.ComponentCount(), 3U);
}

#if defined(__GLIBCXX__)
constexpr const char* kErrorOfALongName = "The regular expression needs more stack than this thread has left.";
#else
constexpr const char* kErrorOfALongName = "The regular expression takes too many steps.";
#endif

TEST(OwnTableTest, ErrorOfAPatternIsThrownUnchanged) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {{L"Twice", std::wregex(L"(.)\\1.*"), {eVifLocComponent}}};
  CVendorInfoFile vif(nullptr, &table);
  const std::filesystem::path path = dir.Write("x.txt", "AA: 1\n" + std::string(1'000'000, 'B') + ": 2\nCC: 3");
  EXPECT_EQ(RunTimeErrorOf([&] { AppendFile(vif, path); }), kErrorOfALongName);
  EXPECT_THAT(Texts(vif), ElementsAre("Twice=1 @6.1"));
  EXPECT_EQ(vif.ComponentCount(), 1U);
}

TEST(OwnTableTest, LongNamesLoad) {
  const TempDir dir;
  const std::string name(100'000, 'B');
  const std::filesystem::path path = dir.Write("x.txt", "TID: 1\n" + name + ": 2\n" + name + "7: 3\nTID: 4\n");
  std::vector<VifFieldDef> table = VifFieldDefs::GetVifFieldDefs();
  EXPECT_THAT(Texts(CVendorInfoFile(path, &table)), ElementsAre("TID=1 @1.0", name + "=2", name + "7=3", "TID=4 @1.0"));
#if defined(__GLIBCXX__)
  table.push_back({L"Many", std::wregex(L"(?:A|B)*([0-9])"), {eVifLocComponent, eVifLocSrcPdo}});
  EXPECT_THAT(Texts(CVendorInfoFile(path, &table)),
              ElementsAre("TID=1 @1.0", name + "=2", "Many=3 @6.1 @7.7", "TID=4 @1.0"));
#endif
}

TEST(OwnTableTest, IsUsedAsItIsAtEachLoad) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write("x.txt", "A: 1");
  std::vector<VifFieldDef> table;
  CVendorInfoFile vif(path, &table);
  table.push_back({L"Known", std::wregex(L"A"), {eVifLocComponent}});
  AppendFile(vif, path);
  EXPECT_THAT(Texts(vif), ElementsAre("A=1", "Known=1 @6.2"));
}

}  // namespace
