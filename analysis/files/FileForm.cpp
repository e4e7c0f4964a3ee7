#include "CheckedFile.h"
#include "FileBeginning.h"

#include <analysis/FileForm.h>
#include <analysis/Files.h>
#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>

namespace vifanalysis {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleEndianMark = "\xFF\xFE";
constexpr std::string_view kBigEndianMark = "\xFE\xFF";

constexpr std::string_view kNameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_'";

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

void TrimLeft(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size())); }

bool Skip(std::string_view mark, std::string_view& text) {
  const bool isThere = text.starts_with(mark);
  if (isThere) text.remove_prefix(mark.size());
  return isThere;
}

/// Every other byte of UTF-16, which holds its ASCII characters; nothing when the text is not UTF-16.
std::optional<std::string> AsciiOfUtf16(std::string_view text) {
  bool isBigEndian = Skip(kBigEndianMark, text);
  const bool isMarked = isBigEndian || Skip(kLittleEndianMark, text);
  if (!isMarked) {
    isBigEndian = text.starts_with('\0');
    if (text.size() < 2 || (text[0] == '\0') == (text[1] == '\0')) return std::nullopt;
  }
  std::string ascii;
  for (std::size_t i = isBigEndian ? 1 : 0; i < text.size(); i += 2) ascii += text[i];
  return ascii;
}

bool BeginsLikeXml(std::string_view text) {
  TrimLeft(text);
  if (text.size() < 2 || text[0] != '<') return false;
  return IsLetter(text[1]) || text[1] == '_' || text[1] == '?' || text[1] == '!';
}

bool BeginsLikeText(std::string_view text) {
  TrimLeft(text);
  if (text.starts_with(';')) return true;
  Skip("$", text);
  const std::size_t length = std::min(text.find_first_not_of(kNameCharacters), text.size());
  text.remove_prefix(length);
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  return length > 0 && text.starts_with(':');
}

}  // namespace

FileForm FindForm(std::string_view beginning) {
  if (const std::optional<std::string> ascii = AsciiOfUtf16(beginning)) {
    return BeginsLikeXml(*ascii) ? FileForm::Xml : FileForm::Unknown;
  }
  Skip(kUtf8Mark, beginning);
  if (BeginsLikeXml(beginning)) return FileForm::Xml;
  return BeginsLikeText(beginning) ? FileForm::Text : FileForm::Unknown;
}

std::optional<std::string> AdviceOnExtension(const CheckedFile& file) {
  constexpr std::size_t enoughBytes = 4096;
  const std::filesystem::path& path = file.name;
  const FileForm form =
      file.content ? FindForm(file.content->substr(0, enoughBytes)) : FindForm(FileBeginning(path, enoughBytes));
  if (form == FileForm::Text && HasExtension(path, ".xml")) {
    return "this is a text VIF, not XML; the name of a text VIF ends in .txt";
  }
  if (form == FileForm::Xml && HasExtension(path, ".txt")) {
    return "this is XML, not a text VIF; the name of an XML VIF ends in .xml";
  }
  return std::nullopt;
}

std::optional<std::string> AdviceOnExtension(const std::filesystem::path& path) {
  return AdviceOnExtension(CheckedFile{path});
}

}  // namespace vifanalysis
