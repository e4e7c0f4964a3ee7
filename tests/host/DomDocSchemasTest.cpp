// Validating documents against schemas, and searching for schemas.
#include "BaseUtilities/Exceptions.h"
#include "support/Schemas.h"
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testing::IsEmpty;
using testing::SizeIs;
using testsupport::CSchemaDocument;
using testsupport::Schema;
using testsupport::TempDir;
using testsupport::Text;
using testsupport::WidePath;

namespace fs = std::filesystem;

constexpr std::string_view kNumbers =
    "<xs:element name='list'><xs:complexType><xs:sequence>"
    "<xs:any namespace='##any' processContents='lax' minOccurs='0' maxOccurs='unbounded'/>"
    "</xs:sequence></xs:complexType></xs:element>"
    "<xs:element name='n' type='xs:integer'/>";

/// A schema for `n` with typed content, and a document with such content.
class DomDocSchemasTest : public testing::Test {
 protected:
  fs::path WriteSchema(std::string_view content, const fs::path& name = "t.xsd") const {
    return m_dir.Write(name, Schema("urn:t", content));
  }

  bool Validate(CDOMDoc& document, std::string_view content) const {
    return document.ValidateDoc(m_dir.Write("x.xml", "<list xmlns='urn:t'>" + std::string(content) + "</list>"));
  }

  const TempDir& Dir() const { return m_dir; }

 private:
  TempDir m_dir;
};

TEST_F(DomDocSchemasTest, ValidDocument) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_TRUE(Validate(document, "<n>1</n><n> 2 </n>"));
  EXPECT_THAT(document.Problems(), IsEmpty());
}

TEST_F(DomDocSchemasTest, InvalidDocumentHasAProblemWithItsPlace) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_FALSE(Validate(document, "\n  <p:n xmlns:p='urn:t'>x</p:n>"));
  ASSERT_THAT(document.Problems(), SizeIs(1));
  const DOMDocProblem& problem = document.Problems().front();
#ifdef _WIN32  // MSXML validates trees and does not know places in files
  EXPECT_EQ(problem.line, 0U);
  EXPECT_NE(problem.reason, "");
#else
  EXPECT_EQ(problem.line, 2U);
  EXPECT_EQ(problem.column, 3U);
  EXPECT_EQ(problem.element, "p:n");
  EXPECT_EQ(problem.reason, "Element 'n': 'x' is not a valid value of the atomic type 'xs:integer'.");
#endif
}

TEST_F(DomDocSchemasTest, InvalidAttributeIsAProblemOfItsElement) {
  CSchemaDocument document({{WriteSchema("<xs:element name='list'><xs:complexType>"
                                         "<xs:attribute name='x' type='xs:boolean'/></xs:complexType></xs:element>"),
                             "urn:t"}});
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("x.xml", "\n<list xmlns='urn:t'\nx='2'/>")));
  ASSERT_THAT(document.Problems(), SizeIs(1));
#ifndef _WIN32  // MSXML validates trees and does not know places in files
  EXPECT_EQ(document.Problems().front().line, 2U);
  EXPECT_EQ(document.Problems().front().column, 1U);
  EXPECT_EQ(document.Problems().front().element, "list");
  EXPECT_THAT(document.Problems().front().reason, testing::HasSubstr("attribute 'x'"));
#endif
}

TEST_F(DomDocSchemasTest, EveryReasonIsListedInOrder) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_FALSE(Validate(document, "<n>a</n>\n<n>1</n>\n<n>b</n>\n<n><n/></n>"));
#ifdef _WIN32  // MSXML stops at the first
  EXPECT_THAT(document.Problems(), SizeIs(1));
#else
  const std::vector<std::string> texts = testsupport::ProblemTexts(document.Problems());
  ASSERT_GE(texts.size(), 3U);
  EXPECT_THAT(texts[0], testing::StartsWith("1:21 n: Element 'n': 'a'"));
  EXPECT_THAT(texts[1], testing::StartsWith("3:1 n: Element 'n': 'b'"));
  EXPECT_THAT(texts[2], testing::StartsWith("4:1 n: "));
#endif
}

TEST_F(DomDocSchemasTest, RootThatNoSchemaDeclaresIsNotValid) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  for (const char* xml : {"<other xmlns='urn:t'/>", "<list/>", "<list xmlns='urn:other'/>"}) {
    EXPECT_FALSE(document.ValidateDoc(Dir().Write("x.xml", xml))) << xml;
    EXPECT_THAT(document.Problems(), SizeIs(1)) << xml;
  }
}

