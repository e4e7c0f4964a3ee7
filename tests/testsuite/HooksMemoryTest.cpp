// What the hooks do when memory runs out. Needs a program of its own, because it is linked with an operator new and an
// allocation of BSTRs that fail.
#include "RecordingHost.h"
#include "TestSuiteVIF.h"
#include "VendorInfoFile.h"
#include "support/FailingMemory.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <new>
#include <string>

namespace {

using testsupport::CFailingMemory;
using testsupport::CRecordingHost;
using testsupport::Memory;

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

/// Runs one hook while the k-th allocation fails, and says whether it was asked for.
template <typename Hook>
bool FailsAt(Memory kind, std::size_t k, const Hook& hook) {
  const CFailingMemory memory(kind, k);
  try {
    hook();
  } catch (const std::bad_alloc&) {
    EXPECT_TRUE(memory.HasFailed());
  }
  return memory.HasFailed();
}

TEST_P(HooksMemoryTest, InitializePublishesTheWholeFileOrNothing) {
  const std::string path = File().string();
  for (const Memory kind : {Memory::OperatorNew, Memory::Bstr}) {
    std::size_t k = 0;
    for (bool hasFailed = true; hasFailed;) {
      CRecordingHost host;
      host.suiteLog.SetVifFileName(path.c_str());
      hasFailed = FailsAt(kind, ++k, [&] { host.Initialize(); });
      const CVendorInfoFile* vif = CAppState::TestSuiteVIF();
      EXPECT_TRUE(vif == nullptr || vif->Count() == kFieldCount) << "allocation " << k;
      EXPECT_TRUE(hasFailed || vif != nullptr);
    }
    EXPECT_TRUE(kind == Memory::Bstr || k > 20) << "only " << k << " allocations";
  }
}

TEST_P(HooksMemoryTest, CleanupWithdrawsAndDeletesWhateverFails) {
  const std::string path = File().string();
  std::size_t k = 0;
  for (bool hasFailed = true; hasFailed;) {
    CRecordingHost host;
    host.suiteLog.SetVifFileName(path.c_str());
    host.Initialize();
    ASSERT_NE(CAppState::TestSuiteVIF(), nullptr);
    hasFailed = FailsAt(Memory::OperatorNew, ++k, [&] { host.Cleanup(); });
    EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  }
  EXPECT_GT(k, 1u);
}

INSTANTIATE_TEST_SUITE_P(Forms, HooksMemoryTest, testing::Values("txt", "xml"),
                         [](const auto& form) { return std::string(form.param); });

}  // namespace
