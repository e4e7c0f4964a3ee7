#include "msxml/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <system_error>

namespace msxml {

namespace {

/// Opening a pipe would wait for its other end, hence without blocking; for a regular file that means nothing.
int Open(const std::filesystem::path& path) {
  for (;;) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor >= 0 || errno != EINTR) return descriptor;
  }
}

}  // namespace

CInputFile::CInputFile(const std::filesystem::path& path) : m_descriptor(Open(path)) {
  struct stat status = {};
  if (m_descriptor < 0 || fstat(m_descriptor, &status) != 0) {
    m_failure = Failure::NotOpened;
    m_errorNumber = errno;
  } else if (!S_ISREG(status.st_mode)) {
    m_failure = Failure::NotRegular;
  } else {
    m_stamp = {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size, status.st_ino};
    return;
  }
  Close();
}

CInputFile::~CInputFile() { Close(); }

void CInputFile::Close() {
  if (m_descriptor >= 0) close(m_descriptor);
  m_descriptor = -1;
}

std::string CInputFile::Error() const {
  switch (m_failure) {
    case Failure::NotOpened: return "cannot be opened: " + std::generic_category().message(m_errorNumber);
    case Failure::NotRegular: return "is not a regular file";
    case Failure::NotRead: return "cannot be read: " + std::generic_category().message(m_errorNumber);
    default: return {};
  }
}

int CInputFile::Read(void* context, char* buffer, int length) noexcept {
  auto& file = *static_cast<CInputFile*>(context);
  int filled = 0;
  while (filled < length && !file.m_isAtEnd && !file.HasFailed()) {
    const ssize_t count = read(file.m_descriptor, buffer + filled, static_cast<std::size_t>(length - filled));
    if (count > 0) {
      filled += static_cast<int>(count);
    } else if (count == 0) {
      file.m_isAtEnd = true;
    } else if (errno != EINTR) {
      file.m_failure = Failure::NotRead;
      file.m_errorNumber = errno;
    }
  }
  return filled == 0 && file.HasFailed() ? -1 : filled;
}

}  // namespace msxml