TEST_F(DomDocSchemasTest, InvalidDocumentCanBeExamined) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_FALSE(Validate(document, "<n>x</n>"));
  EXPECT_EQ(Text(*document.GetRootElement()), "x");
}

TEST_F(DomDocSchemasTest, NextFileClearsTheProblems) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_FALSE(Validate(document, "<n>x</n>"));
  EXPECT_TRUE(Validate(document, "<n>1</n>"));
  EXPECT_THAT(document.Problems(), IsEmpty());
}

TEST_F(DomDocSchemasTest, SchemasOfManyNamespacesAreUsedTogether) {
  const fs::path numbers = WriteSchema(kNumbers);
  const fs::path other = Dir().Write("u.xsd", Schema("urn:u", "<xs:element name='n' type='xs:boolean'/>"));
  for (const bool isTurned : {false, true}) {
    CSchemaDocument document(isTurned ? CSchemaDocument::Schemas{{other, "urn:u"}, {numbers, "urn:t"}}
                                      : CSchemaDocument::Schemas{{numbers, "urn:t"}, {other, "urn:u"}});
    EXPECT_TRUE(Validate(document, "<n>5</n><u:n xmlns:u='urn:u'>true</u:n>"));
    EXPECT_FALSE(Validate(document, "<n>true</n><u:n xmlns:u='urn:u'>5</u:n>"));
#ifdef _WIN32  // MSXML stops at the first reason
    EXPECT_THAT(document.Problems(), SizeIs(1));
#else
    EXPECT_THAT(document.Problems(), SizeIs(2));
#endif
  }
}

TEST_F(DomDocSchemasTest, NamesInReasonsAreWithoutTheSchemasNamespaces) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_FALSE(Validate(document, "<n><u:m xmlns:u='urn:u'/></n>"));
  ASSERT_THAT(document.Problems(), testing::Not(IsEmpty()));
  for (const DOMDocProblem& problem : document.Problems()) {
    EXPECT_EQ(problem.reason.find("urn:t"), std::string::npos) << problem.reason;
  }
}

TEST_F(DomDocSchemasTest, NamespacesMayNeedEscaping) {
  const char* uri = "urn:a?x=1&amp;y='2'";
  const fs::path schema =
      Dir().Write("t.xsd", "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace=\"" +
                               std::string(uri) + "\"><xs:element name='n' type='xs:integer'/></xs:schema>");
  CSchemaDocument document({{schema, "urn:a?x=1&y='2'"}});
  const std::string begin = "<n xmlns=\"" + std::string(uri) + "\">";
  EXPECT_TRUE(document.ValidateDoc(Dir().Write("1.xml", begin + "1</n>")));
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("2.xml", begin + "x</n>")));
}

TEST_F(DomDocSchemasTest, NamespaceMayBeOneThatNoDocumentCanHave) {
  const fs::path schema = Dir().Write("t.xsd",
                                      "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' "
                                      "targetNamespace='urn:&lt;a>&quot;b&quot;'>"
                                      "<xs:element name='n' type='xs:integer'/></xs:schema>");
  CSchemaDocument document({{schema, "urn:<a>\"b\""}});
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("x.xml", "<n>1</n>")));
  EXPECT_THAT(document.Problems(), SizeIs(1));
}

#ifndef _WIN32  // depends on the MSXML
TEST_F(DomDocSchemasTest, SchemaMayBeForElementsInNoNamespace) {
  const fs::path none = Dir().Write("none.xsd",
                                    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                                    "<xs:element name='n' type='xs:integer'/></xs:schema>");
  const fs::path other = WriteSchema(kNumbers);
  const fs::path number = Dir().Write("1.xml", "<n>1</n>");
  const fs::path text = Dir().Write("2.xml", "<n>x</n>");
  for (const CSchemaDocument::Schemas& schemas :
       {CSchemaDocument::Schemas{{none, ""}}, {{none, ""}, {other, "urn:t"}}, {{other, "urn:t"}, {none, ""}}}) {
    CSchemaDocument document(schemas);
    EXPECT_TRUE(document.ValidateDoc(number));
    EXPECT_FALSE(document.ValidateDoc(text));
    if (schemas.size() > 1) {
      EXPECT_TRUE(Validate(document, "<n>1</n>"));
      EXPECT_FALSE(Validate(document, "<n>x</n>"));
    }
  }
}
#endif

