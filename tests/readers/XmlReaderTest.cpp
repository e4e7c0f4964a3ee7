// Reading the fields of an XML VIF.
#include "XmlReader.h"

#include "BaseUtilities/Exceptions.h"
#include "VIFInvalidFile.h"
#include "support/CodePage.h"
#include "support/FieldText.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace vif {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testsupport::RunTimeErrorOf;
using testsupport::SystemNarrow;
using testsupport::TempDir;
using testsupport::XmlVif;

/// Reads files into one list, as one object would.
class XmlReaderTest : public testing::Test {
 protected:
  void Read(const std::string& content) { ReadDocument(XmlVif(content)); }

  void ReadDocument(const std::string& document) {
    ReadXmlVif(m_dir.Write("x.xml", document), {m_fields, m_componentCount});
  }

  std::vector<std::string> Fields(const std::string& content) {
    Read(content);
    return Fields();
  }

  std::vector<std::string> Fields() const { return testsupport::FieldTexts(m_fields); }

  std::string DomErrorOf(const std::string& content) {
    try {
      Read(content);
    } catch (const CZoDOMDocException& error) {
      return error.what();
    }
    return "<no exception>";
  }

  TempDir m_dir;
  std::vector<CVIFField> m_fields;
  std::uint32_t m_componentCount = 0;
};

// The header.

TEST_F(XmlReaderTest, DescriptionOfTheApplicationIsPreferredToItsNames) {
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Vendor>V</vif:Vendor><vif:Name>N</vif:Name><vif:Version>1</vif:Version>"
                     "<vif:Description>D</vif:Description></vif:VIF_App>"),
              ElementsAre("Description=\"\" ; D"));
}

TEST_F(XmlReaderTest, ApplicationIsNamedByVendorNameAndVersion) {
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Version>1.2</vif:Version><vif:Name>Editor</vif:Name>"
                     "<vif:Vendor>ACME</vif:Vendor></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\"ACME Editor 1.2\" ; ACME Editor 1.2 @1.0"));
}

TEST_F(XmlReaderTest, MissingPartsOfTheApplicationsNameAreTwoHyphens) {
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Vendor>ACME</vif:Vendor></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\"ACME -- --\" ; ACME -- -- @1.0"));
  m_fields.clear();
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Name>N</vif:Name></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\"-- N --\" ; -- N -- @1.0"));
  m_fields.clear();
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Version>1</vif:Version></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\"-- -- 1\" ; -- -- 1 @1.0"));
}

TEST_F(XmlReaderTest, EmptyPartOfTheApplicationsNameIsEmptyText) {
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Vendor/><vif:Name>N</vif:Name></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\" N --\" ;  N -- @1.0"));
}

TEST_F(XmlReaderTest, ApplicationWithoutAnyNameYieldsNoField) {
  EXPECT_THAT(Fields("<vif:VIF_App/>"), IsEmpty());
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Other>x</vif:Other></vif:VIF_App>"), IsEmpty());
}

TEST_F(XmlReaderTest, PercentSignsInTheApplicationsNameAreText) {
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Vendor>%s%n</vif:Vendor><vif:Name>100 %</vif:Name></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\"%s%n 100 % --\" ; %s%n 100 % -- @1.0"));
}

TEST_F(XmlReaderTest, SpecificationIsPrecededByTheWordVersion) {
  EXPECT_THAT(Fields("<vif:VIF_Specification>3.1</vif:VIF_Specification>"),
              ElementsAre("VIF_Specification=\"Version 3.1\" ; Version 3.1 @1.0"));
}

TEST_F(XmlReaderTest, EmptySpecificationKeepsTheWordVersionWithItsBlank) {
  EXPECT_THAT(Fields("<vif:VIF_Specification/>"), ElementsAre("VIF_Specification=\"Version \" ; Version  @1.0"));
}

