// Schemas that cannot be used.
#include "BaseUtilities/Exceptions.h"
#include "support/LoopbackListener.h"
#include "support/Schemas.h"
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include <filesystem>
#include <string>
#include <string_view>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;
using testsupport::CLoopbackListener;
using testsupport::CSchemaDocument;
using testsupport::Schema;
using testsupport::TempDir;

namespace fs = std::filesystem;

#ifdef _WIN32
constexpr std::string_view kPartsElsewhere = ": it has parts in other files, which is not supported here";
#endif

constexpr std::string_view kElement = "<xs:element name='n' type='xs:integer'/>";

class DomDocSchemaErrorsTest : public testing::Test {
 protected:
  /// The message of the error that validating against a schema throws; "<no exception>" when it throws none.
  std::string ErrorOf(const fs::path& schema, const std::string& uri = "urn:t") const {
    CSchemaDocument document({{schema, uri}});
    try {
      document.ValidateDoc(m_dir.Write("x.xml", "<n xmlns='urn:t'>1</n>"));
    } catch (const CZoDOMDocException& error) {
      return error.what();
    }
    return "<no exception>";
  }

  std::string ErrorOfText(std::string_view schema) const { return ErrorOf(m_dir.Write("t.xsd", schema)); }

  const TempDir& Dir() const { return m_dir; }

  static std::string Prefix(const fs::path& schema) { return "Couldn't load the schema " + schema.string(); }

 private:
  TempDir m_dir;
};

TEST_F(DomDocSchemaErrorsTest, UsableSchemaIsNoError) {
  EXPECT_EQ(ErrorOfText(Schema("urn:t", kElement)), "<no exception>");
}

TEST_F(DomDocSchemaErrorsTest, MissingSchema) {
  const fs::path schema = Dir().Path() / u8"missing \u00E4 %.xsd";
  EXPECT_EQ(ErrorOf(schema), Prefix(schema) + ": The file cannot be opened: No such file or directory.");
}

TEST_F(DomDocSchemaErrorsTest, DirectoryInPlaceOfASchema) {
  EXPECT_EQ(ErrorOf(Dir().Path()), Prefix(Dir().Path()) + ": The file is not a regular file.");
}

TEST_F(DomDocSchemaErrorsTest, PipeOrDeviceInPlaceOfASchema) {
#ifdef _WIN32  // directories contain no pipes
  const fs::path schema = "NUL";
#else
  const fs::path schema = Dir().Path() / "t.xsd";
  ASSERT_EQ(mkfifo(schema.c_str(), S_IRUSR | S_IWUSR), 0);
#endif
  EXPECT_EQ(ErrorOf(schema), Prefix(schema) + ": The file is not a regular file.");
}

TEST_F(DomDocSchemaErrorsTest, OneOfManyIsMissing) {
  const fs::path missing = Dir().Path() / "u.xsd";
  CSchemaDocument document({{Dir().Write("t.xsd", Schema("urn:t", kElement)), "urn:t"}, {missing, "urn:u"}});
  const fs::path file = Dir().Write("x.xml", "<n xmlns='urn:t'>1</n>");
  try {
    document.ValidateDoc(file);
    FAIL() << "no exception";
  } catch (const CZoDOMDocException& error) {
    EXPECT_THAT(error.what(), StartsWith(Prefix(missing)));
  }
}

