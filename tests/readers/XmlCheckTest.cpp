// What observers learn of the elements of an XML VIF.
#include "VIFXmlCheck.h"

#include "BaseUtilities/Exceptions.h"
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

const char* FateText(EVifElementFate fate) {
  switch (fate) {
    case eVifElementNotRead: return "not read";
    case eVifElementGivesWay: return "gives way";
    case eVifElementEmpty: return "empty";
    case eVifElementForeign: return "foreign";
    case eVifElementNotUnderstood: return "not understood";
    default: return "?";
  }
}

/// Reports as "line:column path: field", or with the element's fate if there is no field.
std::vector<std::string> Check(const std::string& content) {
  const TempDir dir;
  std::vector<std::string> reports;
  CheckXmlVif(dir.Write("x.xml", XmlVif(content)), [&](const VifElementReport& report) {
    reports.push_back(std::to_string(report.line) + ':' + std::to_string(report.column) + ' ' + report.path + ": " +
                      (report.field != nullptr ? testsupport::FieldText(*report.field) : FateText(report.fate)));
  });
  return reports;
}

TEST(XmlCheckTest, FieldsAreReportedInTheirOrderWithTheirPositions) {
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

TEST(XmlCheckTest, WhatADescriptionReplacesIsSkipped) {
  EXPECT_THAT(Check("<vif:VIF_App><vif:Description>D</vif:Description>\n<vif:Name>N</vif:Name></vif:VIF_App>"),
              ElementsAre("3:14 VIF/VIF_App/Description: Description=\"\" ; D", "4:1 VIF/VIF_App/Name: gives way"));
}

TEST(XmlCheckTest, ElementsThatAnApplicationDoesNotHaveAreSkipped) {
  EXPECT_THAT(Check("<vif:VIF_App><vif:Vendor>V</vif:Vendor>\n<vif:TID>1</vif:TID></vif:VIF_App>"),
              ElementsAre("3:1 VIF/VIF_App: VIF_Producer=\"V -- --\" ; V -- -- @1.0", "4:1 VIF/VIF_App/TID: not read"));
}

TEST(XmlCheckTest, SecondElementOfAnApplicationIsSkipped) {
  EXPECT_THAT(
      Check("<vif:VIF_App><vif:Description>D</vif:Description>\n<vif:Description>E</vif:Description>"
            "</vif:VIF_App>"),
      ElementsAre("3:14 VIF/VIF_App/Description[1]: Description=\"\" ; D", "4:1 VIF/VIF_App/Description[2]: not read"));
}

TEST(XmlCheckTest, ElementsThatTheRootDoesNotHaveAreSkippedWithTheirContent) {
  EXPECT_THAT(Check("<vif:RP_Value value=\"1\"/>\n<vif:SrcPdoList><vif:SrcPDO><vif:A value=\"1\"/></vif:SrcPDO>"
                    "</vif:SrcPdoList>"),
              ElementsAre("3:1 VIF/RP_Value: not read", "4:1 VIF/SrcPdoList: not read"));
}

TEST(XmlCheckTest, SecondHeaderElementIsSkipped) {
  EXPECT_THAT(Check("<vif:TID>1</vif:TID>\n<vif:TID>2</vif:TID>"),
              ElementsAre("3:1 VIF/TID[1]: TID=\"\" ; 1 @1.0", "4:1 VIF/TID[2]: not read"));
}

TEST(XmlCheckTest, EmptyItemsAndComponentsAreSkipped) {
  EXPECT_THAT(Check("<vif:Component/>\n<vif:Component><vif:SrcPdoList><vif:SrcPDO/><vif:SrcPDO><vif:A/></vif:SrcPDO>"
                    "</vif:SrcPdoList></vif:Component>"),
              ElementsAre("4:57 VIF/Component[2]/SrcPdoList/SrcPDO[2]/A: A=\"\" @6.2 @7.2",
                          "3:1 VIF/Component[1]: empty", "4:32 VIF/Component[2]/SrcPdoList/SrcPDO[1]: empty"));
}

TEST(XmlCheckTest, EmptyProductIsNotReported) { EXPECT_THAT(Check("<vif:Product/>"), IsEmpty()); }

TEST(XmlCheckTest, OptionalContentIsNotReported) {
  EXPECT_THAT(Check("<opt:OptionalContent/><vif:Product><opt:OptionalContent><opt:A/></opt:OptionalContent>"
                    "</vif:Product>"),
              IsEmpty());
}

TEST(XmlCheckTest, ElementsOfOtherNamespacesAreSkippedWithTheirContent) {
  EXPECT_THAT(Check("<Component><TID>1</TID></Component>\n<vif:Component><vif:A value=\"1\"/><x:B xmlns:x=\"u\"/>"
                    "</vif:Component>\n<vif:VIF_App><Vendor>V</Vendor></vif:VIF_App>"),
              ElementsAre("4:16 VIF/Component/A: A=1 @6.1", "3:1 VIF/Component: foreign",
                          "4:34 VIF/Component/B: foreign", "5:14 VIF/VIF_App/Vendor: foreign"));
}

TEST(XmlCheckTest, GroupThatLoadingFailsOnIsReportedBeforeTheFailure) {
  const TempDir dir;
  std::vector<std::string> paths;
  EXPECT_THROW(
      CheckXmlVif(dir.Write("x.xml", XmlVif("<vif:Component><vif:A value=\"1\"/><vif:Foo><vif:B/></vif:Foo>"
                                            "</vif:Component>")),
                  [&](const VifElementReport& report) { paths.push_back(report.path + FateText(report.fate)); }),
      CZoDOMDocException);
  EXPECT_THAT(paths, ElementsAre("VIF/Component/A?", "VIF/Component/Foonot understood"));
}

TEST(XmlCheckTest, ListThatIsNestedTooDeeplyIsReportedBeforeTheFailure) {
  const TempDir dir;
  std::string last;
  EXPECT_THROW(
      CheckXmlVif(
          dir.Write("x.xml", XmlVif("<vif:Product><vif:USB4RouterList><vif:Usb4Router><vif:PCIeEndpointList>"
                                    "<vif:PCIeEndpoint><vif:SrcPdoList><vif:A/></vif:SrcPdoList></vif:PCIeEndpoint>"
                                    "</vif:PCIeEndpointList></vif:Usb4Router></vif:USB4RouterList></vif:Product>")),
          [&](const VifElementReport& report) { last = report.path; }),
      CZoRunTimeException);
  EXPECT_EQ(last, "VIF/Product/USB4RouterList/Usb4Router/PCIeEndpointList/PCIeEndpoint/SrcPdoList");
}

TEST(XmlCheckTest, LongNamesAreCutInPaths) {
  const std::string name(1'000, 'n');
  EXPECT_THAT(Check("<vif:" + name + "/>"), ElementsAre("3:1 VIF/" + std::string(100, 'n') + "...: not read"));
}

TEST(XmlCheckTest, ObserverIsOptional) {
  const TempDir dir;
  EXPECT_NO_THROW(CheckXmlVif(dir.Write("x.xml", XmlVif("<vif:TID>1</vif:TID>")), nullptr));
}

TEST(XmlCheckTest, InvalidFileThrows) { EXPECT_THROW(Check("text"), CVIFInvalidFile); }

TEST(XmlCheckTest, ExceptionOfTheObserverEndsTheReading) {
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
