// A regular file that exists only in memory.
#pragma once

#include <filesystem>
#include <string_view>

namespace fuzz {

/// Can be opened by its path while the object lives.
class CMemoryFile {
 public:
  CMemoryFile();
  CMemoryFile(const CMemoryFile&) = delete;
  CMemoryFile& operator=(const CMemoryFile&) = delete;
  ~CMemoryFile();

  const std::filesystem::path& Path() const { return m_path; }

  /// Replaces the content.
  void Write(std::string_view content) const;

 private:
  int m_descriptor;
  std::filesystem::path m_path;
};

}  // namespace fuzz
