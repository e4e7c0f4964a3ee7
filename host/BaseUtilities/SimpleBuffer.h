// The host's scratch buffer, into which messages are formatted.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "BaseUtilities/SafeString.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

/// One argument of a format, with its type. Texts are borrowed: they must stay valid until the format call returns.
class CFormatArgument {
 public:
  /// The kind of an argument.
  enum class Kind {
    Signed,     ///< a signed number
    Unsigned,   ///< an unsigned number
    Character,  ///< a character, narrow or wide
    Narrow,     ///< a narrow text
    Wide,       ///< a wide text
    NullText,   ///< a null pointer to a text
  };

  /// A narrow text; may be null.
  CFormatArgument(const char* text) : m_kind(text != nullptr ? Kind::Narrow : Kind::NullText), m_narrow(Text(text)) {}

  /// A wide text; may be null.
  CFormatArgument(const wchar_t* text) : m_kind(text != nullptr ? Kind::Wide : Kind::NullText), m_wide(Text(text)) {}

  /// A null text.
  CFormatArgument(std::nullptr_t) : m_kind(Kind::NullText) {}

  /// A narrow text, with any NULs in it.
  CFormatArgument(const std::string& text) : m_kind(Kind::Narrow), m_narrow(text) {}

  /// A wide text, with any NULs in it.
  CFormatArgument(const std::wstring& text) : m_kind(Kind::Wide), m_wide(text) {}

  /// A narrow text.
  CFormatArgument(const CSafeString& text) : CFormatArgument(text.get()) {}

  /// A byte as a character.
  CFormatArgument(char character) : m_kind(Kind::Character), m_number(static_cast<unsigned char>(character)) {}

  /// A wide character.
  CFormatArgument(wchar_t character) : m_kind(Kind::Character), m_number(static_cast<uint64_t>(character)) {}

  /// A number of any integral type.
  template <std::integral Number>
  CFormatArgument(Number number)
      : m_kind(std::is_signed_v<Number> ? Kind::Signed : Kind::Unsigned),
        m_size(sizeof(Number)),
        m_number(static_cast<uint64_t>(number)) {}

  /// The number of an enumerator.
  template <typename Enum>
  requires std::is_enum_v<Enum> CFormatArgument(Enum value)
      : CFormatArgument(static_cast<std::underlying_type_t<Enum>>(value)) {}

  /// What it is.
  Kind GetKind() const { return m_kind; }

  /// The text of a narrow one; otherwise empty.
  std::string_view Narrow() const { return m_narrow; }

  /// The text of a wide one; otherwise empty.
  std::wstring_view Wide() const { return m_wide; }

  /// The number or character code. Signed numbers are sign-extended to 64 bits.
  uint64_t Number() const { return m_number; }

  /// The size of the number's own type, in bytes.
  size_t Size() const { return m_size; }

 private:
  static std::string_view Text(const char* text) { return text != nullptr ? text : std::string_view(); }
  static std::wstring_view Text(const wchar_t* text) { return text != nullptr ? text : std::wstring_view(); }

  Kind m_kind;
  size_t m_size = 0;
  uint64_t m_number = 0;
  std::string_view m_narrow;
  std::wstring_view m_wide;
};

/// A text that grows as needed, formatted in the manner of printf but with typed arguments: nothing is reinterpreted,
/// and nothing is read past its end.
///
/// Placeholders are `%[-][0][width][length]conversion` with the conversions `d i u x X o c s S`, and `%%`; the length
/// (`h l ll z t j L`) is accepted but ignored. The argument's own type decides what is printed:
/// - a text prints as it is, whatever the placeholder, wide text as UTF-8, and a null text as "(null)";
/// - a number prints in decimal, or as `x X o` ask; a negative number under `u x X o` prints in two's complement
///   of its own size, so that the 32-bit -2147467261 is 80004003 under `%08X`;
/// - a character prints as itself under `c s S` and as its code under the number conversions.
/// A placeholder without an argument, or of any other form, is printed literally. Widths count Unicode characters and
/// are limited to 1,000; `0` pads numbers only. A `%s` inside an argument is plain text.
///
/// Only one thread at a time may use a buffer. Throws only `std::bad_alloc`.
class ZO_API CSimpleBuffer {
 public:
  /// Replaces the content with the formatted text and returns it. A null format counts as empty.
  template <typename... Arguments>
  const char* Printf(const char* format, const Arguments&... arguments) {
    if constexpr (sizeof...(arguments) == 0) {
      return FormatNarrow(format, {});
    } else {
      const CFormatArgument list[] = {CFormatArgument(arguments)...};
      return FormatNarrow(format, list);
    }
  }

  /// The same with a wide format and result.
  template <typename... Arguments>
  const wchar_t* Printf(const wchar_t* format, const Arguments&... arguments) {
    if constexpr (sizeof...(arguments) == 0) {
      return FormatWide(format, {});
    } else {
      const CFormatArgument list[] = {CFormatArgument(arguments)...};
      return FormatWide(format, list);
    }
  }

  /// The last text formatted: UTF-8, NUL-terminated, never null, valid until the buffer is changed or destroyed.
  const char* get() const noexcept { return m_text.c_str(); }

  /// The last text formatted with a wide format: never null, valid until the buffer is changed or destroyed.
  const wchar_t* getWide() const noexcept { return m_wideText.c_str(); }

 private:
  const char* FormatNarrow(const char* format, std::span<const CFormatArgument> arguments);
  const wchar_t* FormatWide(const wchar_t* format, std::span<const CFormatArgument> arguments);

  std::string m_text;
  std::wstring m_wideText;
};
