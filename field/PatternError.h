// The errors that end a regular expression which asks too much.
#pragma once

#include <regex>

namespace vif {

/// A regular expression's error with a text that says what was wanting. The standard library's own for `error_stack`
/// blames memory, and code that has only `code()` to go by cannot set another.
class CPatternError : public std::regex_error {
 public:
  /// \param text a literal
  CPatternError(std::regex_constants::error_type code, const char* text) : std::regex_error(code), m_text(text) {}

  const char* what() const noexcept override { return m_text; }

 private:
  const char* m_text;
};

/// \throws CPatternError (`error_stack`)
[[noreturn]] void ThrowStackTooSmall();

/// \throws CPatternError (`error_complexity`)
[[noreturn]] void ThrowTooManySteps();

}  // namespace vif
