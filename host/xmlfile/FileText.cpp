#include "xmlfile/FileText.h"

#include "BaseUtilities/Encode.h"
#include "BaseUtilities/StringConvert.h"
#include "xmlfile/InputFile.h"
#include "xmlfile/Limits.h"

#include <algorithm>
#include <cstddef>

namespace xmlfile {

namespace {

/// The first bytes of a file reveal the byte order of UTF-16.
enum class Form { Bytes, LittleEndian, BigEndian };

Form FormOf(std::string_view bytes) {
  const std::string_view begin = bytes.substr(0, 2);
  if (begin == "\xFF\xFE" || begin == std::string_view("<\0", 2)) return Form::LittleEndian;
  if (begin == "\xFE\xFF" || begin == std::string_view("\0<", 2)) return Form::BigEndian;
  return Form::Bytes;
}

/// Whether there is a NUL character at or after an offset.
bool HasNul(std::string_view bytes, std::size_t from) {
  if (FormOf(bytes) == Form::Bytes) return bytes.find('\0', from) != std::string_view::npos;
  for (std::size_t i = from - from % 2; i + 1 < bytes.size(); i += 2) {
    if (bytes[i] == '\0' && bytes[i + 1] == '\0') return true;
  }
  return false;
}

/// Reads to the end, or until shortly after the first NUL: content with a NUL is useless, and an endless file may
/// consist of nothing else.
/// \param expectedSize in bytes; 0 when unknown
/// \param read as `CInputFile::Read`
/// \return false when there is too much
template <typename Read>
bool ReadPieces(std::size_t expectedSize, const Read& read, std::string& bytes) {
  constexpr std::size_t least = std::size_t{1} << 16;
  constexpr std::size_t most = std::size_t{1} << 20;
  // One byte more, so that the first read shows that there is nothing left.
  const auto chunk = static_cast<int>(expectedSize != 0 ? std::min(expectedSize, most) + 1 : least);
  for (;;) {
    const std::size_t before = bytes.size();
    if (before > kLargestFile) return false;
    bytes.resize(before + static_cast<std::size_t>(chunk));
    const int count = read(bytes.data() + before, chunk);
    bytes.resize(before + static_cast<std::size_t>(std::max(count, 0)));
    if (count < chunk || HasNul(bytes, before)) return true;
  }
}

constexpr const char* kTooLarge = "is too large";

/// Reads a file.
/// \return the error as the end of a sentence; empty if there is none
std::string ReadBytes(const std::filesystem::path& path, std::string& bytes) {
  CInputFile file(path);
  if (!file.IsOpen()) return file.Error();
  const auto read = [&](char* buffer, int length) { return CInputFile::Read(&file, buffer, length); };
  const bool isRead = ReadPieces(file.ExpectedSize(), read, bytes);
  if (file.HasFailed()) return file.Error();
  return isRead ? "" : kTooLarge;
}

/// Reads bytes in memory in the pieces that a file is read in, so that as much is read after a NUL.
std::string ReadBytes(std::string_view content, std::string& bytes) {
  const std::size_t size = content.size();
  const auto read = [&](char* buffer, int length) {
    const std::size_t count = content.copy(buffer, static_cast<std::size_t>(length));
    content.remove_prefix(count);
    return static_cast<int>(count);
  };
  return ReadPieces(size, read, bytes) ? "" : kTooLarge;
}

constexpr std::string_view kBlanks = " \t\r\n";

/// The byte order mark in UTF-8.
constexpr std::string_view kMark = "\xEF\xBB\xBF";

/// The encoding in the XML declaration.
struct Declaration {
  std::string name;       // in upper case; empty when none is declared
  std::size_t begin = 0;  // of "encoding"
  std::size_t end = 0;    // after the closing quote
};

/// \param text without a byte order mark
Declaration FindEncoding(std::string_view text) {
  const std::string_view declaration = text.substr(0, std::min(text.find("?>"), text.size()));
  constexpr std::string_view opening = "<?xml";
  if (!declaration.starts_with(opening)) return {};
  // Other processing instructions may begin the same way.
  if (kBlanks.find(text.substr(opening.size(), 1)) == std::string_view::npos) return {};
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

/// \param name in upper case
bool IsUtf8(std::string_view name) { return name == "UTF-8" || name == "UTF8"; }

/// The encoding of the file if it is not supported; else empty.
std::string UnsupportedEncoding(std::string_view bytes, Form form, const std::string& declared) {
  // The beginning of an XML declaration in EBCDIC, which a parser may understand.
  if (bytes.starts_with("\x4C\x6F\xA7\x94")) return "EBCDIC";
  const bool isUtf16 = form != Form::Bytes;
  const bool hasMark = isUtf16 && (bytes[0] == '\xFF' || bytes[0] == '\xFE');
  if (hasMark && IsUtf8(declared)) return {};
  if (!declared.empty())
    return IsSupportedEncoding(declared) && IsUtf16(declared) == isUtf16 ? std::string() : declared;
  // UTF-16 without a byte order mark must be declared.
  return isUtf16 && !hasMark ? "UTF-16" : "";
}

/// \param content a path, or bytes in memory
template <typename Content>
std::optional<FileText> Decode(const Content& content, CProblems& problems) {
  FileText file;
  if (const std::string error = ReadBytes(content, file.bytes); !error.empty()) {
    problems.Add(0, 0, {}, "The file " + error + ".");
    return std::nullopt;
  }
  const Form form = FormOf(file.bytes);
  if (form != Form::Bytes) {
    file.decoded = zotext::Utf8OfUtf16(file.bytes, form == Form::BigEndian);
    if (file.decoded.starts_with(kMark)) file.decoded.erase(0, kMark.size());
    file.mark = file.bytes[0] == '<' || file.bytes[1] == '<' ? 0 : 2;
  } else if (file.bytes.starts_with(kMark)) {
    file.mark = kMark.size();
  }
  const Declaration declaration = FindEncoding(file.Text());
  if (const std::string name = UnsupportedEncoding(file.bytes, form, declaration.name); !name.empty()) {
    problems.Add(1, 0, {}, UnsupportedEncodingReason(name));
    return std::nullopt;
  }
  const bool isOdd = form != Form::Bytes && file.bytes.size() % 2 != 0;
  if (isOdd && !HasNul(file.bytes, 0)) {
    problems.Add(0, 0, {}, "The file ends within a character.");
    return std::nullopt;
  }
  file.isUtf8 = form != Form::Bytes || declaration.name.empty() || declaration.name.starts_with("UTF");
  if (form == Form::Bytes ? declaration.name == "UTF8" : IsUtf8(declaration.name)) {
    for (std::size_t i = declaration.begin; i < declaration.end; ++i) {
      file.bytes[file.ByteOffset(i) + (form == Form::BigEndian ? 1 : 0)] = ' ';
    }
  }
  return file;
}

}  // namespace

std::size_t FileText::ByteOffset(std::size_t offset) const {
  if (decoded.empty()) return mark + offset;
  const std::string_view before = Text().substr(0, offset);
  const auto isPair = [](char c) { return static_cast<unsigned char>(c) >= 0xF0; };
  const auto count = [&](auto isCounted) { return std::count_if(before.begin(), before.end(), isCounted); };
  return mark + 2 * static_cast<std::size_t>(count(zotext::BeginsCharacter) + count(isPair));
}

std::optional<FileText> ReadFileText(const std::filesystem::path& path, CProblems& problems) {
  return Decode(path, problems);
}

std::optional<FileText> ReadFileText(std::string_view content, CProblems& problems) {
  return Decode(content, problems);
}

}  // namespace xmlfile
