// A text file that is named as an XML file, and the reverse.
#include "FindingTexts.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testsupport::FindingsIn;
using testsupport::FindingTexts;
using testsupport::MessagesOf;
using testsupport::ProgramResult;
using testsupport::TempDir;
using testsupport::Vif;

constexpr const char* kIsText = "this is a text VIF, not XML; the name of a text VIF ends in .txt";
constexpr const char* kIsXml = "this is XML, not a text VIF; the name of an XML VIF ends in .xml";
constexpr const char* kUtf8Mark = "\xEF\xBB\xBF";

const std::string kXml = testsupport::XmlVif("<vif:Vendor_Name>Acme</vif:Vendor_Name>");

/// The ASCII text in UTF-16.
std::string Utf16(std::string_view ascii, bool isBigEndian) {
  std::string text;
  for (const char c : ascii) text += isBigEndian ? std::string{'\0', c} : std::string{c, '\0'};
  return text;
}

struct FormCase {
  std::string name;
  std::string content;
  const char* advice;
};

class MisnamedFile : public testing::TestWithParam<FormCase> {};

TEST_P(MisnamedFile, IsRefusedWithAdvice) {
  const TempDir dir;
  const std::string file = dir.Write(GetParam().name, GetParam().content).string();
  for (const char* command : {"list", "get", "show"}) {
    const ProgramResult result = Vif({command, file});
    EXPECT_EQ(result.status, 2) << command;
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "vif: " + file + ": " + GetParam().advice + "\n");
  }
}

TEST_P(MisnamedFile, IsTheOnlyFinding) {
  const nlohmann::json findings = FindingsIn(GetParam().name, GetParam().content);
  EXPECT_THAT(FindingTexts(findings), ElementsAre("- error wrong-extension"));
  EXPECT_THAT(MessagesOf(findings), ElementsAre(GetParam().advice));
}

INSTANTIATE_TEST_SUITE_P(Text, MisnamedFile,
                         testing::Values(FormCase{"a.xml", "$Vendor_Name: \"Acme\"\nPID: 1\n", kIsText},
                                         FormCase{"a.XML", "PID : 1", kIsText},  // no line end
                                         FormCase{"a.xml", "\r\n \t\r\n  ; a comment\nPID: 1\n", kIsText},
                                         FormCase{"a.xml", "Cable_SOP''_Controller: YES\n", kIsText},
                                         FormCase{"a.xml", kUtf8Mark + "; a comment\nPID: 1\n"s, kIsText},
                                         FormCase{"a.xml", "PID: \"<a>\"\n<a/>\n", kIsText}));

INSTANTIATE_TEST_SUITE_P(Xml, MisnamedFile,
                         testing::Values(FormCase{"a.txt", kXml, kIsXml}, FormCase{"a.TXT", kXml, kIsXml},
                                         FormCase{"a.txt", kUtf8Mark + kXml, kIsXml},
                                         FormCase{"a.txt", "\n  <vif:VIF xmlns:vif=\"x\">\n</vif:VIF>", kIsXml},
                                         FormCase{"a.txt", "<!-- Acme -->\n<a/>\n", kIsXml},
                                         FormCase{"a.txt", "\xFF\xFE" + Utf16(kXml, false), kIsXml},
                                         FormCase{"a.txt", "\xFE\xFF" + Utf16(kXml, true), kIsXml},
                                         FormCase{"a.txt", Utf16(kXml, false), kIsXml},
                                         FormCase{"a.txt", Utf16(kXml, true), kIsXml}));

class UndecidedFile : public testing::TestWithParam<FormCase> {};

TEST_P(UndecidedFile, GetsNoAdvice) {
  const TempDir dir;
  const std::string file = dir.Write(GetParam().name, GetParam().content).string();
  for (const char* command : {"list", "check"}) {
    const ProgramResult result = Vif({command, file});
    EXPECT_THAT(result.output + result.error, Not(HasSubstr("the name of "))) << command;
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, UndecidedFile,
    testing::Values(FormCase{"a.xml", "", nullptr}, FormCase{"a.txt", "", nullptr}, FormCase{"a.xml", "oops", nullptr},
                    FormCase{"a.txt", "< 5 V\nPID: 1\n", nullptr}, FormCase{"a.txt", "<", nullptr},
                    FormCase{"a.xml", ": 1\n", nullptr}, FormCase{"a.xml", "$: 1\n", nullptr},
                    FormCase{"a.xml", "P-D: 1\n", nullptr}, FormCase{"a.xml", "<a>PID: 1", nullptr},
                    FormCase{"a.txt", "<?xml?>\nPID: 1\n", nullptr}, FormCase{"a.txt", "<a>\nPID: 1\n", nullptr},
                    FormCase{"a.txt", "PID: 1\n<a/>\n", nullptr}, FormCase{"a.txt", "oops\n<a/>\n", nullptr},
                    FormCase{"a.xml", "\xFF\xFE" + Utf16("PID: 1\n", false), nullptr},
                    FormCase{"a.xml", std::string(100'000, ' ') + "PID: 1\n", nullptr}));

}  // namespace
