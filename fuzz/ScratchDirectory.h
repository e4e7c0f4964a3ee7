// A directory for the files that a fuzzed command line names.
#pragma once

#include <filesystem>

namespace fuzz {

/// A new directory inside the one for temporary files, removed with the object.
class CScratchDirectory {
 public:
  CScratchDirectory();
  CScratchDirectory(const CScratchDirectory&) = delete;
  CScratchDirectory& operator=(const CScratchDirectory&) = delete;
  ~CScratchDirectory();

  /// A directory from which names without a slash, even "..", do not lead out of the scratch directory.
  std::filesystem::path Inner() const { return m_path / "inner"; }

 private:
  std::filesystem::path m_path;
};

/// Makes a directory the working directory while the object lives.
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
