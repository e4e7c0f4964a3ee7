// Makes the C library's calls on one file fail, do less than requested, or trigger a change to the file. What a disk, a
// network or another process does to a reader at any time happens here at a known one.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <limits>
#include <memory>

namespace testsupport {

/// A call on the file, before it is made.
struct FileCall {
  enum class Kind {
    Stat,    ///< by name
    Open,    ///< by name, for reading, as a descriptor or as a stream
    Status,  ///< of the open file
    Read,
  };

  Kind kind;
  std::size_t number;    ///< of its kind, from 1
  std::size_t position;  ///< how many bytes have been read since the file was opened
};

/// What happens to a call.
struct FileCallFate {
  int error = 0;                                               ///< it fails with this number; 0: it goes through
  std::size_t mostBytes = std::numeric_limits<size_t>::max();  ///< a read returns no more
};

/// Decides on each call. Calls that it makes itself are not intercepted.
using FileScript = std::function<FileCallFate(const FileCall&)>;

/// While it lives, the script decides on all calls of this process on one file. Only one object may live at a time, and
/// only one thread may make calls on the file.
class CFileCalls {
 public:
  /// \param file the name used by calls that take a name; whatever is opened under it is read under the script,
  ///   whatever becomes of the name meanwhile
  CFileCalls(const std::filesystem::path& file, FileScript script);
  CFileCalls(const CFileCalls&) = delete;
  CFileCalls& operator=(const CFileCalls&) = delete;
  ~CFileCalls();

  /// How many calls of that kind there were.
  std::size_t Count(FileCall::Kind kind) const;

  struct Watch;  ///< what the overriding functions know

 private:
  std::unique_ptr<Watch> m_watch;
};

}  // namespace testsupport
