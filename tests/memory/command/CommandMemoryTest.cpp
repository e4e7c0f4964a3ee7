// The command with memory running out, as a process whose malloc fails: the C library's own allocations fail too, and
// those that a process makes only once; only those of libxml2's code do not.
#include "support/Random.h"
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

using testsupport::Example;
using testsupport::ProgramResult;

/// Up to this number every allocation fails; this many of the later ones do, at random.
constexpr std::size_t kEveryUpTo = 60;
constexpr std::size_t kMore = 60;

class CommandMemoryTest : public testing::Test {
 protected:
  void SetUp() override {
#ifdef IS_SANITIZED
    GTEST_SKIP() << "the sanitizer's malloc cannot be replaced";
#endif
#ifndef __GLIBC__
    GTEST_SKIP() << "only the GNU C library's malloc can be called from its replacement";
#endif
  }

  /// Runs the command with additional environment variables.
  static ProgramResult Run(const std::vector<std::string>& variables, const std::vector<std::string>& arguments) {
    std::vector<std::string> command = {"/usr/bin/env", std::string("LD_PRELOAD=") + FAILING_MALLOC};
    command.insert(command.end(), variables.begin(), variables.end());
    command.emplace_back(VIF_COMMAND);
    command.insert(command.end(), arguments.begin(), arguments.end());
    return testsupport::RunProgram(command);
  }

  std::size_t CountAllocations(const std::vector<std::string>& arguments) const {
    const std::filesystem::path file = m_dir.Path() / "count";
    Run({"VIF_TEST_COUNT=" + file.string()}, arguments);
    std::size_t count = 0;
    std::ifstream(file) >> count;
    return count;
  }

  /// Expects the same as with enough memory, or status 2 and a single line with the reason.
  static void ExpectEndsWell(const ProgramResult& result, const ProgramResult& whole) {
    if (result.status == whole.status && result.error == whole.error) {
      EXPECT_EQ(result.output, whole.output);
      return;
    }
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(testsupport::Lines(result.error).size(), 1U) << result.error;
    EXPECT_TRUE(result.error.starts_with("vif: ")) << result.error;
  }

  void ExpectSurvivesFailures(const std::vector<std::string>& arguments) const {
    const ProgramResult whole = Run({}, arguments);
    const std::size_t count = CountAllocations(arguments);
    ASSERT_GT(count, 20U);
    SCOPED_TRACE(testsupport::SeedMessage());
    std::mt19937_64 generator = testsupport::SeededGenerator();
    std::size_t points = 0;
    for (std::size_t i = 1; i <= std::min(count, kEveryUpTo + kMore); ++i) {
      const std::size_t k = i <= kEveryUpTo ? i : 1 + testsupport::RandomBelow(generator, count);
      for (const bool failsOn : {false, true}) {
        std::vector<std::string> variables = {"VIF_TEST_FAILS_AT=" + std::to_string(k)};
        if (failsOn) variables.emplace_back("VIF_TEST_FAILS_ON=1");
        SCOPED_TRACE(testing::Message() << "allocation " << k << (failsOn ? " and all after it fail" : " fails"));
        ExpectEndsWell(Run(variables, arguments), whole);
        if (HasFailure()) return;  // one is enough
        ++points;
      }
    }
    RecordProperty("failurePoints", std::to_string(points));
    RecordProperty("allocations", std::to_string(count));
  }

 private:
  testsupport::TempDir m_dir;
};

TEST_F(CommandMemoryTest, List) { ExpectSurvivesFailures({"list", Example("gan-charger-65w.txt")}); }

TEST_F(CommandMemoryTest, ListAsJson) {
  ExpectSurvivesFailures({"list", "--format=json", Example("active-cable.txt")});
}

TEST_F(CommandMemoryTest, Get) { ExpectSurvivesFailures({"get", Example("gan-charger-65w.txt"), "Src_PDO_.*"}); }

TEST_F(CommandMemoryTest, Show) { ExpectSurvivesFailures({"show", Example("gan-charger-65w.txt")}); }

TEST_F(CommandMemoryTest, Check) { ExpectSurvivesFailures({"check", Example("gan-charger-65w.txt")}); }

TEST_F(CommandMemoryTest, ListOfAnXmlFile) { ExpectSurvivesFailures({"list", Example("gan-charger-65w.xml")}); }

TEST_F(CommandMemoryTest, CheckOfAnXmlFile) { ExpectSurvivesFailures({"check", Example("gan-charger-65w.xml")}); }

TEST_F(CommandMemoryTest, FileThatDoesNotExist) { ExpectSurvivesFailures({"list", "no file of that name.txt"}); }

TEST_F(CommandMemoryTest, Help) { ExpectSurvivesFailures({"--help"}); }

TEST_F(CommandMemoryTest, WrongUsage) { ExpectSurvivesFailures({"unknown-command-with-a-long-name"}); }

}  // namespace
