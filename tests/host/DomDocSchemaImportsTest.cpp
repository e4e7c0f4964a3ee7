// Schemas that import each other, as sets of schemas for several namespaces usually do.
#include "BaseUtilities/Exceptions.h"
#include "support/LoopbackListener.h"
#include "support/Schemas.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace {

using testsupport::CLoopbackListener;
using testsupport::CSchemaDocument;
using testsupport::Schema;
using testsupport::TempDir;

namespace fs = std::filesystem;

/// What the schema for `urn:u` declares.
constexpr std::string_view kDeclarations =
    "<xs:element name='answer' type='yesOrNo'/>"
    "<xs:simpleType name='yesOrNo'><xs:restriction base='xs:string'>"
    "<xs:enumeration value='YES'/><xs:enumeration value='NO'/></xs:restriction></xs:simpleType>";

/// How the schema for `urn:t` uses it.
constexpr std::string_view kUse =
    "<xs:element name='t' xmlns:u='urn:u'><xs:complexType><xs:sequence>"
    "<xs:element name='own' type='u:yesOrNo'/><xs:element ref='u:answer'/>"
    "</xs:sequence></xs:complexType></xs:element>";

class DomDocSchemaImportsTest : public testing::Test {
 protected:
  /// Writes the schema for `urn:t`.
  /// \param import the element that imports `urn:u`
  fs::path WriteImporting(std::string_view import) const {
    return m_dir.Write("t.xsd", Schema("urn:t", std::string(import).append(kUse)));
  }

  fs::path WriteImported(std::string_view import = "", const fs::path& name = "u.xsd") const {
    return m_dir.Write(name, Schema("urn:u", std::string(import).append(kDeclarations)));
  }

  bool IsValid(CSchemaDocument& document, const std::string& own, const std::string& answer) const {
    return document.ValidateDoc(m_dir.Write(
        "x.xml", "<t xmlns='urn:t' xmlns:u='urn:u'><own>" + own + "</own><u:answer>" + answer + "</u:answer></t>"));
  }

  /// Expects both schemas to be used, in whichever order they are given.
  void ExpectBothCount(const fs::path& importing, const fs::path& imported) const {
    for (const bool isTurned : {false, true}) {
      CSchemaDocument document(isTurned ? CSchemaDocument::Schemas{{imported, "urn:u"}, {importing, "urn:t"}}
                                        : CSchemaDocument::Schemas{{importing, "urn:t"}, {imported, "urn:u"}});
      EXPECT_TRUE(IsValid(document, "YES", "NO"));
      EXPECT_FALSE(IsValid(document, "PERHAPS", "NO"));
      EXPECT_FALSE(IsValid(document, "YES", "PERHAPS"));
    }
  }

  const TempDir& Dir() const { return m_dir; }

 private:
  TempDir m_dir;
};

TEST_F(DomDocSchemaImportsTest, ImportMayNameTheOtherFileOfTheSet) {
  ExpectBothCount(WriteImporting("<xs:import namespace='urn:u' schemaLocation='u.xsd'/>"), WriteImported());
}

TEST_F(DomDocSchemaImportsTest, ImportMayNameNoFile) {
  ExpectBothCount(WriteImporting("<xs:import namespace='urn:u'/>"), WriteImported());
}

TEST_F(DomDocSchemaImportsTest, ImportMayGoThroughOtherDirectories) {
  fs::create_directory(Dir().Path() / "sub");
  for (const char* location : {"./u.xsd", "sub/../u.xsd"}) {
    ExpectBothCount(WriteImporting("<xs:import namespace='urn:u' schemaLocation='" + std::string(location) + "'/>"),
                    WriteImported());
  }
}

TEST_F(DomDocSchemaImportsTest, ImportMayNameAFileWithOddCharacters) {
  ExpectBothCount(WriteImporting("<xs:import namespace='urn:u' schemaLocation='a%20b.xsd'/>"),
                  WriteImported("", "a b.xsd"));
}

TEST_F(DomDocSchemaImportsTest, SchemaOfTheSetCountsWhateverFileTheImportNames) {
  const CLoopbackListener listener;
  Dir().Write("other.xsd", Schema("urn:u", "<xs:element name='answer' type='xs:string'/>"));
  for (const std::string& location : {std::string("gone.xsd"), std::string("other.xsd"), std::string("file:u.xsd"),
                                      std::string("//localhost/u.xsd"), listener.Url("http") + "/u.xsd"}) {
    SCOPED_TRACE(location);
    ExpectBothCount(WriteImporting("<xs:import namespace='urn:u' schemaLocation='" + location + "'/>"),
                    WriteImported());
  }
  EXPECT_FALSE(listener.WasCalled());
}

TEST_F(DomDocSchemaImportsTest, ImportOfAnotherNamespaceOpensNothing) {
  const fs::path imported = WriteImported();
  const fs::path importing = WriteImporting("<xs:import namespace='urn:v' schemaLocation='gone.xsd'/>");
  CSchemaDocument document({{importing, "urn:t"}, {imported, "urn:u"}});
  EXPECT_THROW(IsValid(document, "YES", "NO"), CZoDOMDocException);
}

TEST_F(DomDocSchemaImportsTest, TwoSchemasMayImportEachOther) {
  ExpectBothCount(WriteImporting("<xs:import namespace='urn:u' schemaLocation='u.xsd'/>"),
                  WriteImported("<xs:import namespace='urn:t' schemaLocation='t.xsd'/>"));
}

}  // namespace
