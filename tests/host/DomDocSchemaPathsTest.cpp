// Schemas and documents with unusual paths, converted to wide text and back.
#include "BaseUtilities/Exceptions.h"
#include "SchemaDirectory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using testing::HasSubstr;
using testsupport::Utf8Path;
using testsupport::WidePath;

namespace fs = std::filesystem;

using DomDocSchemaPathsTest = CSchemaDirectoryTest;

class DomDocSchemaDirectoryNameTest : public DomDocSchemaPathsTest, public testing::WithParamInterface<const char*> {};

TEST_P(DomDocSchemaDirectoryNameTest, SchemaIsUsed) { ExpectSchemaIsUsed(Utf8Path(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Utf8, DomDocSchemaDirectoryNameTest,
                         testing::Values("a b", "100%", "%41", "%", "\u00E4\u20AC\U0001F600", "\uFFFD", "\uE0FF"));

#ifndef _WIN32  // Windows strips blanks from the end of a name
INSTANTIATE_TEST_SUITE_P(Blank, DomDocSchemaDirectoryNameTest, testing::Values(" "));
#endif

TEST_F(DomDocSchemaPathsTest, PathOfAnyCharactersIsItsWideForm) {
  const fs::path directory = UseDirectory(u8"\u00E4 %41\U0001F600\uFFFD");
  EXPECT_EQ(CDOMDoc::MakeFullSchemaPath(L"t.xsd"), WidePath(directory / "t.xsd"));
}

TEST_F(DomDocSchemaPathsTest, DocumentMayBeInSuchADirectory) {
  const fs::path directory = UseDirectory(u8"\u00E4 %41\U0001F600");
  Dir().Write(directory / "x.xml", "<n/>");
  CDOMDoc document({});
  EXPECT_TRUE(document.CanLoadDoc(WidePath(directory / "x.xml"), L"n", false));
}

TEST_F(DomDocSchemaPathsTest, MissingSchemaIsNamedWithItsPathInUtf8) {
  UseDirectory(u8"\u00E4\U0001F600");
  try {
    IsValid("1");
    FAIL() << "the schema is not missed";
  } catch (const CZoDOMDocException& error) {
    EXPECT_THAT(error.what(), HasSubstr("\u00E4\U0001F600"));
    EXPECT_THAT(error.what(), HasSubstr("t.xsd: The file cannot be opened"));
  }
}

}  // namespace
