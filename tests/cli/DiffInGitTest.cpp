// The documented configuration for git, in a real repository.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::Not;
using testsupport::ProgramResult;
using testsupport::TempDir;

/// The content of the only code block of the command's documentation in that language.
std::string DocumentedBlock(const std::string& language) {
  std::ifstream file(std::string(VIF_DOCS) + "/command.md");
  std::stringstream stream;
  stream << file.rdbuf();
  const std::string text = stream.str();
  const std::string fence = "\n```" + language + "\n";
  const std::size_t begin = text.find(fence);
  const std::size_t end = begin == std::string::npos ? begin : text.find("```", begin + fence.size());
  if (end == std::string::npos) {
    ADD_FAILURE() << "no block in " << language;
    return {};
  }
  return text.substr(begin + fence.size(), end - begin - fence.size());
}

std::string Xml(const std::string& vendor) {
  return "<vif:VIF xmlns:vif=\"http://usb.org/VendorInfoFile.xsd\"><vif:Vendor_Name>" + vendor +
         "</vif:Vendor_Name></vif:VIF>\n";
}

/// A repository with the documented configuration, and two VIFs that have changed since the last commit.
class DiffInGit : public testing::Test {
 protected:
  void SetUp() override {
    if (!std::filesystem::exists(kGit)) GTEST_SKIP() << "there is no " << kGit;
    Git({"init", "--quiet"});
    Git({"config", "user.name", "Test"});
    Git({"config", "user.email", "test@example.com"});
    std::ofstream(m_dir.Path() / ".git/config", std::ios::app) << DocumentedBlock("gitconfig");
    m_dir.Write(".gitattributes", DocumentedBlock("gitattributes"));
    m_dir.Write("charger.txt", "Src_PDO_Supply_Type2: 0 ; Fixed\nSrc_PDO_Voltage2: 180 ; 9 V\nPID_SOP: 100\n");
    m_dir.Write("charger.xml", Xml("Acme"));
    Git({"add", "."});
    Git({"commit", "--quiet", "-m", "First"});
    m_dir.Write("charger.txt", "; Reviewed.\n\nPID_SOP: 100\nSrc_PDO_Supply_Type2: 0 ; Fixed\nSrc_PDO_Voltage2: 240\n");
    m_dir.Write("charger.xml", Xml("Acme Ltd."));
  }

  /// Runs git in the repository, without the configuration of the user and the system, and with the command in the
  /// path.
  ProgramResult Git(std::vector<std::string> arguments) const {
    const char* path = std::getenv("PATH");
    const std::string command = std::filesystem::path(VIF_COMMAND).parent_path().string();
    const std::vector<std::string> program = {"/usr/bin/env",
                                              "GIT_CONFIG_GLOBAL=/dev/null",
                                              "GIT_CONFIG_NOSYSTEM=1",
                                              "GIT_PAGER=cat",
                                              "PATH=" + command + ":" + (path != nullptr ? path : ""),
                                              kGit};
    arguments.insert(arguments.begin(), program.begin(), program.end());
    ProgramResult result = testsupport::RunProgram(arguments, {.directory = m_dir.Path()});
    EXPECT_EQ(result.status, 0) << result.error;
    return result;
  }

 private:
  static constexpr const char* kGit = "/usr/bin/git";
  TempDir m_dir;
};

TEST_F(DiffInGit, TextconvComparesFields) {
  const std::string output = Git({"diff", "--color=always"}).output;
  EXPECT_THAT(output, HasSubstr("\x1b[31m-Src_PDO_Voltage,180,9 V,true,180,Component,1,SrcPdo,2,,\x1b[m"));
  EXPECT_THAT(output, HasSubstr("Src_PDO_Voltage,240,,true,240,Component,1,SrcPdo,2,,\x1b[m\r\n"));
  EXPECT_THAT(output, HasSubstr("-Vendor_Name,,Acme,false,,VIF,0,,,,"));
  EXPECT_THAT(output, HasSubstr("Vendor_Name,,Acme Ltd.,false,,VIF,0,,,,"));
  EXPECT_THAT(output, Not(HasSubstr("Reviewed")));
}

TEST_F(DiffInGit, DifftoolRunsVifDiff) {
  const std::string output = Git({"difftool"}).output;
  EXPECT_THAT(output, HasSubstr("  Source PDO 2: voltage 9 V \u2192 12 V (180 \u2192 240)\n"));
  EXPECT_THAT(output, HasSubstr("1 difference: 1 changed\n"));
  EXPECT_THAT(output, HasSubstr("  Vendor_Name \"Acme\" \u2192 \"Acme Ltd.\"\n"));
}

}  // namespace
