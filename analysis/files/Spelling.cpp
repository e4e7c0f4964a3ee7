#include "Spelling.h"

#include "vocabulary/Alignment.h"
#include "vocabulary/SpellingMatch.h"

#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>

namespace vifanalysis {

namespace {

bool IsUpper(char c) { return c >= 'A' && c <= 'Z'; }

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
    if (!written.empty() && ToLowerAscii(written.front()) != ToLowerAscii(known)) skipUnderscore();
    if (written.empty() || ToLowerAscii(written.front()) != ToLowerAscii(known)) return std::nullopt;
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

/// The number of typos that make a written part of a known one; nothing when it is another part.
std::optional<unsigned> CountTypos(std::string_view written, std::string_view known) {
  if (EqualInAnyCase(written, known)) return 0;
  if (!IsWord(known) || std::any_of(written.begin(), written.end(), IsDigit)) return std::nullopt;
  constexpr std::size_t longWord = 8;
  const std::size_t most = known.size() < longWord ? 1 : 2;
  if (written.size() > known.size() + most || known.size() > written.size() + most) return std::nullopt;
  const std::size_t typos = CAlignment(written, known).Distance();
  return typos <= most ? std::optional(static_cast<unsigned>(typos)) : std::nullopt;
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
