// A directory for the files of one test.
#pragma once

#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace testsupport {

/// A new, empty directory, removed with all its contents on destruction.
class TempDir {
 public:
  TempDir() {
    std::random_device random;
    do {
      m_path = std::filesystem::temp_directory_path() / ("vif-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_path));
  }

  TempDir(const TempDir&) = delete;
  TempDir(TempDir&&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  TempDir& operator=(TempDir&&) = delete;

  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
  }

  const std::filesystem::path& Path() const { return m_path; }

  /// Writes a file of that name, byte for byte, and returns its path.
  std::filesystem::path Write(const std::filesystem::path& name, std::string_view content) const {
    std::filesystem::path path = m_path / name;
    std::ofstream file(path, std::ios::binary);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    return path;
  }

 private:
  std::filesystem::path m_path;
};

}  // namespace testsupport
