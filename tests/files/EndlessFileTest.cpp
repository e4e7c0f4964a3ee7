// Files that exceed memory or never end.
#include "FileTest.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <new>
#include <system_error>

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kHuge = std::uintmax_t{8} << 30;
constexpr rlim_t kMemory = rlim_t{300} << 20;  // of address space, including the program and its libraries
constexpr unsigned kSeconds = 30;

/// Runs an expectation in a process of its own, with little memory and a time limit.
/// \return whether it held
bool HoldsWithLittleMemory(const std::function<bool()>& expectation) {
  const pid_t child = fork();
  if (child == 0) {
    const rlimit memory = {kMemory, kMemory};
    setrlimit(RLIMIT_AS, &memory);
    alarm(kSeconds);
    _exit(expectation() ? 0 : 1);
  }
  int state = 0;
  waitpid(child, &state, 0);
  return WIFEXITED(state) && WEXITSTATUS(state) == 0;
}

/// Whether the action runs out of memory.
bool LacksMemory(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::bad_alloc&) {
    return true;
  }
  return false;
}

class EndlessFileTest : public testsupport::CFileTest {
 protected:
  void SetUp() override {
#ifdef IS_SANITIZED
    GTEST_SKIP() << "the sanitizer needs more address space than the limit";
#endif
  }

  /// Makes a file larger than memory, with NULs that take no disk space.
  static bool Lengthen(const fs::path& file) {
    std::error_code error;
    fs::resize_file(file, kHuge, error);
    return !error;
  }
};

constexpr const char* kNoHugeFiles = "files of 8 GB cannot be made here";

TEST_F(EndlessFileTest, LineThatMemoryCannotHoldKeepsWhatWasLoadedBefore) {
  if (!Lengthen(WriteText("PID: 1\nPID: "))) GTEST_SKIP() << kNoHugeFiles;
  EXPECT_TRUE(HoldsWithLittleMemory([&] {
    CVendorInfoFile vif(Dir().Path() / "held.txt");
    return LacksMemory([&] { vif.Append(TextPath().c_str()); }) && vif.Count() == 2 && vif.ComponentCount() == 2;
  }));
}

TEST_F(EndlessFileTest, CheckOfALineThatMemoryCannotHoldRunsOutOfMemory) {
  if (!Lengthen(WriteText("PID: 1\nPID: "))) GTEST_SKIP() << kNoHugeFiles;
  EXPECT_TRUE(HoldsWithLittleMemory([&] {
    std::size_t fields = 0;
    const auto count = [&](std::size_t, const CVIFField&) { ++fields; };
    return LacksMemory([&] { CheckTextVif(TextPath(), {}, nullptr, count); }) && fields == 1;
  }));
}

TEST_F(EndlessFileTest, XmlIsReadUpToTheFirstNul) {
  for (const std::string& content : {std::string(), std::string(kXml), std::string(kXmlHead) + "<TID value='"}) {
    if (!Lengthen(WriteXml(content))) GTEST_SKIP() << kNoHugeFiles;
    EXPECT_TRUE(HoldsWithLittleMemory([&] {
      const std::string expected = Invalid(XmlPath(), "");
      return Append(XmlPath()).error.starts_with(expected) &&
             testsupport::CheckXml(XmlPath()).error.starts_with(expected);
    }));
  }
}

TEST_F(EndlessFileTest, VirtualFileThatLooksRegularIsReadToAnEnd) {
  const fs::path madeUp = "/proc/self/pagemap";
  std::error_code ignored;
  if (!fs::is_regular_file(madeUp, ignored)) GTEST_SKIP() << "there is no " << madeUp;
  fs::create_symlink(madeUp, TextPath());
  fs::create_symlink(madeUp, XmlPath());
  EXPECT_TRUE(HoldsWithLittleMemory([&] {
    const testsupport::ReadOutcome text = Append(TextPath());
    return text.found.empty() && text.error.empty() && testsupport::CheckText(TextPath()).found.size() <= 1 &&
           Append(XmlPath()).error.starts_with(Invalid(XmlPath(), ""));
  }));
}

}  // namespace