TEST_F(XmlReaderTest, HeaderHasAnOrderOfItsOwn) {
  EXPECT_THAT(Fields("<vif:Product><vif:USB4_Dock value=\"true\"/></vif:Product>"
                     "<vif:Certification_Type value=\"0\"/><vif:VIF_Product_Type value=\"1\"/><vif:TID>9</vif:TID>"
                     "<vif:Product_Revision>2</vif:Product_Revision><vif:Model_Part_Number>M</vif:Model_Part_Number>"
                     "<vif:Vendor_Name>V</vif:Vendor_Name><vif:VIF_Specification>3</vif:VIF_Specification>"
                     "<vif:VIF_App><vif:Name>N</vif:Name></vif:VIF_App>"),
              ElementsAre("VIF_Producer=\"-- N --\" ; -- N -- @1.0", "VIF_Specification=\"Version 3\" ; Version 3 @1.0",
                          "Vendor_Name=\"\" ; V @1.0", "Model_Part_Number=\"\" ; M @1.0",
                          "Product_Revision=\"\" ; 2 @1.0", "TID=\"\" ; 9 @1.0", "VIF_Product_Type=1 @1.0",
                          "Certification_Type=0 @3.0", "USB4_Dock=1 ; YES @3.0"));
}

TEST_F(XmlReaderTest, CertificationBelongsToTheProductAndTheIdToTheFile) {
  EXPECT_THAT(Fields("<vif:TID value=\"12\"/><vif:Certification_Type value=\"0\">End Product</vif:Certification_Type>"),
              ElementsAre("TID=12 @1.0", "Certification_Type=0 ; End Product @3.0"));
}

TEST_F(XmlReaderTest, FirstOfSeveralHeaderElementsIsRead) {
  EXPECT_THAT(Fields("<vif:Vendor_Name>A</vif:Vendor_Name><vif:Vendor_Name>B</vif:Vendor_Name>"),
              ElementsAre("Vendor_Name=\"\" ; A @1.0"));
}

TEST_F(XmlReaderTest, OtherElementsUnderTheRootAreIgnored) {
  EXPECT_THAT(Fields("<vif:Brand_New value=\"1\"/><vif:SrcPdoList><vif:SrcPDO><vif:Src_PDO_Voltage value=\"1\"/>"
                     "</vif:SrcPDO></vif:SrcPdoList><opt:OptionalContent>x</opt:OptionalContent>"),
              IsEmpty());
}

TEST_F(XmlReaderTest, EmptyDocumentYieldsNothing) {
  EXPECT_THAT(Fields(""), IsEmpty());
  EXPECT_EQ(m_componentCount, 0u);
}

// Leaves.

TEST_F(XmlReaderTest, ValueAttributeMakesAFieldNumeric) {
  EXPECT_THAT(Fields("<vif:Component><vif:RP_Value value=\"2\">3A</vif:RP_Value></vif:Component>"),
              ElementsAre("RP_Value=2 ; 3A @6.1"));
  EXPECT_EQ(m_fields.front().GetULongNumericValue(), 2u);
}

TEST_F(XmlReaderTest, ElementWithoutValueHasItsTextAsDescription) {
  EXPECT_THAT(Fields("<vif:Component><vif:Port_Label>C1</vif:Port_Label></vif:Component>"),
              ElementsAre("Port_Label=\"\" ; C1 @6.1"));
  EXPECT_FALSE(m_fields.front().IsNumeric());
}

TEST_F(XmlReaderTest, TrueAndFalseBecomeNumbersWithAWord) {
  EXPECT_THAT(Fields("<vif:Component><vif:Captive_Cable value=\"true\"/><vif:Sends_Pings value=\"false\"/>"
                     "</vif:Component>"),
              ElementsAre("Captive_Cable=1 ; YES @6.1", "Sends_Pings=0 ; NO @6.1"));
}

TEST_F(XmlReaderTest, TextIsPreferredToTheWord) {
  EXPECT_THAT(Fields("<vif:Component><vif:Captive_Cable value=\"true\">Yes, it is</vif:Captive_Cable>"
                     "<vif:Sends_Pings value=\"false\">never</vif:Sends_Pings></vif:Component>"),
              ElementsAre("Captive_Cable=1 ; Yes, it is @6.1", "Sends_Pings=0 ; never @6.1"));
}

