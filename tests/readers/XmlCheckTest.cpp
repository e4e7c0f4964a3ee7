// What an observer is told of the elements of an XML VIF.
#include "VIFXmlCheck.h"

#include "VIFInvalidFile.h"
#include "support/FieldText.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::TempDir;
using testsupport::XmlVif;

/// Reports as "line:column path: field", or "line:column path: -" where there is none.
std::vector<std::string> Check(const std::string& content) {
  const TempDir dir;
  std::vector<std::string> reports;
  CheckXmlVif(dir.Write("x.xml", XmlVif(content)), [&](const VifElementReport& report) {
    reports.push_back(std::to_string(report.line) + ':' + std::to_string(report.column) + ' ' + report.path + ": " +
                      (report.field != nullptr ? testsupport::FieldText(*report.field) : "-"));
  });
  return reports;
}

TEST(XmlCheckTest, FieldsAreReportedInTheirOrderAndPlaces) {
  EXPECT_THAT(Check("<vif:TID>7</vif:TID>\n<vif:Component>\n  <vif:SrcPdoList><vif:SrcPDO>"
                    "<vif:A value=\"1\"/></vif:SrcPDO>\n<vif:SrcPDO><vif:A value=\"2\"/></vif:SrcPDO></vif:SrcPdoList>"
                    "<vif:B value=\"3\"/></vif:Component>"),
              ElementsAre("3:1 VIF/TID: TID=\"\" ; 7 @1.0", "6:61 VIF/Component/B: B=3 @6.1",
                          "5:31 VIF/Component/SrcPdoList/SrcPDO[1]/A: A=1 @6.1 @7.1",
                          "6:13 VIF/Component/SrcPdoList/SrcPDO[2]/A: A=2 @6.1 @7.2"));
}

TEST(XmlCheckTest, ApplicationsNamesAreReportedTogether) {
  EXPECT_THAT(Check("<vif:VIF_App><vif:Vendor>V</vif:Vendor><vif:Name>N</vif:Name></vif:VIF_App>"),
              ElementsAre("3:1 VIF/VIF_App: VIF_Producer=\"V N --\" ; V N -- @1.0"));
}

TEST(XmlCheckTest, WhatGivesWayToADescriptionIsPassedOver) {
  EXPECT_THAT(Check("<vif:VIF_App><vif:Description>D</vif:Description>\n<vif:Name>N</vif:Name></vif:VIF_App>"),
              ElementsAre("3:14 VIF/VIF_App/Description: Description=\"\" ; D", "4:1 VIF/VIF_App/Name: -"));
}

TEST(XmlCheckTest, ElementsThatTheRootDoesNotHaveArePassedOverWithWhatIsInThem) {
  EXPECT_THAT(Check("<vif:RP_Value value=\"1\"/>\n<vif:SrcPdoList><vif:SrcPDO><vif:A value=\"1\"/></vif:SrcPDO>"
                    "</vif:SrcPdoList>"),
              ElementsAre("3:1 VIF/RP_Value: -", "4:1 VIF/SrcPdoList: -"));
}

TEST(XmlCheckTest, SecondHeaderElementIsPassedOver) {
  EXPECT_THAT(Check("<vif:TID>1</vif:TID>\n<vif:TID>2</vif:TID>"),
              ElementsAre("3:1 VIF/TID[1]: TID=\"\" ; 1 @1.0", "4:1 VIF/TID[2]: -"));
}

TEST(XmlCheckTest, EmptyItemsAndComponentsArePassedOver) {
  EXPECT_THAT(Check("<vif:Component/>\n<vif:Component><vif:SrcPdoList><vif:SrcPDO/><vif:SrcPDO><vif:A/></vif:SrcPDO>"
                    "</vif:SrcPdoList></vif:Component>"),
              ElementsAre("4:57 VIF/Component[2]/SrcPdoList/SrcPDO[2]/A: A=\"\" @6.2 @7.2", "3:1 VIF/Component[1]: -",
                          "4:32 VIF/Component[2]/SrcPdoList/SrcPDO[1]: -"));
}

TEST(XmlCheckTest, EmptyProductIsNothingUnusual) { EXPECT_THAT(Check("<vif:Product/>"), IsEmpty()); }

TEST(XmlCheckTest, OptionalContentIsNotReported) {
  EXPECT_THAT(Check("<opt:OptionalContent/><vif:Product><opt:OptionalContent><opt:A/></opt:OptionalContent>"
                    "</vif:Product>"),
              IsEmpty());
}

TEST(XmlCheckTest, NobodyNeedsToBeTold) {
  const TempDir dir;
  EXPECT_NO_THROW(CheckXmlVif(dir.Write("x.xml", XmlVif("<vif:TID>1</vif:TID>")), nullptr));
}

TEST(XmlCheckTest, InvalidFileIsRaised) { EXPECT_THROW(Check("text"), CVIFInvalidFile); }

TEST(XmlCheckTest, WhatTheObserverThrowsEndsTheReading) {
  const TempDir dir;
  int calls = 0;
  EXPECT_THROW(CheckXmlVif(dir.Write("x.xml", XmlVif("<vif:TID>1</vif:TID><vif:Brand_New/>")),
                           [&](const VifElementReport&) {
                             ++calls;
                             throw std::logic_error("enough");
                           }),
               std::logic_error);
  EXPECT_EQ(calls, 1);
}

}  // namespace
