// The XML document for VIFs, with the schemas that ship with the library.
#include "DOMDocVIF.h"

#include "BaseUtilities/Exceptions.h"
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testsupport::NodeNames;
using testsupport::Select;
using testsupport::SelectionNamespaces;
using testsupport::SelectOne;
using testsupport::TempDir;
using testsupport::Text;

/// Exposes the document's interface.
class CVifDocument : public CDOMDocVIF {
 public:
  using CDOMDocVIF::Document;
};

constexpr std::string_view kVif = "http://usb.org/VendorInfoFile.xsd";
constexpr std::string_view kOptional = "http://usb.org/VendorInfoFileOptionalContent.xsd";

class DOMDocVIFTest : public testing::Test {
 protected:
  bool ValidateFile(std::string_view xml) { return m_document.ValidateDoc(m_dir.Write("vif.xml", xml)); }

  /// Validates a VIF with that content.
  bool Validate(std::string_view content) {
    return ValidateFile("<vif:VIF xmlns:vif='" + std::string(kVif) + "' xmlns:opt='" + std::string(kOptional) + "'>" +
                        std::string(content) + "</vif:VIF>");
  }

  /// Expects problems with these elements. MSXML reports only the first problem, and not which element has it.
  template <typename Elements>
  void ExpectBadElements([[maybe_unused]] const Elements& elements) const {
#ifdef _WIN32
    ASSERT_THAT(m_document.Problems(), SizeIs(1));
    EXPECT_NE(m_document.Problems().front().reason, "");
#else
    std::vector<std::string> names;
    for (const DOMDocProblem& problem : m_document.Problems()) names.push_back(problem.element);
    EXPECT_THAT(names, elements);
#endif
  }

  CVifDocument& Document() { return m_document; }
  DOMElementPtr Root() const { return m_document.GetRootElement(); }

 private:
  TempDir m_dir;
  CVifDocument m_document;
};

// Prefixes.

TEST_F(DOMDocVIFTest, SelectionNamespacesHaveThreePrefixesInOneForm) {
  EXPECT_EQ(SelectionNamespaces(Document().Document()),
            L"xmlns:vif='http://usb.org/VendorInfoFile.xsd' "
            L"xmlns:opt='http://usb.org/VendorInfoFileOptionalContent.xsd' "
            L"xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'");
}

TEST_F(DOMDocVIFTest, SelectionNamespacesOfAllDocumentsAreTheSame) {
  const CVifDocument other;
  EXPECT_EQ(SelectionNamespaces(other.Document()), SelectionNamespaces(Document().Document()));
}

TEST_F(DOMDocVIFTest, PrefixesFindElementsWhateverPrefixesTheFileUses) {
  ASSERT_TRUE(ValidateFile("<VIF xmlns='" + std::string(kVif) + "' xmlns:x='" + std::string(kOptional) +
                           "' xmlns:i='http://www.w3.org/2001/XMLSchema-instance' i:schemaLocation='urn:o o.xsd'>"
                           "<TID>1</TID><x:OptionalContent/></VIF>"));
  EXPECT_THAT(NodeNames(Select(*Root(), L"vif:TID")), ElementsAre("TID"));
  EXPECT_THAT(NodeNames(Select(*Root(), L"opt:OptionalContent")), ElementsAre("x:OptionalContent"));
  EXPECT_THAT(NodeNames(Select(*Root(), L"@xsi:schemaLocation")), ElementsAre("i:schemaLocation"));
}

TEST_F(DOMDocVIFTest, OptionalContentOfTheSameNameIsNotMistakenForTheVifs) {
  ASSERT_TRUE(Validate("<opt:TID>optional</opt:TID><opt:Component/><vif:TID>1</vif:TID>"));
  EXPECT_THAT(NodeNames(Select(*Root(), L"vif:*")), ElementsAre("vif:TID"));
  EXPECT_EQ(Text(*SelectOne(*Root(), L"vif:TID")), "1");
  EXPECT_THAT(Select(*Root(), L"vif:Component"), IsEmpty());
}

// The root.

TEST_F(DOMDocVIFTest, EmptyVifIsValid) {
  EXPECT_TRUE(Validate(""));
  EXPECT_THAT(Document().Problems(), IsEmpty());
}