TEST_F(XmlReaderTest, WordReplacesABlankText) {
  EXPECT_THAT(Fields("<vif:Component><vif:Captive_Cable value=\"true\"> \n </vif:Captive_Cable></vif:Component>"),
              ElementsAre("Captive_Cable=1 ; YES @6.1"));
}

TEST_F(XmlReaderTest, OnlyTheExactWordsBecomeNumbers) {
  EXPECT_THAT(Fields("<vif:Component><vif:New_A value=\"TRUE\"/><vif:New_B value=\" true\"/><vif:New_C value=\"1\"/>"
                     "</vif:Component>"),
              ElementsAre("New_A=TRUE @6.1", "New_B= true @6.1", "New_C=1 @6.1"));
  EXPECT_EQ(m_fields[0].GetULongNumericValue(), 1u);
  EXPECT_EQ(m_fields[1].GetULongNumericValue(), CVIFField::VIF_VALUE_UNSET_64);
}

TEST_F(XmlReaderTest, EmptyValueIsNumericWithoutANumber) {
  Read("<vif:Component><vif:New_A value=\"\">x</vif:New_A></vif:Component>");
  EXPECT_THAT(Fields(), ElementsAre("New_A= ; x @6.1"));
  EXPECT_EQ(m_fields.front().GetULongNumericValue(), CVIFField::VIF_VALUE_UNSET_64);
}

TEST_F(XmlReaderTest, ValueAttributeOfAnotherNamespaceIsIgnored) {
  EXPECT_THAT(Fields("<vif:Component><vif:RP_Value opt:value=\"2\">x</vif:RP_Value></vif:Component>"),
              ElementsAre("RP_Value=\"\" ; x @6.1"));
}

// The value is UTF-8 on every system; on Windows, names and texts are in the system's code page.
TEST_F(XmlReaderTest, TextsMayBeInAnyLanguage) {
  EXPECT_THAT(Fields("<vif:Component><vif:Port_Label>Type-C® 端口 &#x1F50C;</vif:Port_Label>"
                     "<vif:N\xC3\xA4me value=\"\xC3\xBC \xE7\xAB\xAF\"/></vif:Component>"),
              ElementsAre("Port_Label=\"\" ; " + SystemNarrow(L"Type-C\u00AE \u7AEF\u53E3 \U0001F50C") + " @6.1",
                          SystemNarrow(L"N\u00E4me") + "=\xC3\xBC \xE7\xAB\xAF @6.1"));
}

TEST_F(XmlReaderTest, HeaderMayBeInAnyLanguage) {
  EXPECT_THAT(Fields("<vif:VIF_App><vif:Vendor>\xC3\x84 \xE7\xAB\xAF</vif:Vendor></vif:VIF_App>"
                     "<vif:VIF_Specification>\xE2\x82\xAC</vif:VIF_Specification>"),
              ElementsAre("VIF_Producer=\"" + SystemNarrow(L"\u00C4 \u7AEF") + " -- --\" ; " +
                              SystemNarrow(L"\u00C4 \u7AEF") + " -- -- @1.0",
                          "VIF_Specification=\"Version " + SystemNarrow(L"\u20AC") + "\" ; Version " +
                              SystemNarrow(L"\u20AC") + " @1.0"));
}

#ifdef _WIN32
TEST_F(XmlReaderTest, TextsAreInTheSystemsCodePage) {
  if (GetACP() != 1252) GTEST_SKIP() << "the system's code page is not 1252";
  EXPECT_THAT(Fields("<vif:Component><vif:A\xC3\xA4\xE7\xAB\xAF>\xE2\x82\xAC \xE7\xAB\xAF\xF0\x9F\x94\x8C"
                     "</vif:A\xC3\xA4\xE7\xAB\xAF></vif:Component>"),
              ElementsAre("A\xE4?=\"\" ; \x80 ??? @6.1"));
}
#endif

