// What is found about names that the definition table does not have.
#include "support/TempDir.h"

#include <analysis/Check.h>
#include <analysis/Vocabulary.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::vector<std::string> kCodes = {"unknown-name", "other-spelling", "older-name", "newer-field"};

/// The findings about names, each as "3 note older-name".
std::vector<std::string> Found(const std::string& file, const std::string& content, std::string* message = nullptr) {
  const testsupport::TempDir dir;
  std::vector<std::string> texts;
  for (const Finding& finding : CheckFile(dir.Write(file, content), {.notes = true, .only = kCodes})) {
    texts.push_back(std::to_string(finding.line) + ' ' + SeverityName(finding.severity) + ' ' + finding.code);
    if (message != nullptr) *message = finding.message;
  }
  return texts;
}

std::vector<std::string> FoundInText(const std::string& content) { return Found("a.txt", content); }

/// The message of the only finding.
std::string TextMessage(const std::string& content) {
  std::string message;
  EXPECT_EQ(Found("a.txt", content, &message).size(), 1U);
  return message;
}

std::string Xml(const std::string& edition, const std::string& component) {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<vif:VIF xmlns:vif=\"http://usb.org/VendorInfoFile.xsd\">\n"
         "<vif:VIF_Specification>" +
         edition + "</vif:VIF_Specification>\n<vif:Component>\n" + component + "</vif:Component>\n</vif:VIF>\n";
}

std::vector<std::string> FoundInXml(const std::string& component) { return Found("a.xml", Xml("3.30", component)); }

std::string XmlMessage(const std::string& component) {
  std::string message;
  EXPECT_EQ(Found("a.xml", Xml("3.30", component), &message).size(), 1U);
  return message;
}

/// The spelling as a text file has it.
std::string WithNumbers(std::string_view spelling) {
  std::string name(spelling);
  std::replace(name.begin(), name.end(), '#', '2');
  return name;
}

/// A line of a text file that declares something by that name.
std::string Declaration(std::string_view spelling) {
  return WithNumbers(spelling) + (spelling.starts_with('$') ? ": \"1\"\n" : ": 1\n");
}

TEST(UndefinedNames, OfAnotherSpellingAreNotes) {
  EXPECT_THAT(FoundInText("PID: 1\nPD_Power_as_Sink: 1\n"), ElementsAre("2 note other-spelling"));
  EXPECT_EQ(TextMessage("PD_Power_as_Sink: 1\n"),
            "'PD_Power_as_Sink' (editions 1.11 to 1.40) is another spelling of 'PD_Power_As_Sink' (edition 2.01 and "
            "later); it gets no location, and a query for the present name does not find it");
}

TEST(UndefinedNames, OfOtherSpellingsKeepTheNumbersOfGroups) {
  EXPECT_THAT(TextMessage("SVID1_mode2_enter_SOP: 1\n"), HasSubstr("is another spelling of 'SVID1_Mode2_Enter_SOP'"));
}

TEST(UndefinedNames, OfTextsKeepTheDollarSign) {
  EXPECT_THAT(TextMessage("$Vendor_name: \"x\"\n"),
              HasSubstr("is another spelling of '$Vendor_Name' (edition 1.11 and later); "));
  EXPECT_THAT(TextMessage("$Product_Name: \"x\"\n"),
              HasSubstr("is an older name of '$Model_Part_Number' (edition 1.36 and later); "));
}

TEST(UndefinedNames, OfRenamedFieldsAreNotes) {
  EXPECT_THAT(FoundInText("Externally_Powered: 1\n"), ElementsAre("1 note older-name"));
  EXPECT_THAT(TextMessage("Externally_Powered: 1\n"),
              HasSubstr("'Externally_Powered' (edition 1.11) is an older name of 'Unconstrained_Power' (edition "));
}

TEST(UndefinedNames, OfAFieldSplitInTwoNameBoth) {
  const std::string message = TextMessage("Product_Type_SOP: 1\n");
  EXPECT_THAT(message, HasSubstr("is an older name of 'Product_Type_UFP_SOP' (edition "));
  EXPECT_THAT(message, HasSubstr(" and 'Product_Type_DFP_SOP' (edition "));
}

TEST(UndefinedNames, OfDroppedFieldsAreNotes) {
  EXPECT_THAT(FoundInText("Structured_VDM_Version_SOP: 1\n"), ElementsAre("1 note older-name"));
  EXPECT_EQ(TextMessage("Structured_VDM_Version_SOP: 1\n"),
            "'Structured_VDM_Version_SOP' (editions 1.11 to 1.22) is a field that later editions no longer have; it "
            "gets no location");
}

TEST(UndefinedNames, OfKnownMistakesAreNotes) {
  EXPECT_THAT(FoundInText("Type_C_Source_Vconn: 1\n"), ElementsAre("1 note other-spelling"));
  EXPECT_THAT(TextMessage("Type_C_Source_Vconn: 1\n"), HasSubstr("is a known mistake for 'Type_C_Sources_VCONN'"));
}

TEST(UndefinedNames, ThatMeanAnotherFieldOnlyPerhapsAreMarked) {
  EXPECT_THAT(TextMessage("FR_Swap_Supported_As_Source: 1\n"), HasSubstr(", which is uncertain; "));
  EXPECT_THAT(TextMessage("Externally_Powered: 1\n"), testing::Not(HasSubstr("uncertain")));
}

