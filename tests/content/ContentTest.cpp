// What reading from memory does with names.
#include "BaseUtilities/Exceptions.h"
#include "SampleContents.h"
#include "VIFContent.h"
#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/RunTimeErrorOf.h"
#include "support/XmlVif.h"

#include <analysis/Check.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testsupport::RunTimeErrorOf;

constexpr const char* kWrongForm = "Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)";

TEST(ContentTest, SeveralContentsAreComponentsOfOneObject) {
  CVendorInfoFile vif;
  AppendVifContent(vif, "PID: 1\n", "first.txt");
  AppendVifContent(vif, testsupport::XmlVif("<vif:Component><vif:RP_Value value=\"1\"/></vif:Component>"), "b.xml");
  AppendVifContent(vif, "PID: 3\n", "c.TXT");
  EXPECT_THAT(testsupport::FieldTexts(vif.Fields()), ElementsAre("PID=1 @6.1", "RP_Value=1 @6.2", "PID=3 @6.3"));
  EXPECT_EQ(vif.ComponentCount(), 3U);
  EXPECT_STREQ(vif.FileName(), L"first.txt");
}

TEST(ContentTest, UsesTheDefinitionsOfTheObject) {
  std::vector<VifFieldDef> table = {
      VifFieldDef{L"Ours", std::wregex(L"Our_Name"), {eVifLocVif, eVifLocUnset, eVifLocUnset}}};
  CVendorInfoFile vif(nullptr, &table);
  AppendVifContent(vif, "Our_Name: 7\n", "a.txt");
  EXPECT_STREQ(vif.Fields().at(0).Name(), "Ours");
}

TEST(ContentTest, TheExtensionDecidesAboutTheForm) {
  CVendorInfoFile vif;
  for (const char* name : {"", "a", "a.json", ".txt", "a.txt.bak"}) {
    EXPECT_EQ(RunTimeErrorOf([&] { AppendVifContent(vif, "PID: 1\n", name); }), kWrongForm) << name;
  }
  EXPECT_EQ(vif.Count(), 0U);
  EXPECT_STREQ(vif.FileName(), L"");
}

TEST(ContentTest, NeedsNoFileOfThatName) {
  CVendorInfoFile vif;
  AppendVifContent(vif, "PID: 1\n", "no such folder/a.txt");
  EXPECT_EQ(vif.Count(), 1U);
}

TEST(ContentTest, MessagesHaveTheName) {
  CVendorInfoFile vif;
  try {
    AppendVifContent(vif, "<a/>", "archive.zip/dock.xml");
    FAIL();
  } catch (const CVIFInvalidFile& error) {
    EXPECT_STREQ(error.what(), "archive.zip/dock.xml is not a valid Vendor Info File.");
    EXPECT_EQ(error.Problems().at(0).line, 1U);
  }
}

TEST(ContentTest, ChecksNeedAnExtension) {
  try {
    vifanalysis::CheckContent("PID: 1\n", "a.json");
    FAIL();
  } catch (const vifanalysis::CCheckError& error) {
    EXPECT_STREQ(error.what(), "a VIF is a text (*.txt) or XML (*.xml) file");
  }
}

TEST(ContentTest, ChecksTellTextFromXml) {
  const auto findings = vifanalysis::CheckContent("PID: 1\n", "a.xml");
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].code, "wrong-extension");
}

}  // namespace