TEST_F(XmlReaderTest, PrefixDoesNotMatter) {
  ReadDocument(
      "<VIF xmlns=\"http://usb.org/VendorInfoFile.xsd\"><Vendor_Name>V</Vendor_Name>"
      "<q:Component xmlns:q=\"http://usb.org/VendorInfoFile.xsd\"><q:SrcPdoList><SrcPDO><Src_PDO_Voltage value=\"1\"/>"
      "</SrcPDO></q:SrcPdoList></q:Component></VIF>");
  EXPECT_THAT(Fields(), ElementsAre("Vendor_Name=\"\" ; V @1.0", "Src_PDO_Voltage=1 @6.1 @7.1"));
}

TEST_F(XmlReaderTest, OptionalContentYieldsNothing) {
  EXPECT_THAT(Fields("<vif:Component><opt:OptionalContent identifier=\"x\"><opt:A value=\"1\"/><opt:B><opt:C/></opt:B>"
                     "</opt:OptionalContent><vif:RP_Value value=\"2\"/><opt:RP_Value value=\"3\"/></vif:Component>"),
              ElementsAre("RP_Value=2 @6.1"));
}

TEST_F(XmlReaderTest, ElementWithOnlyOptionalContentInItIsALeaf) {
  EXPECT_THAT(Fields("<vif:Component><vif:New_A value=\"1\"><opt:B>text</opt:B></vif:New_A></vif:Component>"),
              ElementsAre("New_A=1 ; text @6.1"));
}

// Groups.

TEST_F(XmlReaderTest, ComponentsAreNumberedFromOneAndTheirPdosToo) {
  EXPECT_THAT(Fields("<vif:Component><vif:SrcPdoList><vif:SrcPDO><vif:Src_PDO_Voltage value=\"1\"/></vif:SrcPDO>"
                     "<vif:SrcPDO><vif:Src_PDO_Voltage value=\"2\"/></vif:SrcPDO></vif:SrcPdoList></vif:Component>"
                     "<vif:Component><vif:SrcPdoList><vif:SrcPDO><vif:Src_PDO_Voltage value=\"3\"/></vif:SrcPDO>"
                     "<vif:SrcPDO><vif:Src_PDO_Voltage value=\"4\"/></vif:SrcPDO></vif:SrcPdoList></vif:Component>"),
              ElementsAre("Src_PDO_Voltage=1 @6.1 @7.1", "Src_PDO_Voltage=2 @6.1 @7.2", "Src_PDO_Voltage=3 @6.2 @7.1",
                          "Src_PDO_Voltage=4 @6.2 @7.2"));
  EXPECT_EQ(m_componentCount, 2u);
}

TEST_F(XmlReaderTest, ComponentsAreNumberedAcrossFiles) {
  Read("<vif:Component/><vif:Component/>");
  Read("<vif:Component><vif:RP_Value value=\"2\"/></vif:Component>");
  EXPECT_THAT(Fields(), ElementsAre("RP_Value=2 @6.3"));
  EXPECT_EQ(m_componentCount, 3u);
}

TEST_F(XmlReaderTest, ProductsAndRoutersAreNumberedFromZeroAndEndpointsFromOne) {
  EXPECT_THAT(
      Fields("<vif:Product><vif:USB4RouterList><vif:Usb4Router><vif:USB4_Router_ID value=\"5\"/></vif:Usb4Router>"
             "<vif:Usb4Router><vif:USB4_Router_ID value=\"6\"/><vif:PCIeEndpointList>"
             "<vif:PCIeEndpoint><vif:USB4_PCIe_Endpoint_Vendor_ID value=\"7\"/></vif:PCIeEndpoint>"
             "<vif:PCIeEndpoint><vif:USB4_PCIe_Endpoint_Vendor_ID value=\"8\"/></vif:PCIeEndpoint>"
             "</vif:PCIeEndpointList></vif:Usb4Router></vif:USB4RouterList></vif:Product>"
             "<vif:Product><vif:USB4_Dock value=\"false\"/></vif:Product>"),
      ElementsAre("USB4_Router_ID=5 @3.0 @4.0", "USB4_Router_ID=6 @3.0 @4.1",
                  "USB4_PCIe_Endpoint_Vendor_ID=7 @3.0 @4.1 @5.1", "USB4_PCIe_Endpoint_Vendor_ID=8 @3.0 @4.1 @5.2",
                  "USB4_Dock=0 ; NO @3.1"));
}

