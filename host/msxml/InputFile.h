// A file that is read.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace msxml {

/// A regular file, open for reading. Directories, pipes and devices, which may never end, are not opened.
class CInputFile {
 public:
  explicit CInputFile(const std::filesystem::path& path);
  CInputFile(const CInputFile&) = delete;
  CInputFile& operator=(const CInputFile&) = delete;
  ~CInputFile();

  bool IsOpen() const { return m_descriptor >= 0; }
  bool HasFailed() const { return m_failure != Failure::None; }

  /// Why it could not be opened or read to its end, as the end of a sentence; empty when neither happened.
  std::string Error() const;

  /// The number of the file's last change: another one means that it may have other content.
  struct Stamp {
    std::int64_t seconds = 0;
    std::int64_t nanoseconds = 0;
    std::int64_t size = 0;
    std::uint64_t inode = 0;

    friend bool operator==(const Stamp&, const Stamp&) = default;
  };
  const Stamp& GetStamp() const { return m_stamp; }

  /// Reads on, in the form of libxml2's read callback. It fills the buffer unless the file ends or cannot be read on,
  /// in however small pieces the system delivers it: libxml2 looks for the encoding in what it gets first. What has
  /// been read before a failure is delivered before the failure; behind that and behind the end nothing more is read.
  /// \param context the CInputFile, which must be open
  /// \return the number of bytes read, 0 at the end, -1 on failure
  static int Read(void* context, char* buffer, int length) noexcept;

 private:
  enum class Failure { None, NotOpened, NotRegular, NotRead };

  void Close();

  int m_descriptor;
  bool m_isAtEnd = false;
  Failure m_failure = Failure::None;
  int m_errorNumber = 0;
  Stamp m_stamp;
};

}  // namespace msxml
