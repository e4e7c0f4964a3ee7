// Progress and cancelling through the C interface.
#include "Handles.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::Pair;
using namespace testsupport;

/// Records calls, and cancels at one of them.
struct Recorder {
  explicit Recorder(std::size_t when = 0) : cancelAt(when) {}

  std::size_t cancelAt;  // from 1; 0 for never
  std::vector<std::pair<std::uint64_t, std::uint64_t>> calls;
};

extern "C" int32_t Record(void* user, uint64_t done, uint64_t total) {
  auto& recorder = *static_cast<Recorder*>(user);
  recorder.calls.emplace_back(done, total);
  return recorder.calls.size() == recorder.cancelAt ? 1 : 0;
}

vif_progress ProgressTo(Recorder& recorder) { return {sizeof(vif_progress), Record, &recorder}; }

std::string LongText() {
  std::string text;
  while (text.size() < 200'000) text += "PID: 1 ; a comment\n";
  return text;
}

TEST(CProgressTest, LoadingTellsHowManyBytesAreRead) {
  const TempDir dir;
  const std::string path = dir.Write("a.txt", "PID: 1\n").string();
  const FilePointer file = MakeFile();
  Recorder recorder;
  const vif_progress progress = ProgressTo(recorder);
  ASSERT_EQ(vif_file_load(file.get(), path.c_str(), &progress, nullptr), VIF_OK);
  EXPECT_THAT(recorder.calls, ElementsAre(Pair(0, 7), Pair(7, 7)));
  recorder.calls.clear();
  const std::string text = LongText();
  ASSERT_EQ(vif_file_load_bytes(file.get(), text.data(), text.size(), "b.txt", &progress, nullptr), VIF_OK);
  EXPECT_EQ(recorder.calls.size(), 5U);
}

TEST(CProgressTest, CancellingChangesNothing) {
  for (const auto& [bytes, name] :
       {std::pair(LongText(), "b.txt"), std::pair(XmlVif("<vif:TID>1</vif:TID>"), "b.xml")}) {
    const FilePointer file = FileOf("PID: 1\n");
    std::size_t cancelled = 0;
    for (std::size_t k = 1;; ++k) {
      Recorder recorder(k);
      const vif_progress progress = ProgressTo(recorder);
      CError error;
      const vif_status status =
          vif_file_load_bytes(file.get(), bytes.data(), bytes.size(), name, &progress, error.Receive());
      if (status == VIF_OK) break;
      ASSERT_EQ(status, VIF_ERROR_CANCELLED);
      EXPECT_EQ(error.Status(), VIF_ERROR_CANCELLED);
      EXPECT_EQ(recorder.calls.size(), k);
      EXPECT_THAT(CFieldTexts(file.get()), ElementsAre("PID=1 @6.1"));
      EXPECT_EQ(vif_file_component_count(file.get()), 1U);
      ++cancelled;
    }
    EXPECT_GE(cancelled, 3U) << name;
  }
}

/// Expects a function to be called before and after the work, and to cancel it at either time.
/// \param call gets the progress and returns the status
template <typename Call>
void ExpectBeforeAndAfter(const Call& call) {
  Recorder recorder;
  vif_progress progress = ProgressTo(recorder);
  EXPECT_EQ(call(&progress), VIF_OK);
  EXPECT_THAT(recorder.calls, ElementsAre(Pair(0, 1), Pair(1, 1)));
  for (const std::size_t k : {1U, 2U}) {
    Recorder cancelling(k);
    progress = ProgressTo(cancelling);
    EXPECT_EQ(call(&progress), VIF_ERROR_CANCELLED);
    EXPECT_EQ(cancelling.calls.size(), k);
  }
}

TEST(CProgressTest, ChecksAndComparisonsTellBeforeAndAfter) {
  const FilePointer file = FileOf("PID: 1\n");
  ExpectBeforeAndAfter([](const vif_progress* progress) {
    vif_findings* findings = nullptr;
    const vif_status status = vif_check_bytes("", 0, "a.txt", nullptr, progress, &findings, nullptr);
    EXPECT_EQ(findings != nullptr, status == VIF_OK);
    vif_findings_free(findings);
    return status;
  });
  ExpectBeforeAndAfter([&](const vif_progress* progress) {
    vif_differences* differences = nullptr;
    const vif_status status = vif_compare(file.get(), file.get(), nullptr, progress, &differences, nullptr);
    EXPECT_EQ(differences != nullptr, status == VIF_OK);
    vif_differences_free(differences);
    return status;
  });
  ExpectBeforeAndAfter([&](const vif_progress* progress) {
    auto reported = Sized<vif_reported_file>();
    reported.file = file.get();
    vif_text* page = nullptr;
    const vif_status status = vif_report(&reported, nullptr, progress, &page, nullptr);
    EXPECT_EQ(page != nullptr, status == VIF_OK);
    vif_text_free(page);
    return status;
  });
  ExpectBeforeAndAfter([&](const vif_progress* progress) {
    vif_ports* ports = nullptr;
    const vif_status status = vif_compare_ports(file.get(), nullptr, progress, &ports, nullptr);
    EXPECT_EQ(ports != nullptr, status == VIF_OK);
    vif_ports_free(ports);
    return status;
  });
}

TEST(CProgressTest, TheFunctionMayBeNull) {
  const FilePointer file = MakeFile();
  const vif_progress none = {sizeof(vif_progress), nullptr, nullptr};
  EXPECT_EQ(vif_file_load_bytes(file.get(), "", 0, "a.txt", &none, nullptr), VIF_OK);
  const vif_progress unsized = {0, nullptr, nullptr};
  EXPECT_EQ(vif_file_load_bytes(file.get(), "", 0, "a.txt", &unsized, nullptr), VIF_ERROR_ARGUMENT);
}

extern "C" int32_t Throw(void*, uint64_t, uint64_t) { throw 42; }

TEST(CProgressTest, AnExceptionOfTheFunctionDoesNotPass) {
  const FilePointer file = MakeFile();
  const vif_progress progress = {sizeof(vif_progress), Throw, nullptr};
  EXPECT_EQ(vif_file_load_bytes(file.get(), "", 0, "a.txt", &progress, nullptr), VIF_ERROR_INTERNAL);
}

}  // namespace