TEST_F(XmlReaderTest, EveryListOfAComponentHasItsLocation) {
  EXPECT_THAT(
      Fields("<vif:Component>"
             "<vif:SnkPdoList><vif:SnkPDO><vif:A value=\"1\"/></vif:SnkPDO></vif:SnkPdoList>"
             "<vif:SOPSVIDList><vif:SOPSVID><vif:B value=\"1\"/><vif:SOPSVIDModeList><vif:SOPSVIDMode>"
             "<vif:C value=\"1\"/></vif:SOPSVIDMode></vif:SOPSVIDModeList></vif:SOPSVID></vif:SOPSVIDList>"
             "<vif:CableSVIDList><vif:CableSVID><vif:D value=\"1\"/><vif:CableSVIDModeList><vif:CableSVIDMode>"
             "<vif:E value=\"1\"/></vif:CableSVIDMode></vif:CableSVIDModeList></vif:CableSVID></vif:CableSVIDList>"
             "</vif:Component>"),
      ElementsAre("A=1 @6.1 @8.1", "B=1 @6.1 @9.1", "C=1 @6.1 @9.1 @10.1", "D=1 @6.1 @11.1", "E=1 @6.1 @11.1 @12.1"));
}

TEST_F(XmlReaderTest, LeavesComeBeforeListsWhateverTheirPosition) {
  EXPECT_THAT(Fields("<vif:Component><vif:SnkPdoList><vif:SnkPDO><vif:A value=\"1\"/></vif:SnkPDO></vif:SnkPdoList>"
                     "<vif:B value=\"1\"/><vif:SrcPdoList><vif:SrcPDO><vif:C value=\"1\"/></vif:SrcPDO>"
                     "</vif:SrcPdoList><vif:D value=\"1\"/></vif:Component>"),
              ElementsAre("B=1 @6.1", "D=1 @6.1", "A=1 @6.1 @8.1", "C=1 @6.1 @7.1"));
}

TEST_F(XmlReaderTest, TwoListsOfOneKindAreNumberedSeparately) {
  EXPECT_THAT(Fields("<vif:Component><vif:SrcPdoList><vif:SrcPDO><vif:A value=\"1\"/></vif:SrcPDO></vif:SrcPdoList>"
                     "<vif:SrcPdoList><vif:SrcPDO><vif:A value=\"2\"/></vif:SrcPDO></vif:SrcPdoList></vif:Component>"),
              ElementsAre("A=1 @6.1 @7.1", "A=2 @6.1 @7.1"));
}

TEST_F(XmlReaderTest, SlotsOfInnerGroupsAreEmptyAgainAfterThem) {
  EXPECT_THAT(Fields("<vif:Component><vif:SOPSVIDList>"
                     "<vif:SOPSVID><vif:SOPSVIDModeList><vif:SOPSVIDMode><vif:A value=\"1\"/></vif:SOPSVIDMode>"
                     "</vif:SOPSVIDModeList></vif:SOPSVID><vif:SOPSVID><vif:B value=\"1\"/></vif:SOPSVID>"
                     "</vif:SOPSVIDList></vif:Component><vif:Component><vif:C value=\"1\"/></vif:Component>"),
              ElementsAre("A=1 @6.1 @9.1 @10.1", "B=1 @6.1 @9.2", "C=1 @6.2"));
}

