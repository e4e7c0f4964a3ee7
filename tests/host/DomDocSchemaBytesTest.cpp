// Schemas and documents whose paths are not UTF-8, converted to wide text and back.
#include "BaseUtilities/Exceptions.h"
#include "SchemaDirectory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using testing::HasSubstr;
using testsupport::Schema;

namespace fs = std::filesystem;

using DomDocSchemaBytesTest = CSchemaDirectoryTest;

class DomDocSchemaDirectoryBytesTest : public DomDocSchemaBytesTest, public testing::WithParamInterface<const char*> {};

TEST_P(DomDocSchemaDirectoryBytesTest, SchemaIsUsed) { ExpectSchemaIsUsed(GetParam()); }

// Stray continuation and invalid bytes, sequences that are truncated, overlong or beyond the last character, an encoded
// surrogate, and such bytes among valid ones.
INSTANTIATE_TEST_SUITE_P(NotUtf8, DomDocSchemaDirectoryBytesTest,
                         testing::Values("\xFF", "\x80", "\xC3", "\xE2\x82", "\xF0\x9F\x98", "\xC0\xAE", "\xE0\x80\xAE",
                                         "\xF4\x90\x80\x80", "\xED\xB3\xBF",
                                         "\xC3\xA4 \xE4 %FF \xE2\x82\xAC\xE2\x82x"));

TEST_F(DomDocSchemaBytesTest, DirectoriesThatDifferInSuchAByteAreDistinct) {
  UseDirectory("\xFE");
  WriteSchema("\xFE", "boolean");
  EXPECT_TRUE(IsValid("true"));
  UseDirectory("\xFF");
  WriteSchema("\xFF", "integer");
  EXPECT_FALSE(IsValid("true"));
}

TEST_F(DomDocSchemaBytesTest, ByteThatIsNotUtf8IsALoneSurrogate) {
  UseDirectory("a\xFF\xC3\xA4");
  const std::wstring parent = Utf8ToUtf16(Dir().Path().native());
  EXPECT_EQ(CDOMDoc::MakeFullSchemaPath(L"t.xsd"), parent + L"/a\xDCFF\u00E4/t.xsd");
}

TEST_F(DomDocSchemaBytesTest, SchemaNameMayHaveSuchBytes) {
  UseDirectory("a");
  Dir().Write("a/\xFF.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>"));
  CDOMDoc document({{CDOMDoc::MakeFullSchemaPath(L"\xDCFF.xsd"), L"urn:t"}});
  EXPECT_TRUE(document.ValidateDoc(Dir().Write("x.xml", "<n xmlns='urn:t'>1</n>")));
}

TEST_F(DomDocSchemaBytesTest, IncludedFileIsFoundInSuchADirectory) {
  UseDirectory("\xFF");
  Dir().Write("\xFF/t.xsd", Schema("urn:t", "<xs:include schemaLocation='included.xsd'/>"));
  Dir().Write("\xFF/included.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>"));
  EXPECT_TRUE(IsValid("1"));
  EXPECT_FALSE(IsValid("x"));
}

TEST_F(DomDocSchemaBytesTest, DocumentMayBeInSuchADirectory) {
  UseDirectory("a\xFF");
  Dir().Write("a\xFF/x.xml", "<n/>");
  const std::wstring file = Utf8ToUtf16(Dir().Path().native()) + L"/a\xDCFF/x.xml";
  CDOMDoc document({});
  EXPECT_TRUE(document.CanLoadDoc(file, L"n", false));
}

TEST_F(DomDocSchemaBytesTest, SurrogateForNoSuchByteIsAReplacementCharacter) {
  const std::wstring parent = Utf8ToUtf16(Dir().Path().native()) + L"/";
  Dir().Write("\uFFFD.xml", "<n/>");
  CDOMDoc document({});
  for (const wchar_t* name : {L"\xDC7F.xml", L"\xDD00.xml", L"\xD8FF.xml"}) {
    EXPECT_TRUE(document.CanLoadDoc(parent + name, L"n", false));
  }
}

TEST_F(DomDocSchemaBytesTest, MissingSchemaIsNamedWithTheBytesOfItsPath) {
  const fs::path directory = UseDirectory("\xFF");
  try {
    IsValid("1");
    FAIL() << "the schema is not missed";
  } catch (const CZoDOMDocException& error) {
    EXPECT_THAT(error.what(), HasSubstr((directory / "t.xsd").native()));
  }
}

TEST_F(DomDocSchemaBytesTest, NullNameIsTheDirectoryItself) {
  UseDirectory("a\xFF");
  const std::wstring parent = Utf8ToUtf16(Dir().Path().native());
  EXPECT_EQ(CDOMDoc::MakeFullSchemaPath(nullptr), parent + L"/a\xDCFF/");
}

}  // namespace
