// The host's owned narrow string.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

/// An owned, NUL-terminated narrow string.
///
/// It holds just what `get()` shows: text after an embedded NUL is dropped. A moved-from string is empty and may be
/// used again. Several threads may read a string at once; while one changes it, no other may use it.
class CSafeString {
 public:
  /// The empty string.
  CSafeString() noexcept = default;

  /// A copy of the text up to its NUL; null counts as the empty string. Throws only `std::bad_alloc`.
  CSafeString(const char* text) : m_text(text != nullptr ? text : "") {}

  /// A copy of the text up to its first NUL. Throws only `std::bad_alloc`.
  CSafeString(const std::string& text) : m_text(text, 0, text.find('\0')) {}

  /// Moves the text, up to its first NUL. Throws nothing.
  CSafeString(std::string&& text) noexcept : m_text(std::move(text)) {
    if (const std::size_t end = m_text.find('\0'); end != std::string::npos) m_text.erase(end);
  }

  CSafeString(const CSafeString&) = default;
  CSafeString& operator=(const CSafeString&) = default;

  /// Takes the other's text and leaves the other empty.
  CSafeString(CSafeString&& other) noexcept : m_text(std::move(other.m_text)) { other.m_text.clear(); }

  /// Takes the other's text and leaves the other empty.
  CSafeString& operator=(CSafeString&& other) noexcept {
    if (this != &other) {
      m_text = std::move(other.m_text);
      other.m_text.clear();
    }
    return *this;
  }

  ~CSafeString() = default;

  /// The text, never null; valid until the string is changed or destroyed.
  const char* get() const noexcept { return m_text.c_str(); }

 private:
  std::string m_text;
};