TEST(UndefinedNames, AreNotedOnceForEachFile) {
  EXPECT_THAT(FoundInText("PD_Power_as_Sink: 1\nPD_Power_as_Sink: 1\nPD_Power_as_Source: 1\n"),
              ElementsAre("1 note other-spelling", "3 note other-spelling"));
  EXPECT_THAT(FoundInText("SVID1_num_modes_min_SOP: 1\nSVID2_num_modes_min_SOP: 1\n"),
              ElementsAre("1 note other-spelling"));
}

TEST(UndefinedNames, OfNewerFieldsAreRightWhereTheFilesEditionHasThem) {
  EXPECT_THAT(FoundInText("$VIF_Specification: \"3.22\"\nHas_Invariant_PDOs: 1\n"), IsEmpty());
  EXPECT_THAT(FoundInText("$VIF_Specification: \"3.99\"\nHas_Invariant_PDOs: 1\n"), IsEmpty());
  EXPECT_THAT(FoundInText("Has_Invariant_PDOs: 1\n"), IsEmpty());
  EXPECT_THAT(FoundInText("$VIF_Specification: \"new\"\nHas_Invariant_PDOs: 1\n"), IsEmpty());
}

TEST(UndefinedNames, OfNewerFieldsAreNotesInAnOlderFile) {
  EXPECT_THAT(FoundInText("Has_Invariant_PDOs: 1\n$VIF_Specification: \"3.21\"\nHas_Invariant_PDOs: 1\n"),
              ElementsAre("1 note newer-field"));
  EXPECT_EQ(TextMessage("$VIF_Specification: \"3.21\"\nHas_Invariant_PDOs: 1\n"),
            "'Has_Invariant_PDOs' appears only from edition 3.22 on, but the file follows edition 3.21");
}

TEST(UndefinedNames, ThatNobodyKnowsAreWarningsEachTime) {
  EXPECT_THAT(FoundInText("My_Own: 1\nMy_Own: 1\n"), ElementsAre("1 warning unknown-name", "2 warning unknown-name"));
}

TEST(UndefinedNames, InALetterCaseThatNoEditionHasAreUnknown) {
  EXPECT_THAT(FoundInText("pd_power_as_sink: 1\n"), ElementsAre("1 warning unknown-name"));
  EXPECT_THAT(FoundInText("has_invariant_pdos: 1\n"), ElementsAre("1 warning unknown-name"));
  EXPECT_THAT(TextMessage("has_invariant_pdos: 1\n"), HasSubstr("; did you mean 'Has_Invariant_PDOs'?"));
}

TEST(UndefinedNames, OfTheXmlFormAreUnknownInTextFiles) {
  EXPECT_THAT(FoundInText("SOPSVIDList: 1\n"), ElementsAre("1 warning unknown-name"));
}

TEST(UndefinedNames, ThatAnEditionHasAreNeverWarnings) {
  std::string text;
  for (const FieldSpelling& row : Spellings()) text += Declaration(row.spelling);
  for (const FieldInfo& field : Fields()) {
    if (field.standing != FieldStanding::XmlStructure) text += Declaration(field.spelling);
  }
  const std::vector<std::string> found = FoundInText(text);
  EXPECT_GT(found.size(), 40U);
  for (const std::string& finding : found) EXPECT_THAT(finding, HasSubstr(" note ")) << text;
}

TEST(UndefinedNames, AreJudgedInXmlFilesAsWell) {
  EXPECT_THAT(FoundInXml("<vif:PD_Power_as_Sink value=\"1\"/>\n"), ElementsAre("5 note other-spelling"));
  EXPECT_THAT(FoundInXml("<vif:Structured_VDM_Version_SOP value=\"1\"/>\n"), ElementsAre("5 note older-name"));
  EXPECT_THAT(FoundInXml("<vif:Has_Invariant_PDOs value=\"true\"/>\n"), IsEmpty());
  EXPECT_THAT(Found("a.xml", Xml("3.10", "<vif:Has_Invariant_PDOs value=\"true\"/>\n")),
              ElementsAre("5 note newer-field"));
  EXPECT_THAT(FoundInXml("<vif:Remark value=\"1\"/>\n"), ElementsAre("5 warning unknown-name"));
  EXPECT_THAT(FoundInXml("<vif:Vendor>x</vif:Vendor>\n"), ElementsAre("5 warning unknown-name"));
}

TEST(UndefinedNames, HaveTheirPlaceInAnXmlFile) {
  EXPECT_EQ(XmlMessage("<vif:PD_Power_as_Sink value=\"1\"/>\n"),
            "'PD_Power_as_Sink' (editions 1.11 to 1.40) is another spelling of 'PD_Power_As_Sink' (edition 2.01 and "
            "later); a query for the present name does not find it");
}

TEST(UndefinedNames, HaveNoNumbersInAnXmlFile) {
  EXPECT_THAT(XmlMessage("<vif:SVID_fixed_SOP value=\"1\"/>\n"), HasSubstr("'SVID_Fixed_SOP'"));
  EXPECT_THAT(FoundInXml("<vif:SVID1_mode1_enter_SOP value=\"1\"/>\n"), ElementsAre("5 warning unknown-name"));
}

}  // namespace
}  // namespace vifanalysis