TEST_F(XmlReaderTest, ItemsOfAListMayHaveAnyName) {
  EXPECT_THAT(Fields("<vif:Component><vif:SrcPdoList><vif:Whatever><vif:A value=\"1\"/></vif:Whatever>"
                     "<vif:CableSVID><vif:A value=\"2\"/></vif:CableSVID></vif:SrcPdoList></vif:Component>"),
              ElementsAre("A=1 @6.1 @7.1", "A=2 @6.1 @7.2"));
}

TEST_F(XmlReaderTest, GroupDirectlyInAComponentCountsAsAListOfItsChildren) {
  EXPECT_THAT(Fields("<vif:Component><vif:SrcPDO><vif:X><vif:A value=\"1\"/></vif:X></vif:SrcPDO></vif:Component>"),
              ElementsAre("A=1 @6.1 @7.1"));
}

TEST_F(XmlReaderTest, EmptyItemYieldsNothingButCounts) {
  EXPECT_THAT(Fields("<vif:Component><vif:SrcPdoList><vif:SrcPDO value=\"9\"/><vif:SrcPDO><vif:A value=\"1\"/>"
                     "</vif:SrcPDO></vif:SrcPdoList></vif:Component>"),
              ElementsAre("A=1 @6.1 @7.2"));
}

TEST_F(XmlReaderTest, EmptyListIsALeaf) {
  EXPECT_THAT(Fields("<vif:Component><vif:SrcPdoList/></vif:Component>"), ElementsAre("SrcPdoList=\"\" @6.1"));
}

// Failures, and what they leave.

constexpr const char* kTooDeep =
    "<vif:SOPSVIDList><vif:SOPSVID><vif:SOPSVIDModeList><vif:SOPSVIDMode><vif:A value=\"1\"/>"
    "<vif:SrcPdoList><vif:SrcPDO/></vif:SrcPdoList>"
    "</vif:SOPSVIDMode></vif:SOPSVIDModeList></vif:SOPSVID></vif:SOPSVIDList>";

TEST_F(XmlReaderTest, ListInAModeIsNestedTooDeeply) {
  EXPECT_EQ(RunTimeErrorOf([&] { Read("<vif:Component>" + std::string(kTooDeep) + "</vif:Component>"); }),
            "Invalid node depth: groupLists should only be nested 3 levels deep.");
}

TEST_F(XmlReaderTest, FailureInAComponentKeepsWhatWasReadBefore) {
  EXPECT_NE(RunTimeErrorOf([&] {
              Read(
                  "<vif:TID>7</vif:TID><vif:Component><vif:B value=\"1\"/></vif:Component>"
                  "<vif:Component><vif:C value=\"1\"/>" +
                  std::string(kTooDeep) + "</vif:Component><vif:Component><vif:D value=\"1\"/></vif:Component>");
            }),
            "<no exception>");
  EXPECT_THAT(Fields(), ElementsAre("TID=\"\" ; 7 @1.0", "B=1 @6.1", "C=1 @6.2", "A=1 @6.2 @9.1 @10.1"));
  EXPECT_EQ(m_componentCount, 2u);
}

TEST_F(XmlReaderTest, FailureInTheProductKeepsNothing) {
  m_fields.emplace_back(true, "Before", "1", std::array<VifIndex, 3>{});
  EXPECT_NE(RunTimeErrorOf([&] {
              Read("<vif:TID>7</vif:TID><vif:Product><vif:B value=\"1\"/>" + std::string(kTooDeep) +
                   "</vif:Product><vif:Component><vif:C value=\"1\"/></vif:Component>");
            }),
            "<no exception>");
  EXPECT_EQ(m_fields.size(), 1u);
  EXPECT_EQ(m_componentCount, 0u);
}

TEST_F(XmlReaderTest, GroupWithAnotherNameIsUnexpected) {
  EXPECT_EQ(DomErrorOf("<vif:Component><vif:FooList><vif:Foo><vif:A value=\"1\"/></vif:Foo></vif:FooList>"
                       "</vif:Component>"),
            "Unexpected list element name: FooList");
}