TEST_F(DomDocSchemasTest, NamespaceMayFollowOtherAttributes) {
  const fs::path schema = Dir().Write("t.xsd",
                                      "<xs:schema xml:lang='en' elementFormDefault='qualified' targetNamespace='urn:t' "
                                      "xmlns:xs='http://www.w3.org/2001/XMLSchema'>"
                                      "<xs:element name='n' type='xs:integer'/></xs:schema>");
  CSchemaDocument document({{schema, "urn:t"}});
  EXPECT_TRUE(document.ValidateDoc(Dir().Write("1.xml", "<n xmlns='urn:t'>1</n>")));
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("2.xml", "<n xmlns='urn:t'>x</n>")));
}

TEST_F(DomDocSchemasTest, TryingValidatesOnlyWhenAskedTo) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>x</n>");
  EXPECT_TRUE(document.CanLoadDoc(WidePath(file), L"n", false));
  EXPECT_THAT(document.Problems(), IsEmpty());
  EXPECT_FALSE(document.CanLoadDoc(WidePath(file), L"n", true));
  EXPECT_THAT(document.Problems(), SizeIs(1));
  EXPECT_TRUE(document.GetRootElement() == nullptr);
}

TEST_F(DomDocSchemasTest, ParsingDoesNotReadTheSchemas) {
  CSchemaDocument document({{WriteSchema(kNumbers), "urn:t"}});
  EXPECT_FALSE(Validate(document, "<n>x</n>"));
  EXPECT_TRUE(document.ParseDoc());
  EXPECT_THAT(document.Problems(), IsEmpty());
}

TEST_F(DomDocSchemasTest, DirectoriesMayHaveAnyNames) {
  for (const char* name : {"a b", "100%", "%41", "\u00E4\u20AC\U0001F600", "#&;'", "{x}"}) {
    const fs::path directory = testsupport::Utf8Path(name);
    fs::create_directory(Dir().Path() / directory);
    CSchemaDocument document({{WriteSchema("<xs:element name='n' type='xs:integer'/>", directory / "t.xsd"), "urn:t"}});
    EXPECT_NO_THROW({
      EXPECT_TRUE(document.ValidateDoc(Dir().Write("1.xml", "<n xmlns='urn:t'>1</n>"))) << name;
      EXPECT_FALSE(document.ValidateDoc(Dir().Write("2.xml", "<n xmlns='urn:t'>x</n>"))) << name;
    }) << name;
  }
}

// Schemas that refer to others.

class DomDocSchemaPartsTest : public DomDocSchemasTest {
 protected:
  void SetUp() override {
#ifdef _WIN32
    GTEST_SKIP() << "schemas with parts in other files are not supported on Windows";
#endif
  }
};

#ifdef _WIN32

/// \return the message; "<no exception>" when there is none
std::string ErrorOf(CDOMDoc& document, const fs::path& file) {
  try {
    document.ValidateDoc(file);
  } catch (const CZoDOMDocException& error) {
    return error.what();
  }
  return "<no exception>";
}

TEST_F(DomDocSchemasTest, PartsInOtherFilesAreNotSupported) {
  Dir().Write("included.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>"));
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>1</n>");
  for (const char* reference :
       {"<xs:include schemaLocation='included.xsd'/>", "<xs:redefine schemaLocation='included.xsd'/>",
        "<xs:import namespace='urn:u' schemaLocation='included.xsd'/>",
        "<xs:import namespace='http://www.w3.org/XML/1998/namespace' "
        "schemaLocation='http://www.w3.org/2001/xml.xsd'/>"}) {
    const fs::path schema = WriteSchema(reference);
    CSchemaDocument document({{schema, "urn:t"}});
    EXPECT_EQ(ErrorOf(document, file), "Couldn't load the schema " + schema.string() +
                                           ": it has parts in other files, which is not supported here");
  }
}

#endif

TEST_F(DomDocSchemaPartsTest, IncludedAndImportedFilesAreFoundBesideTheSchema) {
  fs::create_directory(Dir().Path() / "sub");
  Dir().Write("sub/included.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>"));
  Dir().Write("imported.xsd", Schema("urn:u",
                                     "<xs:simpleType name='yes'><xs:restriction base='xs:string'>"
                                     "<xs:enumeration value='YES'/></xs:restriction></xs:simpleType>"));
  CSchemaDocument document({{WriteSchema("<xs:include schemaLocation='sub/included.xsd'/>"
                                         "<xs:import namespace='urn:u' schemaLocation='imported.xsd'/>"
                                         "<xs:element name='y' type='u:yes' xmlns:u='urn:u'/>"),
                             "urn:t"}});
  EXPECT_TRUE(document.ValidateDoc(Dir().Write("1.xml", "<n xmlns='urn:t'>1</n>")));
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("2.xml", "<n xmlns='urn:t'>x</n>")));
  EXPECT_TRUE(document.ValidateDoc(Dir().Write("3.xml", "<y xmlns='urn:t'>YES</y>")));
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("4.xml", "<y xmlns='urn:t'>NO</y>")));
}

