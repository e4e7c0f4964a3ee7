// A directory for the files that a fuzzed command line names.
#pragma once

#include <filesystem>

namespace fuzz {

/// A new directory of its own in the one for temporary files. It goes with the object.
class CScratchDirectory {
 public:
  CScratchDirectory();
  CScratchDirectory(const CScratchDirectory&) = delete;
  CScratchDirectory& operator=(const CScratchDirectory&) = delete;
  ~CScratchDirectory();

  /// Where names without a slash, ".." included, lead to nothing outside the directory.
  std::filesystem::path Inner() const { return m_path / "inner"; }

 private:
  std::filesystem::path m_path;
};

/// Makes a directory the working directory as long as the object lives.
class CWorkingDirectory {
 public:
  explicit CWorkingDirectory(const std::filesystem::path& path);
  CWorkingDirectory(const CWorkingDirectory&) = delete;
  CWorkingDirectory& operator=(const CWorkingDirectory&) = delete;
  ~CWorkingDirectory();

 private:
  std::filesystem::path m_before;
};

}  // namespace fuzz
