#include "PrintedBySystem.h"

#include "BaseUtilities/StringConvert.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <regex>
#include <string_view>

namespace fuzz {

namespace {

using Kind = CFormatArgument::Kind;

constexpr int kMaxWidth = 1000;

struct Placeholder {
  bool isLeftAligned;
  bool isZeroFilled;
  int width;
  char conversion;

  bool IsOneOf(std::string_view conversions) const { return conversions.find(conversion) != std::string_view::npos; }
};

Placeholder ReadPlaceholder(const std::smatch& match) {
  const std::string flags = match[1];
  const std::string digits = match[2];
  int width = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), width);
  if (error == std::errc::result_out_of_range || width > kMaxWidth) width = kMaxWidth;
  return {flags.find('-') != std::string::npos, flags.find('0') != std::string::npos, width, *match[3].first};
}

/// Prints one placeholder with snprintf. `type` is the argument's conversion with its length.
template <typename Argument>
std::string Print(const Placeholder& placeholder, bool isZeroFilled, const char* type, Argument argument) {
  std::string format = "%";
  if (placeholder.isLeftAligned) format += '-';
  if (isZeroFilled) format += '0';
  format.append("*").append(type);
  std::string text(static_cast<std::size_t>(std::snprintf(nullptr, 0, format.c_str(), placeholder.width, argument)),
                   '\0');
  std::snprintf(text.data(), text.size() + 1, format.c_str(), placeholder.width, argument);
  return text;
}

std::string PrintUnsigned(const Placeholder& placeholder, std::uint64_t number) {
  const std::string type{'j', placeholder.IsOneOf("xXo") ? placeholder.conversion : 'u'};
  return Print(placeholder, placeholder.isZeroFilled, type.c_str(), static_cast<std::uintmax_t>(number));
}

/// Under an unsigned conversion, a signed number is printed in two's complement of its own size.
std::string PrintSigned(const Placeholder& placeholder, const CFormatArgument& argument) {
  const auto number = static_cast<std::intmax_t>(argument.Number());
  if (!placeholder.IsOneOf("uxXo")) return Print(placeholder, placeholder.isZeroFilled, "jd", number);
  switch (argument.Size()) {
    case 1: return PrintUnsigned(placeholder, static_cast<std::uint8_t>(number));
    case 2: return PrintUnsigned(placeholder, static_cast<std::uint16_t>(number));
    case 4: return PrintUnsigned(placeholder, static_cast<std::uint32_t>(number));
    default: return PrintUnsigned(placeholder, static_cast<std::uint64_t>(number));
  }
}

std::optional<std::string> PrintText(const Placeholder& placeholder, const std::string& text) {
  const bool isAscii = std::all_of(text.begin(), text.end(), [](char c) { return c > '\0'; });
  if (isAscii) return Print(placeholder, false, "s", text.c_str());
  if (placeholder.width == 0) return text;
  return std::nullopt;
}

std::optional<std::string> PrintCharacter(const Placeholder& placeholder, std::uint64_t code) {
  if (!placeholder.IsOneOf("csS")) return PrintUnsigned(placeholder, code);
  if (code == 0 || code >= 0x80) return std::nullopt;
  return Print(placeholder, false, "c", static_cast<int>(code));
}

std::optional<std::string> PrintArgument(const Placeholder& placeholder, const CFormatArgument& argument) {
  switch (argument.GetKind()) {
    case Kind::Signed: return PrintSigned(placeholder, argument);
    case Kind::Unsigned: return PrintUnsigned(placeholder, argument.Number());
    case Kind::Character: return PrintCharacter(placeholder, argument.Number());
    case Kind::Narrow: return PrintText(placeholder, std::string(argument.Narrow()));
    case Kind::Wide: return PrintText(placeholder, Utf16ToUtf8(argument.Wide()));
    default: return PrintText(placeholder, "(null)");
  }
}

}  // namespace

std::optional<std::string> PrintedBySystem(const std::string& format, const std::vector<CFormatArgument>& arguments) {
  static const std::regex expression("%(?:%|([-0]*)([0-9]*)[hlztjL]*([diuxXocsS]))");
  std::string printed;
  auto next = arguments.begin();
  auto from = format.begin();
  for (std::smatch match; std::regex_search(from, format.end(), match, expression); from = match[0].second) {
    printed += match.prefix();
    const bool isPercent = !match[3].matched;
    if (isPercent) {
      printed += '%';
    } else if (next == arguments.end()) {
      printed += match[0];
    } else {
      const auto text = PrintArgument(ReadPlaceholder(match), *next++);
      if (!text) return std::nullopt;
      printed += *text;
    }
  }
  return printed.append(from, format.end());
}

}  // namespace fuzz
