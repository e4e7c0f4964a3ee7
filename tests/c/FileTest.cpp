// Loading through the C interface.
#include "Handles.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <string>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using namespace testsupport;

class CFileTest : public testing::Test {
 protected:
  std::string Path(const char* name) const {
    const std::u8string text =
        (m_dir.Path() / std::filesystem::path(std::u8string(name, name + std::strlen(name)))).u8string();
    return {text.begin(), text.end()};
  }

  std::string Write(const char* name, std::string_view content) const {
    m_dir.Write(std::filesystem::path(std::u8string(name, name + std::strlen(name))), content);
    return Path(name);
  }

  vif_status Load(const std::string& path) {
    return vif_file_load(m_file.get(), path.c_str(), nullptr, m_error.Receive());
  }

  /// Expects a failed load to leave everything as it was.
  void ExpectRefused(const std::string& path, vif_status status) {
    m_file = FileOf("PID: 1\n", "before.txt");
    EXPECT_EQ(Load(path), status);
    EXPECT_EQ(m_error.Status(), status);
    EXPECT_THAT(CFieldTexts(m_file.get()), ElementsAre("PID=1 @6.1"));
    EXPECT_EQ(vif_file_component_count(m_file.get()), 1U);
    EXPECT_STREQ(vif_file_name(m_file.get()), "before.txt");
  }

  FilePointer m_file = MakeFile();
  CError m_error;

 private:
  TempDir m_dir;
};

TEST_F(CFileTest, IsEmptyAtFirst) {
  EXPECT_EQ(vif_file_field_count(m_file.get()), 0U);
  EXPECT_EQ(vif_file_component_count(m_file.get()), 0U);
  EXPECT_STREQ(vif_file_name(m_file.get()), "");
}

TEST_F(CFileTest, LoadsFilesOfBothForms) {
  const std::string text = Write("a.txt", "PID: 1\n");
  ASSERT_EQ(Load(text), VIF_OK);
  ASSERT_EQ(Load(Write("b.XML", XmlVif("<vif:Component><vif:RP_Value value=\"1\"/></vif:Component>"))), VIF_OK);
  EXPECT_EQ(m_error.Get(), nullptr);
  EXPECT_THAT(CFieldTexts(m_file.get()), ElementsAre("PID=1 @6.1", "RP_Value=1 @6.2"));
  EXPECT_EQ(vif_file_component_count(m_file.get()), 2U);
  EXPECT_EQ(vif_file_name(m_file.get()), text);
}

TEST_F(CFileTest, LoadsBytes) {
  ASSERT_EQ(LoadBytes(m_file.get(), "PID: 1\n", "no such folder/a.txt"), VIF_OK);
  ASSERT_EQ(vif_file_load_bytes(m_file.get(), nullptr, 0, "b.txt", nullptr, nullptr), VIF_OK);
  EXPECT_THAT(CFieldTexts(m_file.get()), ElementsAre("PID=1 @6.1"));
  EXPECT_EQ(vif_file_component_count(m_file.get()), 2U);
  EXPECT_STREQ(vif_file_name(m_file.get()), "no such folder/a.txt");
}

TEST_F(CFileTest, NamesAreUtf8) {
  const std::string path = Write("Ger\xC3\xA4t \xE2\x86\x92 \xE6\xBC\xA2.xml", XmlVif("<vif:TID>1</vif:TID>"));
  ASSERT_EQ(Load(path), VIF_OK) << m_error.Message();
  EXPECT_EQ(vif_file_name(m_file.get()), path);
  const std::string missing = Path("\xE6\xBC\xA2.xml");
  EXPECT_EQ(Load(missing), VIF_ERROR_NO_FILE);
  EXPECT_EQ(m_error.Message(), "VIF Does not exist. (name: " + missing + ")");
}

TEST_F(CFileTest, TextsAreUtf8WhateverTheCodePage) {
  const std::string xml = XmlVif("<vif:Vendor_Name>\xC3\xA4 \xE2\x86\x92 \xE6\xBC\xA2</vif:Vendor_Name>");
  ASSERT_EQ(LoadBytes(m_file.get(), xml, "a.xml"), VIF_OK);
  EXPECT_STREQ(FieldAt(m_file.get(), 0).description, "\xC3\xA4 \xE2\x86\x92 \xE6\xBC\xA2");
}

TEST_F(CFileTest, BytesThatAreNotUtf8AreReplaced) {
  const std::string text = "$Vendor_Name: \"a\xFF\" ; b\xC3\nPID: 1\n$TID: \"\xE4\"\n";
  ASSERT_EQ(LoadBytes(m_file.get(), text, "a.txt"), VIF_OK);
  ASSERT_EQ(LoadBytes(m_file.get(), "PID: 2 ; \xFE\n", "b.txt"), VIF_OK);
  EXPECT_THAT(CFieldTexts(m_file.get()), ElementsAre("$Vendor_Name=\"a\xEF\xBF\xBD\" ; b\xEF\xBF\xBD", "PID=1 @6.1",
                                                     "$TID=\"\xEF\xBF\xBD\"", "PID=2 ; \xEF\xBF\xBD @6.2"));
}

