#include "msxml/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <system_error>

namespace msxml {

CInputFile::CInputFile(const std::filesystem::path& path) {
  // Opening a pipe would wait for its other end, hence without blocking; for a regular file that means nothing.
  m_descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  struct stat status = {};
  if (m_descriptor < 0 || fstat(m_descriptor, &status) != 0) {
    m_failure = Failure::NotOpened;
    m_errorNumber = errno;
  } else if (!S_ISREG(status.st_mode)) {
    m_failure = Failure::NotRegular;
    close(m_descriptor);
    m_descriptor = -1;
  }
  m_stamp = {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size, status.st_ino};
}

CInputFile::~CInputFile() {
  if (m_descriptor >= 0) close(m_descriptor);
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
  for (;;) {
    const ssize_t count = read(file.m_descriptor, buffer, static_cast<std::size_t>(length));
    if (count >= 0) return static_cast<int>(count);
    if (errno == EINTR) continue;
    file.m_failure = Failure::NotRead;
    file.m_errorNumber = errno;
    return -1;
  }
}

}  // namespace msxml
