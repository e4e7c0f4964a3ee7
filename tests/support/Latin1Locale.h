// A locale with letter case for bytes beyond ASCII.
#pragma once

#include <locale>

namespace testsupport {

/// Pairs the bytes 0xC0 to 0xDE with 0xE0 to 0xFE, as ISO 8859-1 does except for the two that are not letters there.
class Latin1Ctype : public std::ctype<char> {
 protected:
  char do_tolower(char c) const override {
    return IsBetween(c, 0xC0, 0xDE) ? static_cast<char>(c + 0x20) : std::ctype<char>::do_tolower(c);
  }
  char do_toupper(char c) const override {
    return IsBetween(c, 0xE0, 0xFE) ? static_cast<char>(c - 0x20) : std::ctype<char>::do_toupper(c);
  }
  const char* do_tolower(char* begin, const char* end) const override {
    for (; begin != end; ++begin) *begin = do_tolower(*begin);
    return end;
  }
  const char* do_toupper(char* begin, const char* end) const override {
    for (; begin != end; ++begin) *begin = do_toupper(*begin);
    return end;
  }

 private:
  static bool IsBetween(char c, unsigned char first, unsigned char last) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= first && byte <= last;
  }
};

/// The classic locale with that letter case.
inline std::locale Latin1Locale() { return {std::locale::classic(), new Latin1Ctype}; }

/// Replaces the global locale while it lives.
class CScopedGlobalLocale {
 public:
  explicit CScopedGlobalLocale(const std::locale& locale) : m_before(std::locale::global(locale)) {}
  CScopedGlobalLocale(const CScopedGlobalLocale&) = delete;
  CScopedGlobalLocale& operator=(const CScopedGlobalLocale&) = delete;
  ~CScopedGlobalLocale() { std::locale::global(m_before); }

 private:
  std::locale m_before;
};

}  // namespace testsupport
