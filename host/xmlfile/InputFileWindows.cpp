#include "BaseUtilities/StringConvert.h"
#include "xmlfile/InputFile.h"

#include <windows.h>

#include <iterator>

namespace xmlfile {

namespace {

static_assert(sizeof(HANDLE) == sizeof(std::intptr_t));

HANDLE Handle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

/// Other processes may continue to read, write, rename and delete the file.
std::intptr_t Open(const std::filesystem::path& path) {
  return reinterpret_cast<std::intptr_t>(CreateFileW(path.c_str(), GENERIC_READ,
                                                     FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                                     OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool IsDirectory(const std::filesystem::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// The system's text for an error.
std::string SystemErrorText(DWORD code) {
  wchar_t text[512];
  constexpr DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  const DWORD length = FormatMessageW(flags, nullptr, code, 0, text, static_cast<DWORD>(std::size(text)), nullptr);
  return length != 0 ? Utf16ToUtf8({text, length}) : "error " + std::to_string(code);
}

/// The text for an error, worded as on other systems where possible.
std::string ErrorText(DWORD code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND: return "No such file or directory";
    case ERROR_ACCESS_DENIED: return "Permission denied";
    default: return SystemErrorText(code);
  }
}

}  // namespace

CInputFile::CInputFile(const std::filesystem::path& path) : m_handle(IsDirectory(path) ? kNoHandle : Open(path)) {
  if (!IsOpen()) {
    Fail(IsDirectory(path) ? Failure::NotRegular : Failure::NotOpened);
  } else if (GetFileType(Handle(m_handle)) != FILE_TYPE_DISK) {
    Fail(Failure::NotRegular);
    Close();
  }
}

CInputFile::~CInputFile() { Close(); }

void CInputFile::Close() {
  if (IsOpen()) CloseHandle(Handle(m_handle));
  m_handle = kNoHandle;
}

void CInputFile::Fail(Failure failure) {
  m_errorNumber = GetLastError();
  m_failure = failure;
}

std::string CInputFile::Error() const {
  switch (m_failure) {
    case Failure::NotOpened: return "cannot be opened: " + ErrorText(m_errorNumber);
    case Failure::NotRegular: return "is not a regular file";
    case Failure::NotRead: return "cannot be read: " + ErrorText(m_errorNumber);
    default: return {};
  }
}

std::size_t CInputFile::ExpectedSize() const {
  LARGE_INTEGER size = {};
  return GetFileSizeEx(Handle(m_handle), &size) != 0 ? static_cast<std::size_t>(size.QuadPart) : 0;
}

int CInputFile::Read(void* context, char* buffer, int length) noexcept {
  auto& file = *static_cast<CInputFile*>(context);
  int filled = 0;
  while (filled < length && !file.m_isAtEnd && !file.HasFailed()) {
    DWORD count = 0;
    const BOOL isRead =
        ReadFile(Handle(file.m_handle), buffer + filled, static_cast<DWORD>(length - filled), &count, nullptr);
    filled += static_cast<int>(count);
    if (isRead == 0) {
      file.Fail(Failure::NotRead);
    } else if (count == 0) {
      file.m_isAtEnd = true;
    }
  }
  return filled == 0 && file.HasFailed() ? -1 : filled;
}

}  // namespace xmlfile
