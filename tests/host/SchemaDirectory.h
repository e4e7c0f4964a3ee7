// Tests that set the schema directory and validate against the schema in it.
#pragma once

#include "support/Schemas.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

/// Validates documents against `t.xsd` in the directory that is set.
class CSchemaDirectoryTest : public testing::Test {
 protected:
  void TearDown() override { CDOMDoc::SetSchemaDirectory({}); }

  const testsupport::TempDir& Dir() const { return m_dir; }

  /// Creates a directory and sets it.
  std::filesystem::path UseDirectory(const std::filesystem::path& name) const {
    std::filesystem::path directory = m_dir.Path() / name;
    std::filesystem::create_directory(directory);
    CDOMDoc::SetSchemaDirectory(directory);
    return directory;
  }

  /// Writes that directory's schema, which gives the root's content the named type.
  void WriteSchema(const std::filesystem::path& directory, const std::string& type) const {
    m_dir.Write(directory / "t.xsd", testsupport::Schema("urn:t", "<xs:element name='n' type='xs:" + type + "'/>"));
  }

  bool IsValid(const std::string& content) const {
    CDOMDoc document({{CDOMDoc::MakeFullSchemaPath(L"t.xsd"), L"urn:t"}});
    return document.ValidateDoc(m_dir.Write("x.xml", "<n xmlns='urn:t'>" + content + "</n>"));
  }

  /// Creates a directory of that name and expects documents to be validated against the schema in it.
  void ExpectSchemaIsUsed(const std::filesystem::path& directory) const {
    UseDirectory(directory);
    WriteSchema(directory, "integer");
    EXPECT_TRUE(IsValid("1"));
    EXPECT_FALSE(IsValid("x"));
  }

 private:
  testsupport::TempDir m_dir;
};
