#include "BaseUtilities/SimpleBuffer.h"

#include "BaseUtilities/Encode.h"
#include "BaseUtilities/StringConvert.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace {

constexpr size_t kMaxWidth = 1000;

struct Placeholder {
  bool leftAligned = false;
  bool zeroFilled = false;
  size_t width = 0;
  char conversion = 0;
  size_t length = 0;  // of the placeholder in the format
};

bool IsOneOf(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

/// Reads the placeholder at the start of the text, which begins with '%'; nothing if that is not a placeholder.
std::optional<Placeholder> ReadPlaceholder(std::string_view text) {
  Placeholder found;
  size_t i = 1;
  for (; i < text.size() && IsOneOf(text[i], "-0"); ++i) {
    (text[i] == '-' ? found.leftAligned : found.zeroFilled) = true;
  }
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    found.width = std::min(kMaxWidth, found.width * 10 + static_cast<size_t>(text[i] - '0'));
  }
  while (i < text.size() && IsOneOf(text[i], "hlztjL")) ++i;
  if (i >= text.size() || !IsOneOf(text[i], "diuxXocsS")) return std::nullopt;
  found.conversion = text[i];
  found.length = i + 1;
  return found;
}

std::string NumberText(const CFormatArgument& argument, char conversion) {
  const bool isSigned = argument.GetKind() == CFormatArgument::Kind::Signed;
  char digits[std::numeric_limits<uint64_t>::digits + 1];
  const auto write = [&](auto number, int base) {
    return std::string(digits, std::to_chars(digits, std::end(digits), number, base).ptr);
  };
  if (isSigned && !IsOneOf(conversion, "uxXo")) return write(static_cast<int64_t>(argument.Number()), 10);

  uint64_t number = argument.Number();
  if (isSigned && argument.Size() < sizeof(uint64_t)) number &= (uint64_t{1} << (argument.Size() * 8)) - 1;
  std::string text = write(number, conversion == 'o' ? 8 : IsOneOf(conversion, "xX") ? 16 : 10);
  if (conversion == 'X') ToUpper(text);
  return text;
}

/// Whether the argument prints as a number under that conversion.
bool PrintsAsNumber(const CFormatArgument& argument, char conversion) {
  switch (argument.GetKind()) {
    case CFormatArgument::Kind::Signed:
    case CFormatArgument::Kind::Unsigned: return true;
    case CFormatArgument::Kind::Character: return !IsOneOf(conversion, "csS");
    default: return false;
  }
}

std::string CharacterText(const CFormatArgument& argument, char conversion) {
  if (PrintsAsNumber(argument, conversion)) return NumberText(argument, conversion);
  const auto character = static_cast<wchar_t>(argument.Number());
  return Utf16ToUtf8(std::wstring_view(&character, 1));
}

std::string ArgumentText(const CFormatArgument& argument, char conversion) {
  switch (argument.GetKind()) {
    case CFormatArgument::Kind::Narrow: return std::string(argument.Narrow());
    case CFormatArgument::Kind::Wide: return Utf16ToUtf8(argument.Wide());
    case CFormatArgument::Kind::NullText: return "(null)";
    case CFormatArgument::Kind::Character: return CharacterText(argument, conversion);
    default: return NumberText(argument, conversion);
  }
}

size_t CharacterCount(std::string_view utf8) {
  return static_cast<size_t>(std::count_if(utf8.begin(), utf8.end(), zotext::BeginsCharacter));
}

void AppendPadded(std::string& out, const std::string& text, const Placeholder& placeholder, bool isNumber) {
  const size_t count = CharacterCount(text);
  const size_t padding = placeholder.width > count ? placeholder.width - count : 0;
  if (placeholder.leftAligned) {
    out += text;
    out.append(padding, ' ');
  } else if (placeholder.zeroFilled && isNumber) {
    const size_t signLength = text[0] == '-' ? 1 : 0;
    out.append(text, 0, signLength);
    out.append(padding, '0');
    out.append(text, signLength);
  } else {
    out.append(padding, ' ');
    out += text;
  }
}

std::string FormatText(std::string_view format, std::span<const CFormatArgument> arguments) {
  std::string out;
  size_t used = 0;
  while (!format.empty()) {
    const size_t plain = std::min(format.find('%'), format.size());
    out += format.substr(0, plain);
    format.remove_prefix(plain);
    if (format.empty()) break;

    if (format.starts_with("%%")) {
      out += '%';
      format.remove_prefix(2);
      continue;
    }
    const std::optional<Placeholder> placeholder = ReadPlaceholder(format);
    if (!placeholder || used == arguments.size()) {
      out += '%';
      format.remove_prefix(1);
      continue;
    }
    const CFormatArgument& argument = arguments[used++];
    AppendPadded(out, ArgumentText(argument, placeholder->conversion), *placeholder,
                 PrintsAsNumber(argument, placeholder->conversion));
    format.remove_prefix(placeholder->length);
  }
  return out;
}

}  // namespace

const char* CSimpleBuffer::FormatNarrow(const char* format, std::span<const CFormatArgument> arguments) {
  // The text is built separately, so an argument may be this buffer's own content.
  m_text = FormatText(format != nullptr ? format : "", arguments);
  return m_text.c_str();
}

const wchar_t* CSimpleBuffer::FormatWide(const wchar_t* format, std::span<const CFormatArgument> arguments) {
  m_wideText = Utf8ToUtf16(FormatText(Utf16ToUtf8(format != nullptr ? format : L""), arguments));
  return m_wideText.c_str();
}
