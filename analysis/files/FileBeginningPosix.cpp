#include "FileBeginning.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vifanalysis {

namespace {

/// An open file, closed at the end of its life.
class CFile {
 public:
  explicit CFile(const std::filesystem::path& path) : m_file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
  ~CFile() {
    if (m_file >= 0) close(m_file);
  }
  CFile(const CFile&) = delete;
  CFile& operator=(const CFile&) = delete;

  bool IsRegular() const {
    struct stat status = {};
    return m_file >= 0 && fstat(m_file, &status) == 0 && S_ISREG(status.st_mode);
  }

  ssize_t Read(char* buffer, std::size_t size) const { return read(m_file, buffer, size); }

 private:
  int m_file;
};

}  // namespace

std::string FileBeginning(const std::filesystem::path& path, std::size_t most) {
  const CFile file(path);
  if (!file.IsRegular()) return {};
  std::string text(most, '\0');
  std::size_t length = 0;
  while (length < most) {
    const ssize_t count = file.Read(text.data() + length, most - length);
    if (count <= 0) break;
    length += static_cast<std::size_t>(count);
  }
  text.resize(length);
  return text;
}

}  // namespace vifanalysis
