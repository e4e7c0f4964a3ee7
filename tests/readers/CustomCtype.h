// Locales with their own character classification.
#pragma once

#include <cstddef>
#include <locale>

namespace testsupport {

/// A locale facet with its own character classification: the classic tables, to be changed at will.
class CustomCtype : public std::ctype<char> {
 public:
  struct Tables {
    Tables() {
      for (std::size_t i = 0; i < table_size; ++i) {
        classes[i] = classic_table()[i];
        lowerCase[i] = std::tolower(static_cast<char>(i), std::locale::classic());
      }
    }
    mask classes[table_size];
    char lowerCase[table_size];
  };

  /// Borrows the tables, which must outlive every locale with this facet.
  explicit CustomCtype(const Tables& tables) : std::ctype<char>(tables.classes), m_lowerCase(tables.lowerCase) {}

 protected:
  char do_tolower(char c) const override { return m_lowerCase[static_cast<unsigned char>(c)]; }
  const char* do_tolower(char* begin, const char* end) const override {
    for (; begin != end; ++begin) *begin = do_tolower(*begin);
    return end;
  }

 private:
  const char* m_lowerCase;
};

/// The classic locale with those tables in place of its own.
inline std::locale LocaleWith(const CustomCtype::Tables& tables) {
  return {std::locale::classic(), new CustomCtype(tables)};  // the locale owns its facets
}

}  // namespace testsupport