TEST_F(CFileTest, AMissingFileIsRefused) {
  ExpectRefused(Path("missing.txt"), VIF_ERROR_NO_FILE);
  EXPECT_EQ(m_error.Message(), "VIF Does not exist. (name: " + Path("missing.txt") + ")");
  ExpectRefused(Path("missing"), VIF_ERROR_NO_FILE);
}

TEST_F(CFileTest, ADirectoryIsRefused) {
  std::filesystem::create_directory(Path("folder.txt"));
  ExpectRefused(Path("folder.txt"), VIF_ERROR_FILE);
  EXPECT_EQ(m_error.Message(), "Couldn't open Vendor Info File: " + Path("folder.txt") + ".");
}

TEST_F(CFileTest, ADirectoryNamedAsXmlIsRefused) {
  std::filesystem::create_directory(Path("folder.xml"));
  ExpectRefused(Path("folder.xml"), VIF_ERROR_FILE);
  EXPECT_EQ(m_error.Message(), "The file is not a regular file.");
}

TEST_F(CFileTest, APathThatCannotBeExaminedIsRefused) {
#ifdef _WIN32
  constexpr vif_status status = VIF_ERROR_NO_FILE;  // no file can have a name that is too long
#else
  constexpr vif_status status = VIF_ERROR_FILE;
#endif
  ExpectRefused(Path("") + std::string(5000, 'a') + ".txt", status);
}

TEST_F(CFileTest, AnotherExtensionIsRefused) {
  ExpectRefused(Write("a.json", "PID: 1\n"), VIF_ERROR_FORM);
  EXPECT_EQ(LoadBytes(m_file.get(), "PID: 1\n", "a", m_error.Receive()), VIF_ERROR_FORM);
  EXPECT_EQ(m_error.Message(), "Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)");
}

TEST_F(CFileTest, AnXmlFileThatIsNotValidIsRefusedWithReasons) {
  const std::string path = Write("a.xml", "<?xml version='1.0'?>\n <a/>");
  ExpectRefused(path, VIF_ERROR_INVALID);
  EXPECT_EQ(m_error.Message(), path + " is not a valid Vendor Info File.");
  ASSERT_EQ(vif_error_reason_count(m_error.Get()), 1U);
  auto reason = Sized<vif_reason>();
  ASSERT_EQ(vif_error_reason(m_error.Get(), 0, &reason), VIF_OK);
  EXPECT_EQ(reason.line, 2U);
  EXPECT_EQ(reason.column, 2U);
  EXPECT_STREQ(reason.element, "a");
  EXPECT_THAT(reason.text, HasSubstr("The root element is 'a'"));
  EXPECT_EQ(vif_error_reason(m_error.Get(), 1, &reason), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_error_reason(m_error.Get(), 0, nullptr), VIF_ERROR_ARGUMENT);
}

TEST_F(CFileTest, AMissingSchemaIsAFailureOfItsOwn) {
  const std::string folder = Path("schemas");
  std::filesystem::create_directory(folder);
  Write("schemas/VendorInfoFile.xsd", "<a/>");
  ASSERT_EQ(vif_set_schema_directory(folder.c_str(), nullptr), VIF_OK);
  ExpectRefused(Write("a.xml", XmlVif("")), VIF_ERROR_SCHEMA);
  EXPECT_THAT(m_error.Message(), HasSubstr("Couldn't load the schema "));
  ASSERT_EQ(vif_set_schema_directory(nullptr, nullptr), VIF_OK);
  EXPECT_EQ(Load(Path("a.xml")), VIF_OK);
}

TEST_F(CFileTest, ArgumentsMustNotBeNull) {
  EXPECT_EQ(vif_file_make(nullptr, m_error.Receive()), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(m_error.Message(), "there is nowhere to put the handle");
  EXPECT_EQ(vif_file_load(nullptr, "a.txt", nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_load(m_file.get(), nullptr, nullptr, m_error.Receive()), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(m_error.Message(), "a file has no name");
  EXPECT_EQ(vif_file_load(m_file.get(), "", nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_load_bytes(m_file.get(), nullptr, 1, "a.txt", nullptr, m_error.Receive()), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(m_error.Message(), "the bytes are NULL");
  EXPECT_EQ(vif_file_load_bytes(m_file.get(), "", 0, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
}

TEST_F(CFileTest, NullIsNoFile) {
  EXPECT_EQ(vif_file_field_count(nullptr), 0U);
  EXPECT_EQ(vif_file_component_count(nullptr), 0U);
  EXPECT_STREQ(vif_file_name(nullptr), "");
  vif_file_free(nullptr);
}

}  // namespace
