// Reading the fields of a text file.
#include "TextReader.h"

#include "CustomCtype.h"
#include "ScriptedBuffer.h"
#include "support/FieldText.h"
#include "support/Latin1Locale.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <ios>
#include <istream>
#include <locale>
#include <new>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace vif {

namespace {

using namespace std::literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::FieldTexts;
using testsupport::RunTimeErrorOf;
using testsupport::ScriptedBuffer;
using testsupport::TempDir;

/// The state that a reader appends to.
class Sink {
 public:
  void Read(std::istream& stream, const std::vector<VifFieldDef>* table = nullptr) {
    ReadTextVif(stream, "x.txt", table, {m_fields, m_componentCount});
  }

  void Read(const std::string& text, const std::vector<VifFieldDef>* table = nullptr) {
    std::istringstream stream(text);
    Read(stream, table);
  }

  void ReadFile(const std::filesystem::path& path) { ReadTextVif(path, nullptr, {m_fields, m_componentCount}); }

  std::vector<std::string> Texts() const { return FieldTexts(m_fields); }
  const std::vector<CVIFField>& Fields() const { return m_fields; }
  std::uint32_t ComponentCount() const { return m_componentCount; }

 private:
  std::vector<CVIFField> m_fields;
  std::uint32_t m_componentCount = 0;
};

std::vector<std::string> Read(const std::string& text) {
  Sink sink;
  sink.Read(text);
  return sink.Texts();
}

// Fields.

TEST(TextReaderTest, NumericDeclarationWithNumberAndComment) {
  EXPECT_THAT(Read("Src_PDO_Voltage2 : 5000 ; 5 V"), ElementsAre("Src_PDO_Voltage=5000 ; 5 V @6.1 @7.2"));
}

TEST(TextReaderTest, StringDeclarationKeepsItsMarkAndIsInNoGroup) {
  EXPECT_THAT(Read("$Vendor_Name: \"Acme; Inc.\" ; maker"), ElementsAre("$Vendor_Name=\"Acme; Inc.\" ; maker"));
}

TEST(TextReaderTest, UnusedSlotsAreUnspecified) {
  Sink sink;
  sink.Read("$A: \"x\"\nSrc_PDO_Voltage2: 1");
  ASSERT_EQ(sink.Fields().size(), 2U);
  for (const VifIndex& slot : sink.Fields()[0].Indexes()) EXPECT_EQ(slot, CVIFField::UNSPECIFIED_INDEX);
  EXPECT_EQ(sink.Fields()[1].Indexes()[2], CVIFField::UNSPECIFIED_INDEX);
}

TEST(TextReaderTest, WithoutACommentTheDescriptionIsEmpty) {
  EXPECT_THAT(Read("USB_VID: 5\n$A: \"x\""), ElementsAre("USB_VID=5 @6.1", "$A=\"x\""));
}

TEST(TextReaderTest, SemicolonRightAfterTheClosingQuoteYieldsNoField) {
  EXPECT_THAT(Read("$Vendor_Name: \"Acme\"; maker"), IsEmpty());
}

TEST(TextReaderTest, PlainYesAndNoBecomeNumbersAndDropTheComment) {
  EXPECT_THAT(Read("Captive_Cable: YES ; fixed\nCaptive_Cable: yes\nCaptive_Cable: NO\nCaptive_Cable: no ; no"),
              ElementsAre("Captive_Cable=1 ; YES @6.1", "Captive_Cable=1 ; YES @6.1", "Captive_Cable=0 ; NO @6.1",
                          "Captive_Cable=0 ; NO @6.1"));
}

TEST(TextReaderTest, OtherSpellingsOfYesAndNoStayAsWritten) {
  EXPECT_THAT(Read("Captive_Cable: Yes\nCaptive_Cable: nO ; open"),
              ElementsAre("Captive_Cable=Yes @6.1", "Captive_Cable=nO ; open @6.1"));
}

TEST(TextReaderTest, OtherSpellingsOfYesAndNoAreStillNumbers) {
  Sink sink;
  sink.Read("Captive_Cable: yEs\nCaptive_Cable: No");
  ASSERT_EQ(sink.Fields().size(), 2U);
  EXPECT_EQ(sink.Fields()[0].GetULongNumericValue(), 1U);
  EXPECT_EQ(sink.Fields()[1].GetULongNumericValue(), 0U);
}

TEST(TextReaderTest, QuotedYesIsAString) { EXPECT_THAT(Read("$A: \"YES\" ; why"), ElementsAre("$A=\"YES\" ; why")); }

TEST(TextReaderTest, NumbersStayAsWritten) {
  EXPECT_THAT(Read("USB_VID: 0X1A2b\nUSB_VID: 007 ; seven\nUSB_VID: 99999999999999999999"),
              ElementsAre("USB_VID=0X1A2b @6.1", "USB_VID=007 ; seven @6.1", "USB_VID=99999999999999999999 @6.1"));
}

TEST(TextReaderTest, NumbersAreUnderstood) {
  Sink sink;
  sink.Read("USB_VID: 0X1A2b\nUSB_VID: 007");
  ASSERT_EQ(sink.Fields().size(), 2U);
  EXPECT_EQ(sink.Fields()[0].GetULongNumericValue(), 0x1A2BU);
  EXPECT_EQ(sink.Fields()[1].GetULongNumericValue(), 7U);
}

TEST(TextReaderTest, LinesThatDeclareNothingAreSkipped) {
  EXPECT_THAT(Read("\n   \t\n; comment\n  ;; USB_VID: 5\nUSB_VID = 5\nUSB_VID: 5 V\nUSB_VID: -5\nUSB_VID: \"5\"\n"
                   "$USB_VID: 5\n<xml/>\nUSB VID: 5\n"),
              IsEmpty());
}

TEST(TextReaderTest, LinesAfterASkippedOneAreRead) {
  EXPECT_THAT(Read("USB_VID = 5\nUSB_VID: 6"), ElementsAre("USB_VID=6 @6.1"));
}

TEST(TextReaderTest, UnknownNameStaysAsWritten) {
  EXPECT_THAT(Read("usb_vid: 5\nMy_Own_Field7: 1"), ElementsAre("usb_vid=5", "My_Own_Field7=1"));
}

TEST(TextReaderTest, NamesMayHaveApostrophes) {
  EXPECT_THAT(Read("Cable_SOP''_Controller: YES"), ElementsAre("Cable_SOP_PP_Controller=1 ; YES @6.1"));
}

TEST(TextReaderTest, GroupsHaveTheNumbersInTheName) {
  EXPECT_THAT(Read("SVID3_Mode2_Recog_Mask_SOP: 0x1\nUSB4_PCIe_Endpoint1_Device_ID4: 2\nSrc_PDO_Voltage: 3"),
              ElementsAre("SVID_Mode_Recog_Mask_SOP=0x1 @6.1 @9.3 @10.2",
                          "USB4_PCIe_Endpoint_Device_ID=2 @3.0 @4.1 @5.4", "Src_PDO_Voltage=3 @6.1 @7.-"));
}

TEST(TextReaderTest, FieldsAreInTheOrderOfTheFileAndMayRepeat) {
  EXPECT_THAT(Read("USB_VID: 2\nPID: 1\nUSB_VID: 2\nUSB_VID: 1"),
              ElementsAre("USB_VID=2 @6.1", "PID=1 @6.1", "USB_VID=2 @6.1", "USB_VID=1 @6.1"));
}

TEST(TextReaderTest, LastLineMayEndWithALineFeedOrNot) {
  EXPECT_THAT(Read("USB_VID: 1\nPID: 2"), ElementsAre("USB_VID=1 @6.1", "PID=2 @6.1"));
  EXPECT_THAT(Read("USB_VID: 1\nPID: 2\n"), ElementsAre("USB_VID=1 @6.1", "PID=2 @6.1"));
}

TEST(TextReaderTest, CrNextToALineFeedIsABlank) {
  EXPECT_THAT(Read("USB_VID: 1 ; one\r\n$A: \"x\"\r\n"), ElementsAre("USB_VID=1 ; one @6.1", "$A=\"x\""));
  EXPECT_THAT(Read("USB_VID: 1 ; one\n\r$A: \"x\"\n\r"), ElementsAre("USB_VID=1 ; one @6.1", "$A=\"x\""));
}

TEST(TextReaderTest, CrAloneDoesNotEndALine) { EXPECT_THAT(Read("USB_VID: 1\rPID: 2\r"), IsEmpty()); }

TEST(TextReaderTest, CrWithinALineIsWhiteSpaceOutsideQuotes) {
  EXPECT_THAT(Read("USB_VID\r:\r5\n$A: \"x\ry\"\nPID: 1;a\rb"), ElementsAre("USB_VID=5 @6.1", "PID=1 ; a\rb @6.1"));
}

TEST(TextReaderTest, NulEndsContentAndComment) {
  EXPECT_THAT(Read("USB_VID: 5\0 junk ; five\nPID: 1 ; a\0b\n$A: \"x\0y\"\n\0BCD: 1\nXID: 2"s),
              ElementsAre("USB_VID=5 ; five @6.1", "PID=1 ; a @6.1", "XID=2 @6.1"));
}

TEST(TextReaderTest, TextsKeepTheirBytes) {
  EXPECT_THAT(Read("$A: \"\xC3\xA4\xFF\t%s\" ; \xFE %n"), ElementsAre("$A=\"\xC3\xA4\xFF\t%s\" ; \xFE %n"));
}

TEST(TextReaderTest, ByteOrderMarkSpoilsTheFirstLineOnly) {
  EXPECT_THAT(Read("\xEF\xBB\xBFUSB_VID: 1\nPID: 2"), ElementsAre("PID=2 @6.1"));
}

TEST(TextReaderTest, LongLinesAreReadWhole) {
  const std::string value(300'000, 'v');
  const std::string name(300'000, 'n');
  EXPECT_THAT(Read("$A: \"" + value + "\"\n" + name + ": 5\nUSB_VID: 1"),
              ElementsAre("$A=\"" + value + "\"", name + "=5", "USB_VID=1 @6.1"));
}

TEST(TextReaderTest, GlobalLocaleDecidesWhatALetterIs) {
  testsupport::CustomCtype::Tables tables;
  tables.classes[0xE4] = std::ctype_base::alpha;
  const testsupport::CScopedGlobalLocale locale(LocaleWith(tables));
  EXPECT_THAT(Read("N\xE4me: 5"), ElementsAre("N\xE4me=5"));
}

// Components.

TEST(TextReaderTest, FileIsOneComponentWhateverItContains) {
  for (const std::string& text : {""s, "\n"s, "nothing"s, "USB_VID: 1"s, "USB_VID: 1\nUSB_VID: 1"s}) {
    Sink sink;
    sink.Read(text);
    EXPECT_EQ(sink.ComponentCount(), 1U) << text;
  }
}

TEST(TextReaderTest, NextFileIsTheNextComponentAfterTheEarlierFields) {
  Sink sink;
  sink.Read("USB_VID: 1");
  sink.Read("");
  sink.Read("USB_VID: 2");
  EXPECT_THAT(sink.Texts(), ElementsAre("USB_VID=1 @6.1", "USB_VID=2 @6.3"));
  EXPECT_EQ(sink.ComponentCount(), 3U);
}

// The caller's own table.

TEST(TextReaderTest, OwnTableMayKnowStringDeclarations) {
  const std::vector<VifFieldDef> table = {{L"Maker", std::wregex(L"^\\$Vendor_Name$"), {eVifLocVif}}};
  Sink sink;
  sink.Read("$Vendor_Name: \"Acme\"\nUSB_VID: 1", &table);
  EXPECT_THAT(sink.Texts(), ElementsAre("Maker=\"Acme\" @1.0", "USB_VID=1"));
}

TEST(TextReaderTest, EmptyTableKnowsNoName) {
  const std::vector<VifFieldDef> table;
  Sink sink;
  sink.Read("Src_PDO_Voltage2: 1", &table);
  EXPECT_THAT(sink.Texts(), ElementsAre("Src_PDO_Voltage2=1"));
}

TEST(TextReaderTest, UnknownLocationEndsTheReadAndKeepsWhatCameBefore) {
  const std::vector<VifFieldDef> table = {
      {L"A", std::wregex(L"A"), {eVifLocComponent}},
      {L"B", std::wregex(L"B"), {eVifLocComponent, static_cast<EVifLocation>(13)}},
  };
  Sink sink;
  EXPECT_EQ(RunTimeErrorOf([&] { sink.Read("A: 1\nA: 2\nB: 3\nA: 4", &table); }),
            "Internal error - Unknown EVifLocation: 13");
  EXPECT_THAT(sink.Texts(), ElementsAre("A=1 @6.1", "A=2 @6.1"));
  EXPECT_EQ(sink.ComponentCount(), 1U);
}

#if defined(__GLIBCXX__)
constexpr const char* kErrorOfALongName = "The regular expression needs more stack than this thread has left.";
#else
constexpr const char* kErrorOfALongName = "The regular expression takes too many steps.";
#endif

TEST(TextReaderTest, ErrorOfAnOwnPatternIsThrownUnchangedAndKeepsWhatCameBefore) {
  const std::vector<VifFieldDef> table = {{L"Twice", std::wregex(L"(.)\\1.*"), {eVifLocComponent}}};
  Sink sink;
  const std::string text = "AA: 1\n" + std::string(1'000'000, 'B') + ": 2\nCC: 3";
  EXPECT_EQ(RunTimeErrorOf([&] { sink.Read(text, &table); }), kErrorOfALongName);
  EXPECT_THAT(sink.Texts(), ElementsAre("Twice=1 @6.1"));
  EXPECT_EQ(sink.ComponentCount(), 1U);
}

// Streams that fail.

TEST(TextReaderTest, ReadErrorWithoutAnExceptionEndsTheReadQuietly) {
  ScriptedBuffer buffer({"USB_VID: 1\nPID: 2", "3"}, [] { throw std::ios_base::failure("gone"); });
  std::istream stream(&buffer);
  Sink sink;
  sink.Read(stream);
  EXPECT_THAT(sink.Texts(), ElementsAre("USB_VID=1 @6.1"));
  EXPECT_EQ(sink.ComponentCount(), 1U);
}

TEST(TextReaderTest, ReadErrorByExceptionIsThrownAndKeepsWhatCameBefore) {
  ScriptedBuffer buffer({"USB_VID: 1\nPID: 2"}, [] { throw std::ios_base::failure("gone"); });
  std::istream stream(&buffer);
  stream.exceptions(std::ios::badbit);
  Sink sink;
  EXPECT_EQ(RunTimeErrorOf([&] { sink.Read(stream); }),
            "I/O read failure on Vendor Info File x.txt: "s + std::ios_base::failure("gone").what());
  EXPECT_THAT(sink.Texts(), ElementsAre("USB_VID=1 @6.1"));
  EXPECT_EQ(sink.ComponentCount(), 1U);
}

TEST(TextReaderTest, EndOfFileByExceptionIsAnOrdinaryEnd) {
  std::istringstream stream("USB_VID: 1\nPID: 2");
  stream.exceptions(std::ios::eofbit | std::ios::failbit | std::ios::badbit);
  Sink sink;
  sink.Read(stream);
  EXPECT_THAT(sink.Texts(), ElementsAre("USB_VID=1 @6.1", "PID=2 @6.1"));
}

TEST(TextReaderTest, OutOfMemoryPasses) {
  ScriptedBuffer buffer({"USB_VID: 1\nPID: 2"}, [] { throw std::bad_alloc(); });
  std::istream stream(&buffer);
  stream.exceptions(std::ios::badbit);
  Sink sink;
  EXPECT_THROW(sink.Read(stream), std::bad_alloc);
  EXPECT_THAT(sink.Texts(), ElementsAre("USB_VID=1 @6.1"));
  EXPECT_EQ(sink.ComponentCount(), 1U);
}

// Files.

TEST(TextReaderTest, ReadsAFileWhateverItsName) {
  const TempDir dir;
  Sink sink;
  sink.ReadFile(dir.Write("no extension", "USB_VID: 1\nPID: 2\n"));
  EXPECT_THAT(sink.Texts(), ElementsAre("USB_VID=1 @6.1", "PID=2 @6.1"));
  EXPECT_EQ(sink.ComponentCount(), 1U);
}

TEST(TextReaderTest, EmptyPathIsAnInternalErrorAndAddsNoComponent) {
  Sink sink;
  EXPECT_EQ(RunTimeErrorOf([&] { sink.ReadFile(""); }), "CVIFImpl::ReadTextFile: Internal error: NULL file name.");
  EXPECT_EQ(sink.ComponentCount(), 0U);
}

TEST(TextReaderTest, MissingFileCannotBeOpenedAndAddsNoComponent) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "%s missing.txt";
  Sink sink;
  EXPECT_EQ(RunTimeErrorOf([&] { sink.ReadFile(path); }), "Couldn't open Vendor Info File: " + path.string() + ".");
  EXPECT_EQ(sink.ComponentCount(), 0U);
}

TEST(TextReaderTest, DirectoryCannotBeOpenedAndAddsNoComponent) {
  const TempDir dir;
  Sink sink;
  EXPECT_EQ(RunTimeErrorOf([&] { sink.ReadFile(dir.Path()); }),
            "Couldn't open Vendor Info File: " + dir.Path().string() + ".");
  EXPECT_EQ(sink.ComponentCount(), 0U);
}

}  // namespace

}  // namespace vif
