#include "LineGrammar.h"

#include <algorithm>
#include <cstddef>
#include <locale>

namespace vif {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kBlanksAndSemicolons = " \t\r\n;";

std::string_view TrimRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);  // npos + 1 is 0
}

/// Where the comment begins, or `npos`. The line is already trimmed.
size_t FindComment(std::string_view line) {
  const size_t semicolon = line.find(';');
  const size_t firstQuote = line.find('"');
  if (semicolon == std::string_view::npos || firstQuote == std::string_view::npos) return semicolon;
  const size_t afterQuotes = line.rfind('"') + 1;
  if (semicolon < firstQuote || semicolon > afterQuotes) return semicolon;
  // The semicolon counts as quoted, and the comment begins at the first other character after the quotes. So a
  // semicolon right after the closing quote stays in the content, which then matches no pattern. Existing files and
  // tools depend on this rule.
  return line.find_first_not_of(';', afterQuotes);
}

template <typename Predicate>
size_t CountLeading(std::string_view text, size_t from, Predicate predicate) {
  const auto begin = text.begin() + static_cast<std::ptrdiff_t>(from);
  return static_cast<size_t>(std::find_if_not(begin, text.end(), predicate) - begin);
}

}  // namespace

std::string_view TrimBlanks(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return TrimRight(line);
}

SplitLine SplitContentAndComment(std::string_view line) {
  line = TrimBlanks(line);
  if (line.empty() || line.front() == ';') return {};
  const size_t cut = FindComment(line);
  if (cut == std::string_view::npos) return {line, {}};
  std::string_view comment = line.substr(cut);
  comment.remove_prefix(std::min(comment.find_first_not_of(kBlanksAndSemicolons), comment.size()));
  return {TrimRight(line.substr(0, cut)), comment};
}

CLineGrammar::CLineGrammar() {
  const std::locale locale;
  const auto& ctype = std::use_facet<std::ctype<char>>(locale);
  // libc++'s `is` has no classes for characters beyond ASCII, whatever the locale's table says.
  const auto isOf = [&](size_t i, std::ctype_base::mask mask) { return (ctype.table()[i] & mask) != 0; };
  for (size_t i = 0; i < m_characters.size(); ++i) {
    const char c = static_cast<char>(i);
    const char lowerCase = ctype.tolower(c);
    const bool isNameMark = lowerCase == ctype.tolower('_') || lowerCase == ctype.tolower('\'');
    m_characters[i] = {isNameMark || isOf(i, std::ctype_base::alnum), isOf(i, std::ctype_base::space),
                       isOf(i, std::ctype_base::digit), isOf(i, std::ctype_base::xdigit), lowerCase};
  }
}

std::optional<Declaration> CLineGrammar::Parse(std::string_view content) const {
  content = content.substr(0, content.find('\0'));
  const bool isString = content.starts_with('$');
  const size_t mark = isString ? 1 : 0;
  const auto isName = [&](char c) { return Of(c).isName; };
  const auto isSpace = [&](char c) { return Of(c).isSpace; };

  const size_t nameLength = CountLeading(content, mark, isName);
  if (nameLength == 0) return std::nullopt;
  const std::string_view name = content.substr(0, mark + nameLength);

  const size_t colon = name.size() + CountLeading(content, name.size(), isSpace);
  if (colon == content.size() || !Same(content[colon], ':')) return std::nullopt;
  const std::string_view value = content.substr(colon + 1 + CountLeading(content, colon + 1, isSpace));

  if (!isString) return IsNumericValue(value) ? std::optional(Declaration{false, name, value}) : std::nullopt;
  if (!IsQuotedValue(value)) return std::nullopt;
  return Declaration{true, name, value.substr(1, value.size() - 2)};
}

bool CLineGrammar::EqualsWord(std::string_view text, std::string_view word) const {
  return std::equal(text.begin(), text.end(), word.begin(), word.end(), [&](char a, char b) { return Same(a, b); });
}

bool CLineGrammar::IsNumericValue(std::string_view text) const {
  if (text.empty()) return false;
  if (CountLeading(text, 0, [&](char c) { return Of(c).isDigit; }) == text.size()) return true;
  if (text.size() > 2 && EqualsWord(text.substr(0, 2), "0x")) {
    return CountLeading(text, 2, [&](char c) { return Of(c).isHexDigit; }) == text.size() - 2;
  }
  return EqualsWord(text, "YES") || EqualsWord(text, "NO");
}

bool CLineGrammar::IsQuotedValue(std::string_view text) const {
  if (text.size() < 2 || !Same(text.front(), '"') || !Same(text.back(), '"')) return false;
  const std::string_view inside = text.substr(1, text.size() - 2);
  return std::none_of(inside.begin(), inside.end(), [&](char c) { return Same(c, '\n') || Same(c, '\r'); });
}

}  // namespace vif
