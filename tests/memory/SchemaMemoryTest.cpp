// Compiling the schemas, which happens when a process loads its first XML file and after a schema file has changed.
#include "BaseUtilities/Exceptions.h"
#include "DOMDocVIF.h"
#include "Samples.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace {

using testsupport::ForEveryFailingAllocation;
using DocumentPointer = std::unique_ptr<CDOMDocVIF>;

/// Compiling allocates far more often than most operations, so fewer of its allocations fail.
constexpr std::size_t kEveryUpTo = 300;

/// Copies of the product's own schemas. They can be moved away and back, which discards the compiled ones: how much
/// memory these need always varies, because libxml2's tables are in random order.
class SchemaMemoryTest : public testing::Test {
 protected:
  SchemaMemoryTest() {
    for (const char* name : {"VendorInfoFile.xsd", "VendorInfoFileOptionalContent.xsd"}) {
      const std::wstring from = CDOMDoc::MakeFullSchemaPath(Utf8ToUtf16(name).c_str());
      std::filesystem::copy_file(testsupport::Utf8Path(Utf16ToUtf8(from)), m_dir.Path() / name);
    }
    CDOMDoc::SetSchemaDirectory(m_dir.Path());
    m_schema = m_dir.Path() / "VendorInfoFile.xsd";
    m_away = m_dir.Path() / "away.xsd";
  }

  void TearDown() override { CDOMDoc::SetSchemaDirectory({}); }

  DocumentPointer WithSchemas() const {
    if (exists(m_away)) rename(m_away, m_schema);
    return std::make_unique<CDOMDocVIF>();
  }

  void TakeSchemasAway(CDOMDocVIF& document) const {
    rename(m_schema, m_away);
    EXPECT_THROW(document.ValidateDoc(m_file), CZoDOMDocException);
  }

  testsupport::TempDir m_dir;
  std::filesystem::path m_file = m_dir.Write("a.xml", testsupport::XmlDocumentText());
  std::filesystem::path m_schema;
  std::filesystem::path m_away;
};

TEST_F(SchemaMemoryTest, SchemasAreCompiledOrNotKept) {
  ForEveryFailingAllocation([&] { return WithSchemas(); },
                            [&](DocumentPointer& document) { EXPECT_TRUE(document->ValidateDoc(m_file)); },
                            [&](DocumentPointer& document, bool) {
                              EXPECT_TRUE(document->ValidateDoc(m_file));
                              TakeSchemasAway(*document);
                            },
                            kEveryUpTo);
}

TEST_F(SchemaMemoryTest, SchemaThatIsMissing) {
  const auto begin = [&] {
    DocumentPointer document = WithSchemas();
    TakeSchemasAway(*document);
    return document;
  };
  ForEveryFailingAllocation(
      begin,
      [&](DocumentPointer& document) {
        try {
          ADD_FAILURE() << document->ValidateDoc(m_file);
        } catch (const CZoDOMDocException& error) {
          EXPECT_TRUE(std::string_view(error.what()).starts_with("Couldn't load the schema "));
        }
      },
      [&](DocumentPointer& document, bool) {
        rename(m_away, m_schema);
        EXPECT_TRUE(document->ValidateDoc(m_file));
        TakeSchemasAway(*document);
      });
}

}  // namespace
