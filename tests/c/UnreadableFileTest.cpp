// Files that the user may not read, through the C interface.
#include "Handles.h"
#include "support/OrdinaryUser.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using namespace testsupport;

/// The statuses of loading and of checking a file that may not be read.
void ExpectRefused(const std::string& name) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write(name, "PID: 1\n");
  std::filesystem::permissions(dir.Path(), std::filesystem::perms::all);
  std::filesystem::permissions(path, std::filesystem::perms::none);
  {
    const OrdinaryUser user;
    const FilePointer file = MakeFile();
    EXPECT_EQ(vif_file_load(file.get(), path.string().c_str(), nullptr, nullptr), VIF_ERROR_FILE);
    vif_findings* findings = nullptr;
    EXPECT_EQ(vif_check_file(path.string().c_str(), nullptr, nullptr, &findings, nullptr), VIF_ERROR_FILE);
  }
}

TEST(CUnreadableFile, TextIsRefused) { ExpectRefused("a.txt"); }

TEST(CUnreadableFile, XmlIsRefused) { ExpectRefused("a.xml"); }

}  // namespace