TEST_F(DOMDocVIFTest, OtherRootIsNotValidThoughTheSchemaDeclaresIt) {
  EXPECT_FALSE(ValidateFile("\n <Component xmlns='" + std::string(kVif) + "'/>"));
  ASSERT_THAT(Document().Problems(), SizeIs(1));
  const DOMDocProblem& problem = Document().Problems().front();
  EXPECT_EQ(problem.line, 2U);
  EXPECT_EQ(problem.column, 2U);
  EXPECT_EQ(problem.element, "Component");
  EXPECT_EQ(problem.reason,
            "The root element is 'Component' in the namespace 'http://usb.org/VendorInfoFile.xsd', not 'VIF' in the "
            "namespace 'http://usb.org/VendorInfoFile.xsd'.");
}

TEST_F(DOMDocVIFTest, RootInAnotherNamespaceIsNotValid) {
  EXPECT_FALSE(ValidateFile("<v:VIF xmlns:v='" + std::string(kOptional) + "'/>"));
  ASSERT_THAT(Document().Problems(), SizeIs(1));
  EXPECT_THAT(Document().Problems().front().reason, HasSubstr("'VIF' in the namespace '" + std::string(kOptional)));
}

TEST_F(DOMDocVIFTest, RootInNoNamespaceIsNotValid) {
  EXPECT_FALSE(ValidateFile("<VIF/>"));
  ASSERT_THAT(Document().Problems(), SizeIs(1));
  EXPECT_THAT(Document().Problems().front().reason, HasSubstr("'VIF' in no namespace"));
}

TEST_F(DOMDocVIFTest, LetterCaseOfTheRootMatters) {
  EXPECT_FALSE(ValidateFile("<vif xmlns='" + std::string(kVif) + "'/>"));
  EXPECT_THAT(Document().Problems(), SizeIs(1));
}

// What the schemas check.

TEST_F(DOMDocVIFTest, NumericFieldsTakeIntegers) {
  for (const char* value : {"0", "-1", "+7", " 12 ", "4294967296", "007"}) {
    EXPECT_TRUE(Validate("<vif:Connector_Type value='" + std::string(value) + "'/>")) << value;
  }
  for (const char* value : {"", "x", "0x10", "1.5", "1 2", "true", "1e3"}) {
    SCOPED_TRACE(value);
    EXPECT_FALSE(Validate("<vif:Connector_Type value='" + std::string(value) + "'/>"));
    ExpectBadElements(testing::Each("vif:Connector_Type"));
  }
}

TEST_F(DOMDocVIFTest, BooleanFieldsTakeBooleans) {
  for (const char* value : {"true", "false", "1", "0", " true "}) {
    EXPECT_TRUE(Validate("<vif:USB4_Supported value='" + std::string(value) + "'/>")) << value;
  }
  for (const char* value : {"", "YES", "True", "2"}) {
    SCOPED_TRACE(value);
    EXPECT_FALSE(Validate("<vif:USB4_Supported value='" + std::string(value) + "'/>"));
    ExpectBadElements(testing::Each("vif:USB4_Supported"));
  }
}

// Some descriptions of the format define it as a code from 0 to 6, others as a boolean, so files may have either.
TEST_F(DOMDocVIFTest, PowerThatAnAdapterNeedsFromVconnIsABooleanOrACode) {
  for (const char* value : {"true", "false", "0", "1", "2", "6", " 3 "}) {
    EXPECT_TRUE(Validate("<vif:AMA_VCONN_Power value='" + std::string(value) + "'/>")) << value;
  }
  for (const char* value : {"", "1.5", "1 W", "YES"}) {
    SCOPED_TRACE(value);
    EXPECT_FALSE(Validate("<vif:AMA_VCONN_Power value='" + std::string(value) + "'/>"));
    ExpectBadElements(testing::Each("vif:AMA_VCONN_Power"));
  }
}

TEST_F(DOMDocVIFTest, FieldsNeedNoValueAndMayHaveAnyText) {
  EXPECT_TRUE(Validate("<vif:Connector_Type>any text</vif:Connector_Type><vif:USB4_Supported/><vif:TID value='x'/>"));
}

