// An input file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace xmlfile {

/// A regular file, open for reading. Directories, pipes and devices, which may be endless, are not opened.
class CInputFile {
 public:
  explicit CInputFile(const std::filesystem::path& path);
  CInputFile(const CInputFile&) = delete;
  CInputFile& operator=(const CInputFile&) = delete;
  ~CInputFile();

  bool IsOpen() const { return m_handle != kNoHandle; }
  bool HasFailed() const { return m_failure != Failure::None; }

  /// Why it could not be opened or read to its end, as the end of a sentence; empty when there was no error.
  std::string Error() const;

  /// The number of bytes to read, according to the system; 0 when unknown.
  std::size_t ExpectedSize() const;

  /// Reads on. It fills the buffer unless the file ends or a read fails, however small the pieces that the system
  /// delivers. Bytes read before a failure are delivered first; after the failure, and after the end, it reads nothing
  /// more.
  /// \param context the CInputFile, which must be open
  /// \return the number of bytes read, 0 at the end, -1 on failure
  static int Read(void* context, char* buffer, int length) noexcept;

#ifndef _WIN32
  /// The number of the file's last change: if it differs, the content may differ too.
  struct Stamp {
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    std::int64_t size = 0;
    std::uint64_t inode = 0;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };
  const Stamp& GetStamp() const { return m_stamp; }
#endif

 private:
  enum class Failure { None, NotOpened, NotRegular, NotRead };

  static constexpr std::intptr_t kNoHandle = -1;

  void Fail(Failure failure);
  void Close();

  std::intptr_t m_handle;
  bool m_isAtEnd = false;
  Failure m_failure = Failure::None;
  std::uint32_t m_errorNumber = 0;
#ifndef _WIN32
  Stamp m_stamp;
#endif
};

}  // namespace xmlfile
