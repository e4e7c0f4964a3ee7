#include "Spelling.h"

#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>

namespace vifanalysis {

namespace {

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }

bool IsAlike(char a, char b) { return Lower(a) == Lower(b); }

bool IsAlike(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return IsAlike(x, y); });
}

/// The spelling with the written index numbers, if the names differ in nothing but letter case and underscores.
std::optional<std::string> ApplyIndexes(std::string_view written, std::string_view spelling) {
  std::string name;
  const auto skipUnderscore = [&] {
    const bool isThere = written.starts_with('_');
    if (isThere) written.remove_prefix(1);
    return isThere;
  };
  for (const char known : spelling) {
    if (known == kIndexMark) {
      if (written.size() > 1 && IsDigit(written[1])) skipUnderscore();
      for (; !written.empty() && IsDigit(written.front()); written.remove_prefix(1)) name += written.front();
      continue;
    }
    name += known;
    if (known == '_') {
      skipUnderscore();
      continue;
    }
    if (!written.empty() && !IsAlike(written.front(), known)) skipUnderscore();
    if (written.empty() || !IsAlike(written.front(), known)) return std::nullopt;
    written.remove_prefix(1);
  }
  skipUnderscore();
  if (!written.empty()) return std::nullopt;
  return name;
}

/// Cuts off the part before the first underscore, and the underscore with it.
std::string_view TakePart(std::string_view& name) {
  const std::string_view part = name.substr(0, name.find('_'));
  name.remove_prefix(std::min(part.size() + 1, name.size()));
  return part;
}

/// Cuts the digits off the end.
std::string_view TakeNumber(std::string_view& part) {
  const auto end = std::find_if_not(part.rbegin(), part.rend(), IsDigit);
  const auto length = static_cast<std::size_t>(end - part.rbegin());
  const std::string_view number = part.substr(part.size() - length);
  part.remove_suffix(length);
  return number;
}

/// Whether a part of a known name is a word, and not an abbreviation such as "PDOs" or "tDHPResponse".
bool IsWord(std::string_view part) {
  return part.size() > 2 && IsUpper(part.front()) &&
         std::all_of(part.begin() + 1, part.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

/// Whether that many typos, which must be few, can make one text of the other.
bool IsWithin(unsigned typos, std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty() && IsAlike(a.front(), b.front())) {
    a.remove_prefix(1);
    b.remove_prefix(1);
  }
  if (a.empty() || b.empty()) return a.size() + b.size() <= typos;
  if (typos == 0) return false;
  const bool isSwapped = a.size() > 1 && b.size() > 1 && IsAlike(a[0], b[1]) && IsAlike(a[1], b[0]);
  return IsWithin(typos - 1, a.substr(1), b) || IsWithin(typos - 1, a, b.substr(1)) ||
         IsWithin(typos - 1, a.substr(1), b.substr(1)) || (isSwapped && IsWithin(typos - 1, a.substr(2), b.substr(2)));
}

/// The number of typos that make a written part of a known one; nothing when it is another part.
std::optional<unsigned> CountTypos(std::string_view written, std::string_view known) {
  if (IsAlike(written, known)) return 0;
  if (!IsWord(known) || std::any_of(written.begin(), written.end(), IsDigit)) return std::nullopt;
  constexpr std::size_t longWord = 8;
  const unsigned most = known.size() < longWord ? 1 : 2;
  for (unsigned typos = 1; typos <= most; ++typos) {
    if (IsWithin(typos, written, known)) return typos;
  }
  return std::nullopt;
}

}  // namespace

std::optional<Respelling> Respell(std::string_view written, std::string_view spelling) {
  if (std::optional<std::string> name = ApplyIndexes(written, spelling)) return Respelling{0, *std::move(name)};
  constexpr std::size_t charactersForATypo = 8;
  const std::size_t most = 1 + written.size() / charactersForATypo;
  Respelling respelling = {0, {}};
  while (!written.empty() && !spelling.empty()) {
    std::string_view part = TakePart(written);
    std::string_view known = TakePart(spelling);
    std::string_view number;
    if (known.ends_with(kIndexMark)) {
      known.remove_suffix(1);
      number = TakeNumber(part);
    }
    const std::optional<unsigned> typos = CountTypos(part, known);
    if (!typos) return std::nullopt;
    respelling.typos += *typos;
    respelling.name.append(respelling.name.empty() ? "" : "_").append(known).append(number);
  }
  if (!written.empty() || !spelling.empty() || respelling.typos > most) return std::nullopt;
  return respelling;
}

}  // namespace vifanalysis
