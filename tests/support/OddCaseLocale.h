// A locale that takes characters for the same that no language does.
#pragma once

#include <locale>

namespace testsupport {

/// Makes "1" the lower case of "2", "a" that of the byte 0x80, and NUL that of "q". Converts single characters only:
/// whole ranges stay as they are.
class COddCtype : public std::ctype<char> {
 protected:
  char do_tolower(char c) const override {
    switch (c) {
      case '2': return '1';
      case '\x80': return 'a';
      case 'q': return '\0';
      default: return std::ctype<char>::do_tolower(c);
    }
  }
  const char* do_tolower(char*, const char* end) const override { return end; }
};

inline std::locale OddCaseLocale() { return {std::locale::classic(), new COddCtype}; }

}  // namespace testsupport
