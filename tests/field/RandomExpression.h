// Random regular expressions, and texts that some of them match.
#pragma once

#include "support/Random.h"

#include <cstddef>
#include <iterator>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <string_view>

namespace randomexpression {

constexpr std::string_view kQuantifiers[] = {"*", "+", "?", "*?", "+?", "{2}", "{1,2}"};

/// What else the patterns consist of: parts of expressions, some of them incomplete.
constexpr std::string_view kPieces[] = {"a",   "B",     "_",     "1",     "-",     "\xC9",        "\xE9",  "(",
                                        ")",   "(a|b)", ".",     "|",     "^",     "$",           "[",     "]",
                                        "{",   "}",     "[a-c]", "[^a",   "[^b]",  "[[:alpha:]]", "\\",    "\\d",
                                        "\\w", "\\b",   "\\x41", "(?:a)", "(?=a)", "(?!b)",       "(b)\\1"};

/// A few pieces in a row, often a valid expression, sometimes not. No quantifier directly follows another, because
/// three in a row can take seconds on the shortest text.
inline std::string Pattern(std::mt19937_64& generator) {
  std::string text;
  bool mayQuantify = true;
  for (size_t count = 1 + testsupport::RandomBelow(generator, 6); count > 0; --count) {
    const bool isQuantifier = mayQuantify && testsupport::RandomBelow(generator, 4) == 0;
    text += isQuantifier ? kQuantifiers[testsupport::RandomBelow(generator, std::size(kQuantifiers))]
                         : kPieces[testsupport::RandomBelow(generator, std::size(kPieces))];
    mayQuantify = !isQuantifier;
  }
  return text;
}

/// A text so short that no expression takes long on it.
inline std::string Subject(std::mt19937_64& generator) {
  constexpr std::string_view characters = "aAbBc_1\xC9\xE9-]}";
  std::string text(testsupport::RandomBelow(generator, 7), ' ');
  for (char& c : text) c = characters[testsupport::RandomBelow(generator, characters.size())];
  return text;
}

/// The compiled pattern; nothing if it is not a valid regular expression.
template <typename Char>
std::optional<std::basic_regex<Char>> Compiled(const std::basic_string<Char>& pattern,
                                               std::regex_constants::syntax_option_type options) {
  try {
    return std::basic_regex<Char>(pattern, options);
  } catch (const std::regex_error&) {
    return std::nullopt;
  }
}

}  // namespace randomexpression
