// Plain characters that names begin with, without regard to letter case.
#pragma once

#include <array>
#include <cstdint>
#include <locale>
#include <string_view>

namespace vif {

/// The characters that mean more than themselves in a regular expression.
constexpr std::string_view kSpecialCharacters = "^$\\.*+?()[]{}|";

/// Whether a pattern stands for nothing but its own characters.
constexpr bool IsPlainPattern(std::string_view pattern) {
  return pattern.find_first_of(kSpecialCharacters) == std::string_view::npos;
}

/// Compares names with one pattern, character by character, as `std::ctype<char>::tolower` has their letter case. That
/// is a virtual call, so it is asked once for a character, which halves the time of names that often share their
/// beginning with the pattern. It is asked only for those that come, because the 256 calls of a full
/// table would be a good part of a query over the few hundred fields that a file usually has.
///
/// Not for use by several threads at once.
class CPlainPattern {
 public:
  /// \param pattern without NUL; both are borrowed, so they must outlive the object
  CPlainPattern(std::string_view pattern, const std::ctype<char>& ctype) : m_pattern(pattern), m_ctype(&ctype) {
    m_lower.fill(kNotAsked);
    m_lower[0] = kNul;
    for (const char c : pattern) Lower(c);
  }

  /// What follows the pattern in a name that begins with it; null for any other name.
  const char* Behind(const char* name) {
    for (const char c : m_pattern) {
      if (!AreSame(*name++, c)) return nullptr;
    }
    return name;
  }

 private:
  static constexpr std::int16_t kNotAsked = -1;
  static constexpr std::int16_t kNul = 256;  // no other character's lower case, so NUL is the same as NUL only

  static unsigned char Position(char c) { return static_cast<unsigned char>(c); }

  /// All characters of the pattern have been asked for.
  bool AreSame(char inName, char inPattern) {
    const std::int16_t expected = m_lower[Position(inPattern)];
    const std::int16_t lower = m_lower[Position(inName)];
    return lower == expected || (lower == kNotAsked && Lower(inName) == expected);
  }

  std::int16_t Lower(char c) {
    std::int16_t& lower = m_lower[Position(c)];
    if (lower == kNotAsked) lower = Position(m_ctype->tolower(c));
    return lower;
  }

  std::string_view m_pattern;
  const std::ctype<char>* m_ctype;
  std::array<std::int16_t, 256> m_lower;
};

}  // namespace vif
