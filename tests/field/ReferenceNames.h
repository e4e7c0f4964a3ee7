// Names for testing the field definitions, derived from the reference patterns.
#pragma once

#include "KnownFieldsReference.h"
#include "support/Random.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace reference {

/// Stands for the digits of an index in a spelling.
constexpr char kDigits = '#';

/// Every kind of index: none, zero, one digit, several, with leading zeros, the largest number, larger numbers.
constexpr std::string_view kIndexes[] = {"",
                                         "0",
                                         "7",
                                         "42",
                                         "007",
                                         "18446744073709551614",
                                         "18446744073709551615",
                                         "18446744073709551616",
                                         "000000000000000000000000000012",
                                         "123456789012345678901234567890"};

/// The spellings of a field: its pattern without anchors, with `kDigits` for each capture group. There is one, or two
/// for the pattern with an alternation.
inline std::vector<std::string> Spellings(const ReferenceField& field) {
  constexpr std::string_view group = "([0-9]*)";
  constexpr std::string_view alternation = "(?:";
  const std::wstring_view pattern = field.pattern;
  std::string text;
  for (const wchar_t c : pattern.substr(1, pattern.size() - 2)) text += static_cast<char>(c);
  if (text.starts_with(alternation)) {
    const size_t bar = text.find('|');
    return {text.substr(alternation.size(), bar - alternation.size()),
            text.substr(bar + 1, text.size() - 1 - (bar + 1))};
  }
  for (size_t at = text.find(group); at != std::string::npos; at = text.find(group)) {
    text.replace(at, group.size(), 1, kDigits);
  }
  return {text};
}

/// The name with these indexes, as far as the spelling has places for them.
inline std::string NameWith(std::string spelling, std::string_view first, std::string_view second) {
  for (const std::string_view index : {first, second}) {
    const size_t at = spelling.find(kDigits);
    if (at != std::string::npos) spelling.replace(at, 1, index);
  }
  return spelling;
}

/// The names of a field with every combination of indexes.
inline std::vector<std::string> NamesOf(const ReferenceField& field) {
  std::vector<std::string> names;
  for (const std::string& spelling : Spellings(field)) {
    for (const std::string_view first : kIndexes) {
      for (const std::string_view second : kIndexes) {
        std::string name = NameWith(spelling, first, second);
        if (names.empty() || names.back() != name) names.push_back(std::move(name));
      }
    }
  }
  return names;
}

/// A character to put into a changed name: often one that occurs in names, sometimes any byte.
inline char RandomCharacter(std::mt19937_64& generator) {
  constexpr std::string_view usual = "0123456789__ESPVDOabcdeorstxyz'# .:\t\n";
  const size_t choice = testsupport::RandomBelow(generator, usual.size() + 8);
  return choice < usual.size() ? usual[choice] : static_cast<char>(testsupport::RandomBelow(generator, 256));
}

inline bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

/// What can happen to one character of a name.
enum class Change { Replaced, Removed, Inserted, OtherCase };

constexpr Change kChanges[] = {Change::Replaced, Change::Removed, Change::Inserted, Change::OtherCase};

/// The name, which must not be empty, with one character changed. A change of letter case applies to the next letter
/// from a random position, if there is one.
inline std::string Changed(std::string name, Change change, std::mt19937_64& generator) {
  const size_t at = testsupport::RandomBelow(generator, name.size());
  switch (change) {
    case Change::Replaced: name[at] = RandomCharacter(generator); break;
    case Change::Removed: name.erase(at, 1); break;
    case Change::Inserted:
      name.insert(testsupport::RandomBelow(generator, name.size() + 1), 1, RandomCharacter(generator));
      break;
    case Change::OtherCase:
      const auto letter = std::find_if(name.begin() + static_cast<std::ptrdiff_t>(at), name.end(), IsLetter);
      if (letter != name.end()) *letter = static_cast<char>(*letter ^ 0x20);
      break;
  }
  return name;
}

inline std::string Changed(std::string name, std::mt19937_64& generator) {
  const Change change = kChanges[testsupport::RandomBelow(generator, std::size(kChanges))];
  return Changed(std::move(name), change, generator);
}

/// A name in printable form: bytes that are not printable ASCII in hexadecimal.
inline std::string Shown(std::string_view name) {
  std::string text = "\"";
  for (const char c : name) {
    if (c >= ' ' && c <= '~') {
      text += c;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      text += {'\\', 'x', "0123456789ABCDEF"[byte / 16], "0123456789ABCDEF"[byte % 16]};
    }
  }
  return text + '"';
}

}  // namespace reference