TEST_F(DomDocSchemaPartsTest, DirectoriesOfIncludedFilesMayHaveAnyNames) {
  for (const char* name : {"a b", "100%", "%41", "\u00E4\u20AC\U0001F600", "#?&;'\"<>", "a:b", "{x}"}) {
    const fs::path directory = Dir().Path() / name;
    fs::create_directory(directory);
    Dir().Write(fs::path(name) / "included.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>"));
    const fs::path schema = WriteSchema("<xs:include schemaLocation='included.xsd'/>", fs::path(name) / "t.xsd");
    CSchemaDocument document({{schema, "urn:t"}});
    EXPECT_NO_THROW({
      EXPECT_TRUE(document.ValidateDoc(Dir().Write("1.xml", "<n xmlns='urn:t'>1</n>"))) << name;
      EXPECT_FALSE(document.ValidateDoc(Dir().Write("2.xml", "<n xmlns='urn:t'>x</n>"))) << name;
    }) << name;
  }
}

TEST_F(DomDocSchemaPartsTest, SchemaOfTheXmlNamespaceIsNotFetched) {
  CSchemaDocument document({{WriteSchema("<xs:import namespace='http://www.w3.org/XML/1998/namespace' "
                                         "schemaLocation='http://www.w3.org/2001/xml.xsd'/>"
                                         "<xs:element name='n'><xs:complexType><xs:simpleContent>"
                                         "<xs:extension base='xs:string'><xs:attribute ref='xml:space'/>"
                                         "</xs:extension></xs:simpleContent></xs:complexType></xs:element>"),
                             "urn:t"}});
  EXPECT_TRUE(document.ValidateDoc(Dir().Write("1.xml", "<n xmlns='urn:t' xml:space='preserve'/>")));
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("2.xml", "<n xmlns='urn:t' xml:space='x'/>")));
}

TEST_F(DomDocSchemaPartsTest, ChangedIncludedFileIsReadAgain) {
  const fs::path included = WriteSchema("<xs:element name='n' type='xs:integer'/>", "included.xsd");
  CSchemaDocument document({{WriteSchema("<xs:include schemaLocation='included.xsd'/>"), "urn:t"}});
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>true</n>");
  EXPECT_FALSE(document.ValidateDoc(file));
  WriteSchema("<xs:element name='n' type='xs:boolean'/>", "included.xsd");
  fs::last_write_time(included, fs::last_write_time(included) + std::chrono::seconds(1));
  EXPECT_TRUE(document.ValidateDoc(file));
}

// Schema files that change.

TEST_F(DomDocSchemasTest, ChangedSchemaIsReadAgain) {
  const fs::path schema = WriteSchema("<xs:element name='n' type='xs:integer'/>");
  CSchemaDocument document({{schema, "urn:t"}});
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>true</n>");
  EXPECT_FALSE(document.ValidateDoc(file));
  WriteSchema("<xs:element name='n' type='xs:boolean'/>");  // of the same size
  fs::last_write_time(schema, fs::last_write_time(schema) + std::chrono::seconds(1));
  EXPECT_TRUE(document.ValidateDoc(file));
}

TEST_F(DomDocSchemasTest, ReplacedSchemaIsReadAgain) {
  const fs::path schema = WriteSchema("<xs:element name='n' type='xs:integer'/>");
  CSchemaDocument document({{schema, "urn:t"}});
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>true</n>");
  EXPECT_FALSE(document.ValidateDoc(file));
  const fs::path other = WriteSchema("<xs:element name='n' type='xs:boolean'/>", "other.xsd");
  fs::last_write_time(other, fs::last_write_time(schema));
  fs::rename(other, schema);
  EXPECT_TRUE(document.ValidateDoc(file));
}

TEST_F(DomDocSchemasTest, FixedSchemaIsReadAgain) {
  const fs::path schema = Dir().Path() / "t.xsd";
  CSchemaDocument document({{schema, "urn:t"}});
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>true</n>");
  EXPECT_THROW(document.ValidateDoc(file), CZoDOMDocException);
  WriteSchema("<xs:element name='n'");
  EXPECT_THROW(document.ValidateDoc(file), CZoDOMDocException);
  WriteSchema("<xs:element name='n' type='xs:boolean'/>");
  EXPECT_TRUE(document.ValidateDoc(file));
}

