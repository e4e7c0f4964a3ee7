#include "msxml6/FileText.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml/Limits.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

namespace msxml6 {

namespace {

/// An open file; closed at the end.
class CFile {
 public:
  /// Others may go on reading, writing, renaming and deleting the file.
  explicit CFile(const std::filesystem::path& path)
      : m_handle(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                             nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  CFile(const CFile&) = delete;
  CFile& operator=(const CFile&) = delete;
  ~CFile() {
    if (IsOpen()) CloseHandle(m_handle);
  }

  bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }

  /// Whether it is a file on a disk, not a pipe or a device, which may never end.
  bool IsOnDisk() const { return GetFileType(m_handle) == FILE_TYPE_DISK; }

  /// Appends the next bytes.
  /// \return whether there were any; false at the end and on an error
  bool Read(std::string& bytes) {
    constexpr DWORD chunk = 1 << 20;
    const std::size_t before = bytes.size();
    bytes.resize(before + chunk);
    DWORD count = 0;
    const BOOL isRead = ReadFile(m_handle, bytes.data() + before, chunk, &count, nullptr);
    if (isRead == 0) m_error = GetLastError();
    bytes.resize(before + count);
    return isRead != 0 && count != 0;
  }

  /// What reading ended with.
  DWORD Error() const { return m_error; }

 private:
  HANDLE m_handle;
  DWORD m_error = ERROR_SUCCESS;
};

/// The system's words for an error.
std::string SystemErrorText(DWORD code) {
  wchar_t text[512];
  constexpr DWORD flags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
  const DWORD length = FormatMessageW(flags, nullptr, code, 0, text, static_cast<DWORD>(std::size(text)), nullptr);
  return length != 0 ? Utf16ToUtf8({text, length}) : "error " + std::to_string(code);
}

/// The system's words for an error, in the form in which other systems say it where that is possible.
std::string ErrorText(DWORD code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND: return "No such file or directory";
    case ERROR_ACCESS_DENIED: return "Permission denied";
    default: return SystemErrorText(code);
  }
}

bool IsDirectory(const std::filesystem::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// \return what is wrong, as the end of a sentence; empty when nothing is
std::string ReadBytes(const std::filesystem::path& path, std::string& bytes) {
  if (IsDirectory(path)) return "is not a regular file";
  CFile file(path);
  if (!file.IsOpen()) return "cannot be opened: " + ErrorText(GetLastError());
  if (!file.IsOnDisk()) return "is not a regular file";
  while (file.Read(bytes)) {
    if (bytes.size() > kLargestFile) return "is too large";
  }
  return file.Error() == ERROR_SUCCESS ? std::string() : "cannot be read: " + ErrorText(file.Error());
}

/// What a file begins with tells the order of the bytes of UTF-16.
enum class Form { Bytes, LittleEndian, BigEndian };

Form FormOf(std::string_view bytes) {
  const std::string_view begin = bytes.substr(0, 2);
  if (begin == "\xFF\xFE" || begin == std::string_view("<\0", 2)) return Form::LittleEndian;
  if (begin == "\xFE\xFF" || begin == std::string_view("\0<", 2)) return Form::BigEndian;
  return Form::Bytes;
}

/// \param bytes an even number of them
std::string Utf8OfUtf16(std::string_view bytes, bool isBigEndian) {
  std::wstring wide;
  wide.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    wide += static_cast<wchar_t>(isBigEndian ? first << 8 | second : second << 8 | first);
  }
  return Utf16ToUtf8(wide);
}

constexpr std::string_view kBlanks = " \t\r\n";

/// Where the XML declaration names the encoding.
struct Declaration {
  std::string name;       // in capitals; empty when there is none
  std::size_t begin = 0;  // of "encoding"
  std::size_t end = 0;    // behind the closing quote
};

/// Text behind a byte order mark.
std::string_view WithoutMark(std::string_view text) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return text.starts_with(mark) ? text.substr(mark.size()) : text;
}

