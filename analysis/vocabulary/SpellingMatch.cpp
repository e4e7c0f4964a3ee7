#include "SpellingMatch.h"

#include <analysis/Text.h>

#include <cstddef>

namespace vifanalysis {

std::uint32_t HashOfName(std::string_view name) {
  // FNV-1a. Digits are left out, because the name may have them at the marks.
  std::uint32_t hash = 2166136261U;
  for (const char c : name) {
    if (!IsDigit(c) && c != kIndexMark) hash = (hash ^ static_cast<unsigned char>(ToLowerAscii(c))) * 16777619U;
  }
  return hash;
}

SpellingFit FitSpelling(std::string_view name, std::string_view spelling, std::array<std::string_view, 2>& digits) {
  SpellingFit fit = SpellingFit::Exact;
  std::size_t mark = 0;
  std::size_t at = 0;
  for (const char expected : spelling) {
    if (expected == kIndexMark) {
      const std::size_t begin = at;
      while (at < name.size() && IsDigit(name[at])) ++at;
      digits[mark++] = name.substr(begin, at - begin);
      continue;
    }
    if (at == name.size() || ToLowerAscii(name[at]) != ToLowerAscii(expected)) return SpellingFit::No;
    if (name[at] != expected) fit = SpellingFit::InOtherCase;
    ++at;
  }
  return at == name.size() ? fit : SpellingFit::No;
}

std::string WithDigits(std::string_view spelling, const std::array<std::string_view, 2>& digits) {
  std::string name;
  std::size_t mark = 0;
  for (const char c : spelling) {
    if (c == kIndexMark) {
      name += digits[mark++];
    } else {
      name += c;
    }
  }
  return name;
}

}  // namespace vifanalysis