TEST_F(DOMDocVIFTest, MisspelledValueAttributeIsNotValid) {
  EXPECT_FALSE(Validate("<vif:Connector_Type Value='1'/>"));
  ExpectBadElements(ElementsAre("vif:Connector_Type"));
}

TEST_F(DOMDocVIFTest, AttributesOfOtherNamespacesAreAllowed) {
  EXPECT_TRUE(Validate("<vif:TID xml:space='preserve' xmlns:o='urn:o' o:x='1'> 1 </vif:TID>"));
  EXPECT_EQ(Text(*SelectOne(*Root(), L"vif:TID")), " 1 ");
}

TEST_F(DOMDocVIFTest, GroupHasNoTextOfItsOwn) {
  EXPECT_FALSE(Validate("<vif:Component>text</vif:Component>"));
  ExpectBadElements(ElementsAre("vif:Component"));
  EXPECT_FALSE(Validate("text"));
  ExpectBadElements(ElementsAre("vif:VIF"));
}

TEST_F(DOMDocVIFTest, FieldHasNoElementsInside) {
  EXPECT_FALSE(Validate("<vif:TID><vif:Name/></vif:TID>"));
  ExpectBadElements(testing::Contains("vif:TID"));
}

TEST_F(DOMDocVIFTest, UnknownElementsAreAllowed) {
  EXPECT_TRUE(
      Validate("<vif:Unknown_Field value='x'>text</vif:Unknown_Field>"
               "<vif:Component><vif:UnknownList>text<vif:Unknown a='1'/></vif:UnknownList></vif:Component>"));
}

TEST_F(DOMDocVIFTest, KnownElementInAnUnknownListIsChecked) {
  EXPECT_FALSE(
      Validate("<vif:UnknownList><vif:Unknown><vif:Connector_Type value='x'/></vif:Unknown></vif:UnknownList>"));
  ExpectBadElements(ElementsAre("vif:Connector_Type"));
}

TEST_F(DOMDocVIFTest, KnownElementsMayOccurAnywhereAndInAnyNumber) {
  EXPECT_TRUE(Validate("<vif:SrcPDO><vif:TID/><vif:TID/></vif:SrcPDO><vif:Component/><vif:Product/><vif:Product/>"));
}

TEST_F(DOMDocVIFTest, OptionalContentIsAllowedAnywhere) {
  EXPECT_TRUE(
      Validate("<opt:OptionalContent identifier='x' o='1'>text<opt:Any><other/></opt:Any></opt:OptionalContent>"
               "<vif:Component><opt:OptionalContent/><opt:Anything>text</opt:Anything></vif:Component>"));
}

TEST_F(DOMDocVIFTest, KnownElementInOptionalContentIsChecked) {
  EXPECT_FALSE(Validate("<opt:OptionalContent><vif:Connector_Type value='x'/></opt:OptionalContent>"));
  ExpectBadElements(ElementsAre("vif:Connector_Type"));
}

TEST_F(DOMDocVIFTest, EveryProblemIsListed) {
  EXPECT_FALSE(
      Validate("<vif:Connector_Type value='x'/>\n<vif:Component>\n<vif:USB4_Supported value='y'/>text\n"
               "</vif:Component>"));
  ExpectBadElements(testing::UnorderedElementsAre("vif:Connector_Type", "vif:USB4_Supported", "vif:Component"));
}

TEST_F(DOMDocVIFTest, InvalidVifCanBeExamined) {
  EXPECT_FALSE(Validate("<vif:Connector_Type value='x'/><vif:TID>7</vif:TID>"));
  EXPECT_EQ(Text(*SelectOne(*Root(), L"vif:TID")), "7");
}

TEST_F(DOMDocVIFTest, BrokenSchemaInTheDirectorySetIsAnError) {
  const TempDir dir;
  dir.Write("VendorInfoFile.xsd", "");
  CDOMDoc::SetSchemaDirectory(dir.Path());
  CDOMDocVIF document;
  CDOMDoc::SetSchemaDirectory({});
  EXPECT_THROW(document.ValidateDoc(dir.Write("x.xml", "<VIF xmlns='" + std::string(kVif) + "'/>")),
               CZoDOMDocException);
  EXPECT_TRUE(Validate(""));
}

}  // namespace
