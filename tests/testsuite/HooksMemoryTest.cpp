// The hooks when memory runs out. A program of its own, because it links an operator new and a BSTR allocation that
// fail.
#include "RecordingHost.h"
#include "TestSuiteVIF.h"
#include "VendorInfoFile.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

namespace {

using testsupport::CRecordingHost;
using testsupport::ForEveryFailingAllocation;

constexpr std::size_t kFieldCount = 3;

class HooksMemoryTest : public testing::TestWithParam<const char*> {
 protected:
  std::filesystem::path File() const {
    const std::string name = GetParam();
    return m_dir.Write("a product with a long name." + name,
                       name == "txt" ? "PID: 1\nUSB_VID: 2\n$Vendor_Name: \"a name that needs memory\"\n"
                                     : testsupport::XmlVif("<vif:TID>1</vif:TID><vif:Component><vif:A value=\"1\"/>"
                                                           "<vif:B value=\"2\"/></vif:Component>"));
  }

  testsupport::TempDir m_dir;
};

using HostPointer = std::unique_ptr<CRecordingHost>;

HostPointer HostWithFile(const std::filesystem::path& path) {
  auto host = std::make_unique<CRecordingHost>();
  host->suiteLog.SetVifFileName(path.string().c_str());
  return host;
}

TEST_P(HooksMemoryTest, InitializePublishesTheWholeFileOrNothing) {
  const std::filesystem::path path = File();
  ForEveryFailingAllocation([&] { return HostWithFile(path); }, [](HostPointer& host) { host->Initialize(); },
                            [](const HostPointer& host, bool isDone) {
                              const CVendorInfoFile* vif = CAppState::TestSuiteVIF();
                              EXPECT_TRUE(vif == nullptr || vif->Count() == kFieldCount);
                              // A third line says why nothing is published.
                              if (isDone) {
                                EXPECT_EQ(host->log.Lines().size(), vif != nullptr ? 2U : 3U);
                              }
                            });
}

TEST_P(HooksMemoryTest, CleanupWithdrawsAndDeletesWhateverFails) {
  const std::filesystem::path path = File();
  const auto begin = [&] {
    HostPointer host = HostWithFile(path);
    host->Initialize();
    EXPECT_NE(CAppState::TestSuiteVIF(), nullptr);
    return host;
  };
  ForEveryFailingAllocation(
      begin, [](HostPointer& host) { host->Cleanup(); },
      [](const HostPointer& host, bool isDone) {
        EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
        EXPECT_EQ(host->log.Lines().size(), isDone ? 3U : 2U);
      });
}

INSTANTIATE_TEST_SUITE_P(Forms, HooksMemoryTest, testing::Values("txt", "xml"),
                         [](const auto& form) { return std::string(form.param); });

TEST(HooksMemory, InitializeThatFindsNoFile) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Path() / "no file of that name.txt";
  ForEveryFailingAllocation([&] { return HostWithFile(path); }, [](HostPointer& host) { host->Initialize(); },
                            [](const HostPointer& host, bool isDone) {
                              EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
                              if (isDone) {
                                EXPECT_EQ(host->log.Lines().size(), 3U);
                              }
                            });
}

TEST(HooksMemory, InitializeThatRefuses) {
  const auto begin = [] {
    auto host = std::make_unique<CRecordingHost>();
    host->input.chooses = false;
    return host;
  };
  ForEveryFailingAllocation(
      begin, [](HostPointer& host) { host->Initialize(); },
      [](const HostPointer& host, bool isDone) {
        EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
        EXPECT_EQ(host->log.Lines().size(), isDone ? 1U : 0U);
      });
}

}  // namespace
