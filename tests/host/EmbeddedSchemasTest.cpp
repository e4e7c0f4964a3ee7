// How embedded schemas are found. This program has two of its own.
#include <xmlfile/EmbeddedSchemas.h>

#include <gtest/gtest.h>

namespace {

using xmlfile::EmbeddedSchema;
using xmlfile::EmbeddedSchemaDirectory;

TEST(EmbeddedSchemas, AreFoundByTheirPaths) {
  ASSERT_TRUE(xmlfile::HasEmbeddedSchemas());
  EXPECT_EQ(EmbeddedSchema(EmbeddedSchemaDirectory() / "One.xsd"), "<one/>");
  EXPECT_EQ(EmbeddedSchema(EmbeddedSchemaDirectory() / "Two.xsd"), "<two/>");
}

TEST(EmbeddedSchemas, HaveNoOtherNames) {
  for (const char* name : {"Three.xsd", "one.xsd", "One", "One.xsd.", "", "."}) {
    EXPECT_EQ(EmbeddedSchema(EmbeddedSchemaDirectory() / name), std::nullopt) << name;
  }
}

TEST(EmbeddedSchemas, AreInNoOtherDirectory) {
  for (const std::filesystem::path& path :
       {std::filesystem::path("One.xsd"), std::filesystem::path("/One.xsd"), std::filesystem::path("/other/One.xsd"),
        EmbeddedSchemaDirectory() / "folder" / "One.xsd"}) {
    EXPECT_EQ(EmbeddedSchema(path), std::nullopt) << path;
  }
}

}  // namespace