TEST_F(DomDocSchemasTest, DeletedSchemaIsAnError) {
  const fs::path schema = WriteSchema(kNumbers);
  CSchemaDocument document({{schema, "urn:t"}});
  EXPECT_TRUE(Validate(document, ""));
  fs::remove(schema);
  EXPECT_THROW(Validate(document, ""), CZoDOMDocException);
}

// Searching for schemas.

/// Sets the schema directory for one test.
class CSchemaDirectory {
 public:
  explicit CSchemaDirectory(const fs::path& directory) { CDOMDoc::SetSchemaDirectory(directory); }
  CSchemaDirectory(const CSchemaDirectory&) = delete;
  CSchemaDirectory& operator=(const CSchemaDirectory&) = delete;
  ~CSchemaDirectory() { CDOMDoc::SetSchemaDirectory({}); }
};

TEST_F(DomDocSchemasTest, ShippedSchemasAreFound) {
  for (const wchar_t* name : {L"VendorInfoFile.xsd", L"VendorInfoFileOptionalContent.xsd"}) {
    const fs::path path = CDOMDoc::MakeFullSchemaPath(name);
    EXPECT_TRUE(path.is_absolute()) << path;
    EXPECT_TRUE(fs::is_regular_file(path)) << path;
    EXPECT_EQ(path.filename(), name);
  }
}

TEST_F(DomDocSchemasTest, SetDirectoryComesFirst) {
  const fs::path own = Dir().Write("VendorInfoFile.xsd", "");
  const CSchemaDirectory directory(Dir().Path());
  EXPECT_EQ(fs::path(CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd")), own);
}

TEST_F(DomDocSchemasTest, SchemaThatIsNotInTheDirectorySetIsFoundElsewhere) {
  const fs::path shipped = CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd");
  const CSchemaDirectory directory(Dir().Path());
  EXPECT_EQ(fs::path(CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd")), shipped);
}

TEST_F(DomDocSchemasTest, MissingSchemaIsNamedInTheFirstDirectory) {
  const CSchemaDirectory directory(Dir().Path());
  EXPECT_EQ(fs::path(CDOMDoc::MakeFullSchemaPath(L"missing.xsd")), Dir().Path() / "missing.xsd");
}

TEST_F(DomDocSchemasTest, MissingSchemaHasAFullPathWithoutADirectorySet) {
  const fs::path path = CDOMDoc::MakeFullSchemaPath(L"missing.xsd");
  EXPECT_TRUE(path.is_absolute());
  EXPECT_EQ(path.filename(), "missing.xsd");
}

TEST_F(DomDocSchemasTest, EmptyDirectoryUndoesTheSetting) {
  const fs::path shipped = CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd");
  Dir().Write("VendorInfoFile.xsd", "");
  { const CSchemaDirectory directory(Dir().Path()); }
  EXPECT_EQ(fs::path(CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd")), shipped);
}

/// Changes the current directory for one test.
class CCurrentDirectory {
 public:
  explicit CCurrentDirectory(const fs::path& directory) { fs::current_path(directory); }
  CCurrentDirectory(const CCurrentDirectory&) = delete;
  CCurrentDirectory& operator=(const CCurrentDirectory&) = delete;
  ~CCurrentDirectory() { fs::current_path(m_before); }

 private:
  fs::path m_before = fs::current_path();
};

TEST_F(DomDocSchemasTest, RelativeDirectoryIsResolvedWhenSet) {
  const CCurrentDirectory current(Dir().Path().parent_path());
  const CSchemaDirectory directory(Dir().Path().filename());
  const CCurrentDirectory later(Dir().Path());
  const fs::path path = CDOMDoc::MakeFullSchemaPath(L"missing.xsd");
  EXPECT_TRUE(path.is_absolute());
  EXPECT_EQ(fs::weakly_canonical(path), fs::weakly_canonical(Dir().Path() / "missing.xsd"));
}

TEST_F(DomDocSchemasTest, NullNameCountsAsEmpty) {
  const CSchemaDirectory directory(Dir().Path());
  EXPECT_EQ(CDOMDoc::MakeFullSchemaPath(nullptr), CDOMDoc::MakeFullSchemaPath(L""));
}

}  // namespace
