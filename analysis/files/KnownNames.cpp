#include "KnownNames.h"

#include <analysis/Text.h>

#include <BaseUtilities/StringConvert.h>

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <map>
#include <regex>
#include <vector>

namespace vifanalysis {

namespace {

using NameTable = std::map<std::string, const VifFieldDef*, std::less<>>;

/// Names longer than this are none of the format's, with indexes or without.
constexpr std::size_t kLongestName = 100;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string WithoutDigits(std::string_view name) {
  std::string rest;
  std::copy_if(name.begin(), name.end(), std::back_inserter(rest), [](char c) { return !IsDigit(c); });
  return rest;
}

const NameTable& CanonicalNames() {
  static const NameTable table = [] {
    NameTable names;
    for (const VifFieldDef& definition : VifFieldDefs::GetVifFieldDefs()) {
      names.emplace(Utf16ToUtf8(definition.name), &definition);
    }
    return names;
  }();
  return table;
}

/// The definitions by what a written name has in common with them whatever its indexes: all but the digits.
const std::multimap<std::string, const VifFieldDef*, std::less<>>& NamesWithoutDigits() {
  static const std::multimap<std::string, const VifFieldDef*, std::less<>> table = [] {
    std::multimap<std::string, const VifFieldDef*, std::less<>> names;
    for (const auto& [name, definition] : CanonicalNames()) names.emplace(WithoutDigits(name), definition);
    return names;
  }();
  return table;
}

// What it takes to make one name of another.
constexpr unsigned kEdit = 8;    // a character more, less or other
constexpr unsigned kSlight = 1;  // another letter case, or a digit too much, which is often an index

unsigned CostOfLeavingOut(char c) { return IsDigit(c) ? kSlight : kEdit; }

unsigned CostOfChanging(char from, char to) {
  if (from == to) return 0;
  return Lower(from) == Lower(to) ? kSlight : kEdit;
}

/// The edit distance of two names by the costs above; anything above the limit when it is above the limit.
unsigned Distance(std::string_view written, std::string_view known, unsigned limit, std::vector<unsigned>& row) {
  row.resize(known.size() + 1);
  for (std::size_t j = 0; j <= known.size(); ++j) row[j] = static_cast<unsigned>(j) * kEdit;
  for (const char c : written) {
    unsigned diagonal = row[0];
    row[0] += CostOfLeavingOut(c);
    unsigned least = row[0];
    for (std::size_t j = 0; j < known.size(); ++j) {
      const unsigned changed = diagonal + CostOfChanging(c, known[j]);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, diagonal + CostOfLeavingOut(c), row[j] + kEdit});
      least = std::min(least, row[j + 1]);
    }
    if (least > limit) return least;
  }
  return row[known.size()];
}

/// Which letters and marks a name has, a bit each. A bit that only one of two names has costs an edit, which rules out
/// most names without a look at their order.
std::uint32_t Letters(std::string_view name) {
  std::uint32_t letters = 0;
  for (const char c : name) {
    const char lower = Lower(c);
    if (lower >= 'a' && lower <= 'z') {
      letters |= 1U << static_cast<unsigned>(lower - 'a');
    } else if (!IsDigit(c)) {
      letters |= 1U << 26U;
    }
  }
  return letters;
}

unsigned LeastEdits(std::uint32_t written, std::uint32_t known) {
  return static_cast<unsigned>(std::max(std::popcount(written & ~known), std::popcount(known & ~written)));
}

struct Candidate {
  std::string_view name;
  std::uint32_t letters;
};

const std::vector<Candidate>& Candidates() {
  static const std::vector<Candidate> candidates = [] {
    std::vector<Candidate> all;
    for (const auto& [name, definition] : CanonicalNames()) all.push_back({name, Letters(name)});
    return all;
  }();
  return candidates;
}

}  // namespace

const VifFieldDef* FindDefinition(std::string_view canonicalName) {
  const auto found = CanonicalNames().find(canonicalName);
  return found != CanonicalNames().end() ? found->second : nullptr;
}

const VifFieldDef* FindDefinitionOfWritten(std::string_view writtenName) {
  if (writtenName.size() > kLongestName) return nullptr;
  const std::wstring wide = Utf8ToUtf16(writtenName);
  const auto [begin, end] = NamesWithoutDigits().equal_range(WithoutDigits(writtenName));
  const auto found =
      std::find_if(begin, end, [&](const auto& entry) { return std::regex_match(wide, entry.second->pattern); });
  return found != end ? found->second : nullptr;
}

std::optional<std::string> NearestName(std::string_view name) {
  const std::string mark = name.starts_with('$') ? "$" : "";
  const std::string_view written = name.substr(mark.size());
  if (written.size() > kLongestName) return std::nullopt;
  const std::uint32_t letters = Letters(written);
  unsigned limit = kEdit * (1 + static_cast<unsigned>(written.size()) / 8);  // an edit more for every eight characters
  std::string_view nearest;
  std::vector<unsigned> row;
  for (const Candidate& candidate : Candidates()) {
    if (LeastEdits(letters, candidate.letters) * kEdit > limit) continue;
    const unsigned distance = Distance(written, candidate.name, limit, row);
    if (distance > limit || (distance == limit && !nearest.empty())) continue;
    limit = distance;
    nearest = candidate.name;
  }
  if (nearest.empty()) return std::nullopt;
  return mark + std::string(nearest);
}

std::string PlaceText(const VifFieldDef& definition) {
  std::string text;
  for (const EVifLocation location : definition.locations) {
    if (location == eVifLocUnset) continue;
    if (!text.empty()) text += " \u00B7 ";
    text += GetVifLocInfo(location).name;
  }
  return text;
}

}  // namespace vifanalysis