TEST_F(DomDocSchemaErrorsTest, MalformedSchema) {
  EXPECT_THAT(ErrorOfText("<xs:schema"), AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd")));
  EXPECT_THAT(ErrorOfText(""), AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd")));
}

TEST_F(DomDocSchemaErrorsTest, DocumentThatIsNotASchema) {
  EXPECT_THAT(ErrorOfText("<a/>"), AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd")));
}

TEST_F(DomDocSchemaErrorsTest, SchemaOfAnotherNamespace) {
  EXPECT_THAT(ErrorOfText(Schema("urn:other", kElement)),
              AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd"), HasSubstr("urn:other")));
}

TEST_F(DomDocSchemaErrorsTest, SchemaOfNoNamespace) {
  EXPECT_THAT(
      ErrorOfText("<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>" + std::string(kElement) + "</xs:schema>"),
      AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd")));
}

TEST_F(DomDocSchemaErrorsTest, SchemaThatBreaksTheRulesOfSchemas) {
  const std::string missing = ErrorOfText(Schema("urn:t", "\n<xs:element name='n' type='missing'/>"));
  EXPECT_THAT(missing, AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd: ")));
  const std::string nonsense = ErrorOfText(Schema("urn:t", "<xs:nonsense/>"));
  EXPECT_THAT(nonsense, AllOf(StartsWith("Couldn't load the schema "), HasSubstr("t.xsd: ")));
#ifndef _WIN32  // MSXML has its own words
  EXPECT_THAT(missing, AllOf(HasSubstr("line 2: "), HasSubstr("missing")));
  EXPECT_THAT(nonsense, AllOf(HasSubstr("line 1: "), HasSubstr("not valid")));
#endif
}

TEST_F(DomDocSchemaErrorsTest, MissingIncludedFile) {
  const std::string error = ErrorOfText(Schema("urn:t", "<xs:include schemaLocation='gone.xsd'/>"));
#ifdef _WIN32
  EXPECT_EQ(error, Prefix(Dir().Path() / "t.xsd") + std::string(kPartsElsewhere));
#else
  EXPECT_THAT(error, StartsWith(Prefix(Dir().Path() / "gone.xsd")));
#endif
}

TEST_F(DomDocSchemaErrorsTest, MissingImportedFile) {
  const std::string error = ErrorOfText(Schema("urn:t", "<xs:import namespace='urn:u' schemaLocation='gone.xsd'/>"));
#ifdef _WIN32
  EXPECT_EQ(error, Prefix(Dir().Path() / "t.xsd") + std::string(kPartsElsewhere));
#else
  EXPECT_THAT(error, StartsWith(Prefix(Dir().Path() / "gone.xsd")));
#endif
}

TEST_F(DomDocSchemaErrorsTest, NothingIsFetchedFromTheNetwork) {
  const CLoopbackListener listener;
  for (const char* kind : {"include", "import namespace='urn:u'", "redefine"}) {
    for (const char* scheme : {"http", "ftp", "https"}) {
      const std::string url = listener.Url(scheme) + "/u.xsd";
#ifdef _WIN32
      const std::string expected = Prefix(Dir().Path() / "t.xsd") + std::string(kPartsElsewhere);
#else
      const std::string expected = "Couldn't load the schema " + url + ": nothing is loaded from the network";
#endif
      EXPECT_EQ(ErrorOfText(Schema("urn:t", "<xs:" + std::string(kind) + " schemaLocation='" + url + "'/>")), expected);
    }
  }
  EXPECT_FALSE(listener.WasCalled());
}

#ifndef _WIN32
TEST_F(DomDocSchemaErrorsTest, NothingIsLoadedFromTheCurrentDirectory) {
  const fs::path before = fs::current_path();
  const fs::path elsewhere = Dir().Path() / "elsewhere";
  fs::create_directory(elsewhere);
  Dir().Write("elsewhere/x.xsd", Schema("urn:t", kElement));
  fs::create_directory(elsewhere / "localhost");
  Dir().Write("elsewhere/localhost/x.xsd", Schema("urn:t", kElement));
  fs::current_path(elsewhere);
  for (const std::string url : {"file:x.xsd", "file://localhost/x.xsd", "urn:x.xsd", "//localhost/x.xsd"}) {
    EXPECT_THAT(ErrorOfText(Schema("urn:t", "<xs:include schemaLocation='" + url + "'/>")),
                testing::EndsWith(": nothing is loaded from the network"))
        << url;
  }
  fs::current_path(before);
}
#endif

TEST_F(DomDocSchemaErrorsTest, SchemaOnTheNetworkIsAMissingFile) {
  const CLoopbackListener listener;
  EXPECT_THAT(ErrorOf(listener.Url("http") + "/t.xsd"), StartsWith("Couldn't load the schema "));
  EXPECT_FALSE(listener.WasCalled());
}

TEST_F(DomDocSchemaErrorsTest, ExternalEntityOfASchemaIsNotFetched) {
  const CLoopbackListener listener;
  EXPECT_THAT(ErrorOfText("<!DOCTYPE x SYSTEM '" + listener.Url("http") + "/x.dtd' [<!ENTITY e SYSTEM '" +
                          listener.Url("http") + "/e'>]>" + Schema("urn:t", "&e;" + std::string(kElement))),
              StartsWith("Couldn't load the schema "));
  EXPECT_FALSE(listener.WasCalled());
}

TEST_F(DomDocSchemaErrorsTest, DocumentIsLoadedAfterTheError) {
  CSchemaDocument document({{Dir().Path() / "missing.xsd", "urn:t"}});
  EXPECT_THROW(document.ValidateDoc(Dir().Write("x.xml", "<n xmlns='urn:t'>1</n>")), CZoDOMDocException);
  EXPECT_EQ(testsupport::Text(*document.GetRootElement()), "1");
}

TEST_F(DomDocSchemaErrorsTest, MalformedDocumentIsNotValidWhateverTheSchema) {
  CSchemaDocument document({{Dir().Path() / "missing.xsd", "urn:t"}});
  EXPECT_FALSE(document.ValidateDoc(Dir().Write("x.xml", "<n")));
  EXPECT_EQ(document.Problems().size(), 1U);
}

}  // namespace
