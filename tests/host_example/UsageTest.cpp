// The reference host's command line.
#include "ReferenceHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace {

using testing::StartsWith;
using testsupport::CReferenceHost;
using testsupport::kCouldNotRun;
using testsupport::kNothingFailed;

class Usage : public testing::Test {
 protected:
  /// Expects a command line to be refused before anything is done.
  void ExpectRefused(const std::vector<std::string>& arguments, const std::string& reason) const {
    const auto result = m_host.Run(arguments);
    EXPECT_EQ(result.status, kCouldNotRun);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.error, StartsWith("reference_host: " + reason + "\nusage: reference_host "));
    EXPECT_FALSE(std::filesystem::exists(m_host.LogFile()));
  }

  CReferenceHost m_host;
};

TEST_F(Usage, HelpIsAnAnswer) {
  const auto result = m_host.Run({"--help"});
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, StartsWith("usage: reference_host "));
  EXPECT_EQ(result.error, "");
  EXPECT_FALSE(std::filesystem::exists(m_host.LogFile()));
}

TEST_F(Usage, UnknownOptionIsRefused) { ExpectRefused({"--verbose"}, "'--verbose' is no option"); }

TEST_F(Usage, OptionWithoutItsFileIsRefused) { ExpectRefused({"--vif"}, "--vif needs a FILE"); }

TEST_F(Usage, OptionWithAnEmptyFileIsRefused) { ExpectRefused({"--library", ""}, "--library needs a FILE"); }

TEST_F(Usage, SecondDirectoryIsRefused) { ExpectRefused({"/", "/"}, "there can be only one DIR"); }

TEST_F(Usage, MissingDirectoryIsRefused) { ExpectRefused({"/missing"}, "there is no directory /missing"); }

TEST_F(Usage, DirectoryBesideAVifIsRefused) {
  ExpectRefused({"/", "--vif", "a.txt"}, "with --vif nobody is asked: give no directory");
}

TEST_F(Usage, RefusalEscapesControlCharacters) { ExpectRefused({"-\x1b[2J"}, "'-\\u001b[2J' is no option"); }

}  // namespace
