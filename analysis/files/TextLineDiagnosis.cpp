#include "TextLineDiagnosis.h"

#include "Sentence.h"

#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace vifanalysis {

namespace {

constexpr std::string_view kSpaces = " \t\r\n\v\f";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789abcdefABCDEF";
constexpr std::string_view kNameCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_'";

std::string_view TrimLeft(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(kSpaces), text.size()));
}

std::string_view TrimRight(std::string_view text) { return text.substr(0, text.find_last_not_of(kSpaces) + 1); }

/// The number of such characters that the text begins with.
std::size_t CountLeading(std::string_view text, std::string_view characters) {
  return std::min(text.find_first_not_of(characters), text.size());
}

/// The first character of the text, all its bytes if it is UTF-8.
std::string_view FirstCharacter(std::string_view text) {
  std::size_t length = 1;
  while (length < std::min(text.size(), std::size_t{4}) && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80) {
    ++length;
  }
  return text.substr(0, length);
}

std::string DiagnoseName(std::string_view name) {
  if (name.empty() || name == "$") return "there is no name before the colon";
  name.remove_prefix(name.front() == '$' ? 1 : 0);
  const std::string_view wrong = name.substr(CountLeading(name, kNameCharacters));
  if (wrong.empty()) return {};
  if (wrong.front() == '$') return "'$' is allowed only at the start of a name";
  if (kSpaces.find(wrong.front()) != std::string_view::npos) return "the name contains a blank";
  return Quoted(FirstCharacter(wrong)) + " is not allowed in a name";
}

std::string SurplusText(std::string_view rest, std::string_view number) {
  return Quoted(rest) + " follows the number " + Quoted(number) + "; a comment begins with ';'";
}

std::string DiagnoseHexNumber(std::string_view value) {
  const std::string_view digits = value.substr(2);
  const std::size_t length = CountLeading(digits, kHexDigits);
  if (length == 0) return "no hexadecimal digit follows '0x'";
  return SurplusText(digits.substr(length), value.substr(0, 2 + length));
}

std::string DiagnoseDecimalNumber(std::string_view value) {
  const std::size_t length = CountLeading(value, kDigits);
  const std::string_view rest = value.substr(length);
  if (rest.starts_with('.') || rest.starts_with(',')) return "the number " + Quoted(value) + " has a decimal point";
  if (CountLeading(value, kHexDigits) == value.size()) {
    return "the hexadecimal number " + Quoted(value) + " does not begin with '0x'";
  }
  return SurplusText(rest, value.substr(0, length));
}

std::string DiagnoseNumericValue(std::string_view value) {
  if (value.empty()) return "there is no value after the colon";
  if (value.front() == '"') return "a text in double quotes needs a '$' before the name: $Name: \"value\"";
  if ((value.front() == '-' || value.front() == '+') && CountLeading(value.substr(1), kDigits) > 0) {
    return "the number " + Quoted(value) + " has a sign";
  }
  if (value.size() >= 2 && EqualInAnyCase(value.substr(0, 2), "0x")) return DiagnoseHexNumber(value);
  if (CountLeading(value, kDigits) > 0) return DiagnoseDecimalNumber(value);
  if (EqualInAnyCase(value, "true") || EqualInAnyCase(value, "false")) {
    return "a text file has YES or NO instead of " + Quoted(value);
  }
  for (const std::string_view word : {"yes", "no"}) {
    const std::string_view first = value.substr(0, word.size());
    if (value.size() > word.size() && EqualInAnyCase(first, word) &&
        kNameCharacters.find(value[word.size()]) == std::string_view::npos) {
      return Quoted(value.substr(word.size())) + " follows " + Quoted(first) + "; a comment begins with ';'";
    }
  }
  return Quoted(value) +
         " is neither a number (decimal, or hexadecimal with 0x) nor YES or NO; text values need $Name: \"value\"";
}

std::string DiagnoseQuotedValue(std::string_view value) {
  if (value.empty()) return "there is no value after the colon";
  if (value.front() != '"') {
    return "the value " + Quoted(value) + " of a name with '$' does not begin with a double quote";
  }
  const std::size_t closing = value.rfind('"');
  if (closing == 0) return "the closing double quote is missing";
  const std::string_view rest = value.substr(closing + 1);
  if (rest.starts_with(';')) {
    return "a blank is missing between the closing double quote and the ';'";
  }
  if (!rest.empty()) return Quoted(rest) + " follows the closing double quote";
  return "there is a line break inside the double quotes";
}

std::string DiagnoseText(std::string_view content) {
  const std::size_t colon = content.find(':');
  if (colon == std::string_view::npos) {
    const bool hasEqualsSign = content.find('=') != std::string_view::npos;
    return "there is no colon; a declaration is written \"Name: value\"" +
           std::string(hasEqualsSign ? ", without an equals sign" : "");
  }
  const std::string_view name = TrimRight(content.substr(0, colon));
  std::string reason = DiagnoseName(name);
  if (!reason.empty()) return reason;
  const std::string_view value = TrimLeft(content.substr(colon + 1));
  return name.front() == '$' ? DiagnoseQuotedValue(value) : DiagnoseNumericValue(value);
}

}  // namespace

std::string DiagnoseLine(std::string_view content) {
  if (content.starts_with(kByteOrderMark)) return "there is a byte order mark before the name";
  const std::size_t nul = content.find('\0');
  if (nul == std::string_view::npos) return DiagnoseText(content);
  return "the line ends at its NUL character, and " + DiagnoseText(content.substr(0, nul));
}

}  // namespace vifanalysis
