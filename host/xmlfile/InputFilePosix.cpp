#include "xmlfile/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <system_error>

namespace xmlfile {

namespace {

/// Non-blocking, because opening a pipe would wait for its other end; the flag has no effect on a regular file.
int Open(const std::filesystem::path& path) {
  for (;;) {
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor >= 0 || errno != EINTR) return descriptor;
  }
}

int Descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

}  // namespace

CInputFile::CInputFile(const std::filesystem::path& path) : m_handle(Open(path)) {
  struct stat status = {};
  if (!IsOpen() || fstat(Descriptor(m_handle), &status) != 0) {
    Fail(Failure::NotOpened);
  } else if (!S_ISREG(status.st_mode)) {
    Fail(Failure::NotRegular);
  } else {
    m_stamp = {status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size, status.st_ino};
    return;
  }
  Close();
}

CInputFile::~CInputFile() { Close(); }

void CInputFile::Close() {
  if (IsOpen()) close(Descriptor(m_handle));
  m_handle = kNoHandle;
}

void CInputFile::Fail(Failure failure) {
  m_failure = failure;
  m_errorNumber = static_cast<std::uint32_t>(errno);
}

std::string CInputFile::Error() const {
  const auto text = [&] { return std::generic_category().message(static_cast<int>(m_errorNumber)); };
  switch (m_failure) {
    case Failure::NotOpened: return "cannot be opened: " + text();
    case Failure::NotRegular: return "is not a regular file";
    case Failure::NotRead: return "cannot be read: " + text();
    default: return {};
  }
}

std::size_t CInputFile::ExpectedSize() const { return static_cast<std::size_t>(m_stamp.size); }

int CInputFile::Read(void* context, char* buffer, int length) noexcept {
  auto& file = *static_cast<CInputFile*>(context);
  int filled = 0;
  while (filled < length && !file.m_isAtEnd && !file.HasFailed()) {
    const ssize_t count = read(Descriptor(file.m_handle), buffer + filled, static_cast<std::size_t>(length - filled));
    if (count > 0) {
      filled += static_cast<int>(count);
    } else if (count == 0) {
      file.m_isAtEnd = true;
    } else if (errno != EINTR) {
      file.Fail(Failure::NotRead);
    }
  }
  return filled == 0 && file.HasFailed() ? -1 : filled;
}

}  // namespace xmlfile
