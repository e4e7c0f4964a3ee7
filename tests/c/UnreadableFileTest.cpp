// Files that the user may not read, through the C interface.
#include "Handles.h"
#include "support/OrdinaryUser.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>

namespace {

using namespace testsupport;

/// Expects a file that may not be read to be refused, both when it is loaded and when it is checked.
/// \return the messages
std::pair<std::string, std::string> Refuse(const std::string& name) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write(name, "PID: 1\n");
  std::filesystem::permissions(dir.Path(), std::filesystem::perms::all);
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const OrdinaryUser user;
  const FilePointer file = MakeFile();
  CError loading;
  EXPECT_EQ(vif_file_load(file.get(), path.string().c_str(), nullptr, loading.Receive()), VIF_ERROR_FILE);
  vif_findings* findings = nullptr;
  CError checking;
  EXPECT_EQ(vif_check_file(path.string().c_str(), nullptr, nullptr, &findings, checking.Receive()), VIF_ERROR_FILE);
  return {loading.Message(), checking.Message()};
}

TEST(CUnreadableFile, TextIsRefused) {
  const auto [loading, checking] = Refuse("a.txt");
  EXPECT_TRUE(loading.starts_with("Couldn't open Vendor Info File: ")) << loading;
  EXPECT_EQ(checking, loading);
}

TEST(CUnreadableFile, XmlIsRefusedWithTheReason) {
  const auto [loading, checking] = Refuse("a.xml");
  EXPECT_EQ(loading, "The file cannot be opened: Permission denied.");
  EXPECT_EQ(checking, loading);
}

}  // namespace