TEST_F(XmlReaderTest, UnexpectedNameIsComparedExactly) {
  EXPECT_EQ(DomErrorOf("<vif:Component><vif:SrcPDOList><vif:A/></vif:SrcPDOList></vif:Component>"),
            "Unexpected list element name: SrcPDOList");
}

TEST_F(XmlReaderTest, UnexpectedNameMayBeInAnyLanguage) {
  EXPECT_EQ(DomErrorOf("<vif:Component><vif:\xE7\xAB\xAF><vif:A/></vif:\xE7\xAB\xAF></vif:Component>"),
            "Unexpected list element name: \xE7\xAB\xAF");
}

TEST_F(XmlReaderTest, UnexpectedNameKeepsTheLeavesAroundIt) {
  DomErrorOf("<vif:Component><vif:FooList><vif:Foo/></vif:FooList><vif:B value=\"1\"/></vif:Component>");
  EXPECT_THAT(Fields(), ElementsAre("B=1 @6.1"));
  EXPECT_EQ(m_componentCount, 1u);
}

TEST_F(XmlReaderTest, UnexpectedNameIsReportedBeforeTheDepth) {
  EXPECT_EQ(DomErrorOf("<vif:Component><vif:SOPSVIDList><vif:SOPSVID><vif:SOPSVIDModeList><vif:SOPSVIDMode>"
                       "<vif:FooList><vif:Foo/></vif:FooList>"
                       "</vif:SOPSVIDMode></vif:SOPSVIDModeList></vif:SOPSVID></vif:SOPSVIDList></vif:Component>"),
            "Unexpected list element name: FooList");
}

TEST_F(XmlReaderTest, InvalidFileAddsNothingAndSaysWhy) {
  const std::filesystem::path path =
      m_dir.Write("bad.xml", XmlVif("<vif:TID>7</vif:TID>\n<vif:USB_VID_SOP value=\"18d1\"/>"));
  try {
    ReadXmlVif(path, {m_fields, m_componentCount});
    FAIL() << "the file was read";
  } catch (const CVIFInvalidFile& error) {
    EXPECT_EQ(error.what(), path.string() + " is not a valid Vendor Info File.");
    ASSERT_EQ(error.Problems().size(), 1u);
    EXPECT_NE(error.Problems()[0].reason, "");
#ifndef _WIN32  // there MSXML decides what to report
    EXPECT_EQ(error.Problems()[0].line, 4u);
    EXPECT_EQ(error.Problems()[0].column, 1u);
    EXPECT_EQ(error.Problems()[0].element, "vif:USB_VID_SOP");
    EXPECT_THAT(error.Problems()[0].reason, HasSubstr("'18d1'"));
#endif
  }
  EXPECT_THAT(m_fields, IsEmpty());
  EXPECT_EQ(m_componentCount, 0u);
}

TEST_F(XmlReaderTest, InvalidFileIsARunTimeError) {
  const std::filesystem::path path = m_dir.Write("bad %s.xml", "<VIF/>");
  EXPECT_EQ(RunTimeErrorOf([&] {
              ReadXmlVif(path, {m_fields, m_componentCount});
            }),
            path.string() + " is not a valid Vendor Info File.");
}

TEST_F(XmlReaderTest, ReasonsOutliveTheExceptionsCopy) {
  std::vector<CVIFInvalidFile> kept;
  try {
    ReadDocument("<VIF/>");
  } catch (const CVIFInvalidFile& error) {
    kept.push_back(error);
  }
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_THAT(kept.front().Problems().at(0).reason, HasSubstr("root element"));
}

TEST_F(XmlReaderTest, AssignedExceptionHasTheMessageAndTheReasons) {
  CVIFInvalidFile kept("", {{}});
  try {
    ReadDocument("<VIF/>");
  } catch (const CVIFInvalidFile& error) {
    kept = error;
  }
  EXPECT_THAT(kept.what(), HasSubstr("is not a valid Vendor Info File."));
  EXPECT_THAT(kept.Problems().at(0).reason, HasSubstr("root element"));
}

}  // namespace

}  // namespace vif
