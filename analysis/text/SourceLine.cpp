#include <analysis/SourceLine.h>

#include <BaseUtilities/Encode.h>
#include <analysis/Text.h>

#include <algorithm>

namespace vifanalysis {

namespace {

// In characters.
constexpr std::size_t kMostBefore = 80;
constexpr std::size_t kMostAfter = 120;

std::string_view FindLine(std::string_view text, std::size_t line) {
  for (; line > 1; --line) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return {};
    text.remove_prefix(end + 1);
  }
  text = text.substr(0, text.find('\n'));
  if (text.ends_with('\r')) text.remove_suffix(1);
  return text;
}

std::size_t Characters(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), zotext::BeginsCharacter));
}

/// Where that many characters of the text end.
std::size_t EndOf(std::string_view text, std::size_t characters) {
  std::size_t end = 0;
  while (end < text.size() && (!zotext::BeginsCharacter(text[end]) || characters-- > 0)) ++end;
  return end;
}

std::string Shown(std::string text) {
  std::replace(text.begin(), text.end(), '\t', ' ');
  return Printable(text);
}

}  // namespace

SourceLine FindSourceLine(std::string_view content, std::size_t line, std::size_t column) {
  if (line == 0) return {};
  std::string decoded;
  const bool isBigEndian = content.starts_with("\xFE\xFF");
  if (isBigEndian || content.starts_with("\xFF\xFE")) {
    decoded = zotext::Utf8OfUtf16(content.substr(2), isBigEndian);
    content = decoded;
  } else if (content.starts_with("\xEF\xBB\xBF")) {
    content.remove_prefix(3);
  }
  const std::string text = ValidUtf8(FindLine(content, line));
  const std::size_t length = Characters(text);
  const std::size_t place = std::min(column > 0 ? column - 1 : 0, length);
  const bool isCutBefore = place > kMostBefore;
  const bool isCutAfter = length - place > kMostAfter;
  const std::size_t begin = isCutBefore ? EndOf(text, place - kMostBefore) : 0;
  const std::size_t middle = EndOf(text, place);
  const std::size_t end = isCutAfter ? EndOf(text, place + kMostAfter) : text.size();
  return {(isCutBefore ? "\u2026" : "") + Shown(text.substr(begin, middle - begin)),
          Shown(text.substr(middle, end - middle)) + (isCutAfter ? "\u2026" : "")};
}

}  // namespace vifanalysis
