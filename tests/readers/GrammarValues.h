// Compares and prints the line grammar's results.
#pragma once

#include "LineGrammar.h"

#include <ostream>
#include <string>
#include <string_view>
#include <tuple>

namespace testsupport {

/// The text with every byte that is not printable ASCII, and the backslash, as `\xNN`.
inline std::string Escaped(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string escaped;
  for (const char c : text) {
    if (c >= ' ' && c <= '~' && c != '\\') {
      escaped += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      escaped += {'\\', 'x', digits[byte / 16], digits[byte % 16]};
    }
  }
  return escaped;
}

}  // namespace testsupport

namespace vif {

inline bool operator==(const SplitLine& a, const SplitLine& b) {
  return std::tie(a.content, a.comment) == std::tie(b.content, b.comment);
}

inline void PrintTo(const SplitLine& split, std::ostream* out) {
  *out << '<' << testsupport::Escaped(split.content) << "> and <" << testsupport::Escaped(split.comment) << '>';
}

inline bool operator==(const Declaration& a, const Declaration& b) {
  return std::tie(a.isString, a.name, a.value) == std::tie(b.isString, b.name, b.value);
}

inline void PrintTo(const Declaration& declaration, std::ostream* out) {
  *out << (declaration.isString ? "string <" : "number <") << testsupport::Escaped(declaration.name) << "> <"
       << testsupport::Escaped(declaration.value) << '>';
}

}  // namespace vif