Declaration FindEncoding(std::string_view text) {
  const std::size_t offset = text.size() - WithoutMark(text).size();
  const std::string_view declaration = text.substr(0, std::min(text.find("?>"), text.size()));
  constexpr std::string_view opening = "<?xml";
  if (!declaration.substr(offset).starts_with(opening)) return {};
  // Other instructions begin so, too.
  if (kBlanks.find(text.substr(offset + opening.size(), 1)) == std::string_view::npos) return {};
  constexpr std::string_view key = "encoding";
  const std::size_t begin = declaration.find(key);
  if (begin == std::string_view::npos) return {};
  const std::size_t equals = declaration.find_first_not_of(kBlanks, begin + key.size());
  if (equals == std::string_view::npos || declaration[equals] != '=') return {};
  const std::size_t quote = declaration.find_first_not_of(kBlanks, equals + 1);
  if (quote == std::string_view::npos) return {};
  const std::size_t end = declaration.find(declaration[quote], quote + 1);
  if (end == std::string_view::npos) return {};
  Declaration found{std::string(declaration.substr(quote + 1, end - quote - 1)), begin, end + 1};
  ToUpper(found.name);
  return found;
}

/// \param name in capitals
bool IsUtf8(std::string_view name) { return name == "UTF-8" || name == "UTF8"; }

std::ptrdiff_t Offset(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

/// Whether what the file declares fits what it begins with.
bool IsPlausible(const FileText& file, Form form, const std::string& name) {
  const bool isUtf16 = form != Form::Bytes;
  const bool hasMark = isUtf16 && (file.bytes[0] == '\xFF' || file.bytes[0] == '\xFE');
  if (hasMark && IsUtf8(name)) return true;
  if (!name.empty()) return msxml::IsSupportedEncoding(name) && msxml::IsUtf16(name) == isUtf16;
  // Without a mark, UTF-16 has to be declared.
  return !isUtf16 || hasMark;
}

/// Makes blanks of the declaration of the encoding in a file's bytes.
void BlankOut(const Declaration& declaration, Form form, FileText& file) {
  if (form == Form::Bytes) {
    std::fill(file.bytes.begin() + Offset(declaration.begin), file.bytes.begin() + Offset(declaration.end), ' ');
    return;
  }
  // Behind the mark, each ASCII character has two bytes. Others have no place there, and such a file is not
  // well-formed.
  const std::size_t mark = file.ascii.size() - WithoutMark(file.ascii).size();
  const std::string_view before = std::string_view(file.ascii).substr(mark, declaration.begin - mark);
  if (!std::all_of(before.begin(), before.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) return;
  for (std::size_t i = declaration.begin; i < declaration.end; ++i) {
    const std::size_t at = 2 + 2 * (i - mark);
    file.bytes[form == Form::BigEndian ? at + 1 : at] = ' ';
  }
}

}  // namespace

std::optional<FileText> ReadFileText(const std::filesystem::path& path, msxml::CProblems& problems) {
  FileText file;
  if (const std::string error = ReadBytes(path, file.bytes); !error.empty()) {
    problems.Add(0, 0, {}, "The file " + error + ".");
    return std::nullopt;
  }
  const Form form = FormOf(file.bytes);
  if (form != Form::Bytes && file.bytes.size() % 2 != 0) {
    problems.Add(0, 0, {}, "The file ends within a character.");
    return std::nullopt;
  }
  file.ascii = form == Form::Bytes ? file.bytes : Utf8OfUtf16(file.bytes, form == Form::BigEndian);
  const Declaration declaration = FindEncoding(file.ascii);
  if (!IsPlausible(file, form, declaration.name)) {
    problems.Add(1, 0, {}, msxml::UnsupportedEncodingReason(declaration.name.empty() ? "UTF-16" : declaration.name));
    return std::nullopt;
  }
  file.isUtf8 = form != Form::Bytes || declaration.name.empty() || declaration.name.starts_with("UTF");
  if (form == Form::Bytes ? declaration.name == "UTF8" : IsUtf8(declaration.name)) BlankOut(declaration, form, file);
  // The mark is no character of the text.
  file.ascii.erase(0, file.ascii.size() - WithoutMark(file.ascii).size());
  return file;
}

}  // namespace msxml6
