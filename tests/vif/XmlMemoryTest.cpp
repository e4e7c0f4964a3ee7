// The state of an object after memory runs out while it loads an XML VIF. A separate program, because it links an
// operator new and a BSTR allocation that fail.
#include "VendorInfoFile.h"
#include "msxml/ComTypes.h"
#include "support/AppendFile.h"
#include "support/FailingMemory.h"

#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/StringConvert.h"
#include "msxml/ComPointer.h"
#include "support/FieldText.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#ifndef _WIN32
#include "TextlessErrors.h"
#endif

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <new>
#include <string>
#include <vector>

namespace {

using testsupport::AppendFile;
using testsupport::CFailingMemory;
using testsupport::Memory;

/// A header, a product with 12 fields and two components with 6.
std::string Document() {
  std::string routers;
  for (int i = 0; i < 8; ++i) routers += "<vif:Usb4Router><vif:USB4_Router_ID value=\"9\"/></vif:Usb4Router>";
  return testsupport::XmlVif(
      "<vif:VIF_App><vif:Vendor>a vendor whose name needs memory of its own</vif:Vendor></vif:VIF_App>"
      "<vif:VIF_Specification>3.1</vif:VIF_Specification><vif:TID>12345</vif:TID>"
      "<vif:Product><vif:USB4_Dock value=\"true\"/><vif:USB4RouterList>" +
      routers +
      "</vif:USB4RouterList></vif:Product>"
      "<vif:Component><vif:Port_Label>a label that needs memory of its own</vif:Port_Label><vif:SrcPdoList><vif:SrcPDO>"
      "<vif:Src_PDO_Voltage value=\"100\">5000 mV</vif:Src_PDO_Voltage></vif:SrcPDO></vif:SrcPdoList></vif:Component>"
      "<vif:Component><vif:RP_Value value=\"1\"/><vif:SrcPdoList><vif:SrcPDO><vif:Src_PDO_Voltage value=\"180\"/>"
      "<vif:Src_PDO_Max_Current value=\"300\"/></vif:SrcPDO></vif:SrcPdoList>"
      "<vif:Sends_Pings value=\"false\"/></vif:Component>");
}

constexpr std::size_t kHeaderSize = 12;

// On Windows, what MSXML allocates for itself does not fail.
#ifdef _WIN32
constexpr std::size_t kFewestFailures = 15;
#else
constexpr std::size_t kFewestFailures = 30;
#endif

class XmlMemoryTest : public testing::TestWithParam<Memory> {
 protected:
  XmlMemoryTest() {
    const CVendorInfoFile whole = Loaded();
    whole.GetFields()->swap(m_whole);
  }

  /// An object that holds something before the XML file is appended.
  CVendorInfoFile Begun() const { return CVendorInfoFile(m_text); }

  CVendorInfoFile Loaded() const {
    CVendorInfoFile vif = Begun();
    AppendFile(vif, m_xml);
    return vif;
  }

  std::vector<std::string> First(std::size_t count) const {
    std::vector<std::string> texts = testsupport::FieldTexts(m_whole);
    texts.resize(count);
    return texts;
  }

  testsupport::TempDir m_dir;
  std::filesystem::path m_text = m_dir.Write("a.txt", "PID: 1\n$Vendor_Name: \"a name that needs memory\"\n");
  std::filesystem::path m_xml = m_dir.Write("b.xml", Document());
  std::vector<CVIFField> m_whole;
};

/// Whether the action ran out of memory.
template <typename Action>
bool RanOutOfMemory(const Action& action) {
  try {
    action();
  } catch (const std::bad_alloc&) {
    return true;
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
    return true;
  }
  return false;
}

TEST_P(XmlMemoryTest, AppendLosesNothingAndAddsTheWholeHeaderOrNoneOfIt) {
  std::size_t failures = 0;
  for (bool hasFailed = true; hasFailed; failures += hasFailed ? 1 : 0) {
    CVendorInfoFile vif = Begun();
    const std::size_t before = vif.Count();
    {
      const CFailingMemory memory(GetParam(), failures + 1);
      const bool ranOut = RanOutOfMemory([&] { AppendFile(vif, m_xml); });
      hasFailed = memory.HasFailed();
      // Caches that only speed up queries are optional, so a failed allocation may go unnoticed.
      EXPECT_TRUE(ranOut == hasFailed || vif.Count() == m_whole.size()) << "allocation " << failures + 1;
    }
    const std::size_t count = vif.Count();
    EXPECT_TRUE(count == before || count >= before + kHeaderSize) << "allocation " << failures + 1;
    EXPECT_EQ(testsupport::FieldTexts(*vif.GetFields()), First(count));
    AppendFile(vif, m_text);  // the object remains usable
    EXPECT_EQ(vif.Count(), count + before);
  }
  EXPECT_GT(failures, kFewestFailures);
}

INSTANTIATE_TEST_SUITE_P(Memory, XmlMemoryTest, testing::Values(Memory::OperatorNew, Memory::Bstr),
                         [](const auto& kind) { return kind.param == Memory::Bstr ? "OfBstrs" : "OfObjects"; });

/// The exception that the constructor throws when a BSTR cannot be allocated.
std::string CreateError(const std::filesystem::path& path) {
  const CFailingMemory memory(Memory::Bstr, 5);
  try {
    const CVendorInfoFile vif(path);
  } catch (const CZoDOMDocException& error) {
    return error.what();
  }
  return "<no exception>";
}

TEST(XmlMemory, ConstructorReportsAFailedCallWithTheFilesName) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("b %s.xml", Document());
#ifdef _WIN32
  const std::string reason = Utf16ToUtf8(_com_error(E_OUTOFMEMORY).ErrorMessage());
#else
  const std::string reason = "some text";
#endif
  EXPECT_EQ(CreateError(path), "Vendor Info File Create Exception (file name: \"" + path.string() + "\") - " + reason);
}

TEST(XmlMemory, ConstructorReportsAFailedCallWithoutATextByItsCode) {
#ifdef _WIN32
  GTEST_SKIP() << "on Windows, every error of COM has a text";
#else
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("b.xml", Document());
  const testsupport::CTextlessErrors textless;
  EXPECT_EQ(CreateError(path),
            "Vendor Info File Create Exception (file name: \"" + path.string() + "\") - COM Error Code 0x8007000E");
#endif
}

TEST(XmlMemory, ConstructorPassesOutOfMemoryInTheLibrary) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("b.xml", Document());
  const CFailingMemory memory(Memory::OperatorNew, 20);
  EXPECT_THROW(CVendorInfoFile{path}, std::bad_alloc);
}

}  // namespace
