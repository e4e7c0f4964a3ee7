// The effect of the loader that is set while schemas are compiled on a host that uses libxml2 itself.
#include "support/Schemas.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xmlmemory.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>
#include <utility>

namespace {

using testsupport::CSchemaDocument;
using testsupport::Schema;

xmlExternalEntityLoader g_before = nullptr;
xmlMallocFunc g_allocate = nullptr;
std::function<void()> g_action;

/// libxml2's allocation function, which runs the action once the loader has changed: then a schema is being compiled.
void* Allocate(std::size_t size) {
  if (g_action && xmlGetExternalEntityLoader() != g_before) std::exchange(g_action, nullptr)();
  return g_allocate(size);
}

std::string g_loaded;

xmlParserInputPtr HostLoad(const char* url, const char*, xmlParserCtxtPtr) {
  g_loaded = url;
  return nullptr;
}

xmlExternalEntityLoader g_meanwhile = nullptr;

/// Loads through the loader that was set.
xmlParserInputPtr HostLoadMeanwhile(const char* url, const char* id, xmlParserCtxtPtr context) {
  return g_meanwhile(url, id, context);
}

class SchemaLoaderTest : public testing::Test {
 protected:
  void SetUp() override { xmlSetExternalEntityLoader(HostLoad); }
  void TearDown() override { xmlSetExternalEntityLoader(m_own); }

  /// Runs an action while a schema is being compiled, which must still succeed.
  void DoWhileCompiling(std::function<void()> action) const {
    const std::filesystem::path schema =
        m_dir.Write("t.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>"));
    const std::filesystem::path file = m_dir.Write("x.xml", "<n xmlns='urn:t'>1</n>");
    ASSERT_TRUE(CSchemaDocument({}).ValidateDoc(file));  // performs the initialisation that happens once per process
    g_before = xmlGetExternalEntityLoader();
    g_action = std::move(action);
    xmlFreeFunc free = nullptr;
    xmlReallocFunc reallocate = nullptr;
    xmlStrdupFunc duplicate = nullptr;
    xmlMemGet(&free, &g_allocate, &reallocate, &duplicate);
    xmlMemSetup(free, Allocate, reallocate, duplicate);
    EXPECT_TRUE(CSchemaDocument({{schema, "urn:t"}}).ValidateDoc(file));
    xmlMemSetup(free, g_allocate, reallocate, duplicate);
    EXPECT_FALSE(g_action) << "it has not been done";
  }

 private:
  testsupport::TempDir m_dir;
  xmlExternalEntityLoader m_own = xmlGetExternalEntityLoader();
};

TEST_F(SchemaLoaderTest, LoaderOfTheHostIsRestored) {
  DoWhileCompiling([] { EXPECT_NE(xmlGetExternalEntityLoader(), HostLoad); });
  EXPECT_EQ(xmlGetExternalEntityLoader(), HostLoad);
}

TEST_F(SchemaLoaderTest, OtherThreadsUseTheLoaderOfTheHost) {
  DoWhileCompiling([] { std::thread([] { xmlLoadExternalEntity("host:file", nullptr, nullptr); }).join(); });
  EXPECT_EQ(g_loaded, "host:file");
}

TEST_F(SchemaLoaderTest, NothingIsLoadedWithoutAUrl) {
  DoWhileCompiling([] { EXPECT_EQ(xmlLoadExternalEntity(nullptr, "id", nullptr), nullptr); });
}

TEST_F(SchemaLoaderTest, LoaderThatTheHostSetsMeanwhileStays) {
  DoWhileCompiling([] {
    g_meanwhile = xmlGetExternalEntityLoader();
    xmlSetExternalEntityLoader(HostLoadMeanwhile);
  });
  EXPECT_EQ(xmlGetExternalEntityLoader(), HostLoadMeanwhile);
}

}  // namespace
