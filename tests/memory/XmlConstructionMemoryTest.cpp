// Constructing objects from XML files, and appending XML files.
#include "BaseUtilities/Exceptions.h"
#include "ComMemory.h"
#include "Samples.h"
#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <new>
#include <optional>
#include <string>
#include <vector>

namespace {

using testsupport::AppendFile;
using testsupport::FieldTexts;
using testsupport::ForEveryFailingAllocation;
using testsupport::SampleFields;

class XmlConstructionMemoryTest : public testing::Test {
 protected:
  std::filesystem::path Write(const std::string& text) const {
    return m_dir.Write("a file with a long name.xml", text);
  }

 private:
  testsupport::TempDir m_dir;
};

/// Constructs from a path. A COM error surfaces as the object's own exception; running out of memory elsewhere passes
/// through unchanged.
std::optional<CVendorInfoFile> Construct(const std::filesystem::path& path) {
  try {
    return CVendorInfoFile(path);
  } catch (const CZoDOMDocException& error) {
    const std::string_view text = error.what();
    if (!text.ends_with("Not enough memory resources are available to complete this operation.")) throw;
    throw std::bad_alloc();
  }
}

/// The message of a call that throws `CVIFInvalidFile`; "valid" when it does not throw. Allocates nothing.
template <typename Call>
std::optional<CVIFInvalidFile> Refusal(const Call& call) {
  try {
    call();
  } catch (const CVIFInvalidFile& error) {
    return error;
  }
  return std::nullopt;
}

TEST_F(XmlConstructionMemoryTest, FromAnXmlFile) {
  const std::filesystem::path path = Write(testsupport::XmlDocumentText());
  const std::vector<std::string> expected = FieldTexts(*CVendorInfoFile(path).GetFields());
  ASSERT_EQ(expected.size(), testsupport::kXmlFieldCount);
  ForEveryFailingAllocation([] { return std::optional<CVendorInfoFile>(); },
                            [&](std::optional<CVendorInfoFile>& vif) { vif = Construct(path); },
                            [&](const std::optional<CVendorInfoFile>& vif, bool isDone) {
                              EXPECT_EQ(vif.has_value(), isDone);
                              if (vif) {
                                EXPECT_EQ(FieldTexts(*vif->GetFields()), expected);
                              }
                            });
}

TEST_F(XmlConstructionMemoryTest, FromAnXmlFileInUtf16) {
  const std::wstring wide = Utf8ToUtf16(testsupport::XmlDocumentText());
  std::string text = "\xFF\xFE";
  for (const wchar_t c : wide) text.append({static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)});
  text.replace(text.find(std::string("u\0t\0f\0-\0008\0", 10)), 10, std::string("u\0t\0f\0-\0001\0006\0", 12));
  const std::filesystem::path path = Write(text);
  const std::vector<std::string> expected = FieldTexts(*CVendorInfoFile(path).GetFields());
  ASSERT_EQ(expected.size(), testsupport::kXmlFieldCount);
  ForEveryFailingAllocation([] { return std::optional<CVendorInfoFile>(); },
                            [&](std::optional<CVendorInfoFile>& vif) { vif = Construct(path); },
                            [&](const std::optional<CVendorInfoFile>& vif, bool) {
                              if (vif) {
                                EXPECT_EQ(FieldTexts(*vif->GetFields()), expected);
                              }
                            });
}

/// Constructs from a file that is refused; whenever memory suffices to refuse it, all reasons are given.
void ExpectInvalidFileBearsFailures(const std::filesystem::path& path) {
  const auto load = [&] { return Refusal([&] { Construct(path); }); };
  const std::optional<CVIFInvalidFile> expected = load();
  ASSERT_TRUE(expected);
  ForEveryFailingAllocation(load, [&](const std::optional<std::optional<CVIFInvalidFile>>& refusal) {
    if (!refusal) return;
    ASSERT_TRUE(*refusal) << "the file counts as valid";
    EXPECT_STREQ((*refusal)->what(), expected->what());
    EXPECT_EQ(testsupport::ProblemTexts((*refusal)->Problems()), testsupport::ProblemTexts(expected->Problems()));
  });
}

TEST_F(XmlConstructionMemoryTest, FromAFileThatIsNotValid) {
  ExpectInvalidFileBearsFailures(Write(testsupport::XmlVif(
      "<vif:TID>1</vif:TID><vif:Component><vif:PD_Port_Type value=\"many\"/></vif:Component><vif:Unknown_Element/>")));
}

TEST_F(XmlConstructionMemoryTest, FromAFileWithAnotherRoot) {
  ExpectInvalidFileBearsFailures(Write("<other xmlns=\"urn:a-namespace-of-some-length\"/>"));
}

TEST_F(XmlConstructionMemoryTest, FromAFileThatIsNotWellFormed) {
  ExpectInvalidFileBearsFailures(Write("<a><b attribute=\"1\" attribute=\"2\"></c>&unknown;</a>"));
}

TEST_F(XmlConstructionMemoryTest, FromAFileThatIsTooDeep) {
  std::string text;
  for (int i = 0; i < 300; ++i) text += "<a>";
  ExpectInvalidFileBearsFailures(Write(text));
}

TEST_F(XmlConstructionMemoryTest, FromAFileWithADocumentType) {
  ExpectInvalidFileBearsFailures(Write("<!DOCTYPE a [<!ENTITY e 'text'>]><a>&e;</a>"));
}

TEST_F(XmlConstructionMemoryTest, FromAFileThatIsADirectory) {
  const testsupport::TempDir dir;
  std::filesystem::create_directory(dir.Path() / "a directory.xml");
  ExpectInvalidFileBearsFailures(dir.Path() / "a directory.xml");
}

TEST_F(XmlConstructionMemoryTest, AppendOfAnXmlFileLosesNothing) {
  const std::filesystem::path path = Write(testsupport::XmlDocumentText());
  CVendorInfoFile whole(SampleFields());
  AppendFile(whole, path);
  const std::vector<std::string> expected = FieldTexts(*whole.GetFields());
  ForEveryFailingAllocation([] { return CVendorInfoFile(SampleFields()); },
                            [&](CVendorInfoFile& vif) { testsupport::WithComErrors([&] { AppendFile(vif, path); }); },
                            [&](CVendorInfoFile& vif, bool isDone) {
                              const std::vector<std::string> held = FieldTexts(*vif.GetFields());
                              ASSERT_GE(held.size(), SampleFields().size());
                              ASSERT_LE(held.size(), expected.size());
                              EXPECT_TRUE(std::equal(held.begin(), held.end(), expected.begin()));
                              if (isDone) {
                                EXPECT_EQ(held.size(), expected.size());
                              }
                              AppendFile(vif, path);
                              EXPECT_EQ(vif.Count(), held.size() + testsupport::kXmlFieldCount);
                            });
}

TEST_F(XmlConstructionMemoryTest, AppendOfAnXmlFileThatIsNotValidLosesNothing) {
  const std::filesystem::path path =
      Write(testsupport::XmlVif("<vif:Component><vif:PD_Port_Type value=\"many\"/></vif:Component>"));
  ForEveryFailingAllocation(
      [] { return CVendorInfoFile(SampleFields()); },
      [&](CVendorInfoFile& vif) {
        EXPECT_TRUE(testsupport::WithComErrors([&] { return Refusal([&] { AppendFile(vif, path); }); }));
      },
      [](CVendorInfoFile& vif, bool) { EXPECT_EQ(FieldTexts(*vif.GetFields()), FieldTexts(SampleFields())); });
}

}  // namespace
