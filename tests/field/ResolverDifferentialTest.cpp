// Compares the resolver, which finds the built-in definitions with plain code, with a slow second opinion that tries
// the reference patterns one after the other.

#include "FieldResolver.h"

#include "ReferenceNames.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

using Numbers = std::vector<size_t>;

constexpr std::uint32_t kComponent = 3;
constexpr std::uint64_t kNoNumber = 0xFFFFFFFFFFFFFFFF;

/// Groups of the file whose number is 0, comes from the first number in the name, and from the second.
constexpr int kUnnumbered[] = {1, 2, 3};
constexpr int kFirstNumber[] = {4, 7, 8, 9, 11};
constexpr int kSecondNumber[] = {5, 10, 12};

template <size_t Size>
bool IsIn(int location, const int (&locations)[Size]) {
  return std::find(std::begin(locations), std::end(locations), location) != std::end(locations);
}

/// Reads the number in the captured digits; there is none without digits or beyond 64 bits.
std::uint64_t NumberOf(std::wstring digits) {
  if (digits.empty()) return kNoNumber;
  digits.erase(0, std::min(digits.find_first_not_of(L'0'), digits.size()));
  constexpr std::wstring_view largest = L"18446744073709551615";
  if (digits.size() > largest.size() || (digits.size() == largest.size() && digits > largest)) return kNoNumber;
  std::uint64_t number = 0;
  for (const wchar_t digit : digits) number = number * 10 + static_cast<std::uint64_t>(digit - L'0');
  return number;
}

std::string Narrow(std::wstring_view ascii) {
  std::string text;
  for (const wchar_t c : ascii) text += static_cast<char>(c);
  return text;
}

/// The second opinion.
class CReferenceResolver {
 public:
  CReferenceResolver() {
    for (const ReferenceField& field : kReferenceFields) {
      m_patterns.emplace_back(field.pattern);
      const std::string spelling = reference::Spellings(field)[0];
      m_byPrefix[spelling.substr(0, std::min(kPrefix, spelling.find(reference::kDigits)))].push_back(m_patterns.size() -
                                                                                                     1);
    }
  }

  /// Resolves the name by the definitions that share its first letters: all that can fit it.
  vif::ResolvedName ResolveByPrefix(std::string_view name) const {
    Numbers candidates;
    for (size_t length = 1; length <= kPrefix; ++length) {
      const auto found = m_byPrefix.find(std::string(name.substr(0, length)));
      if (found != m_byPrefix.end() && name.size() >= length) {
        candidates.insert(candidates.end(), found->second.begin(), found->second.end());
      }
    }
    std::sort(candidates.begin(), candidates.end());
    return Resolve(name, candidates);
  }

  /// Resolves the name by all definitions.
  vif::ResolvedName ResolveByAll(std::string_view name) const {
    Numbers all;
    for (size_t i = 0; i < m_patterns.size(); ++i) all.push_back(i);
    return Resolve(name, all);
  }

 private:
  static constexpr size_t kPrefix = 6;

  vif::ResolvedName Resolve(std::string_view name, const Numbers& candidates) const {
    vif::ResolvedName resolved{std::string(name), {}, false};
    resolved.slots.fill({eVifLocUnset, kNoNumber});
    // Bytes beyond ASCII turn into something that is no ASCII either, and what it is makes no difference.
    std::wstring wideName;
    for (const char c : name) wideName += static_cast<unsigned char>(c) < 0x80 ? static_cast<wchar_t>(c) : L'\uFFFD';
    for (const size_t candidate : candidates) {
      std::wsmatch match;
      if (std::regex_match(wideName, match, m_patterns[candidate])) {
        Fill(resolved, kReferenceFields[candidate], match);
        break;
      }
    }
    return resolved;
  }

  static void Fill(vif::ResolvedName& resolved, const ReferenceField& field, const std::wsmatch& match) {
    resolved.isKnown = true;
    resolved.name = Narrow(field.name);
    size_t slot = 0;
    for (const int location : field.locations) {
      if (location == 0) continue;
      std::uint64_t number = kNoNumber;
      if (IsIn(location, kUnnumbered)) number = 0;
      if (location == 6) number = kComponent;
      if (IsIn(location, kFirstNumber)) number = NumberOf(match.str(1));
      if (IsIn(location, kSecondNumber)) number = NumberOf(match.str(2));
      resolved.slots[slot++] = {static_cast<EVifLocation>(location), number};
    }
  }

  std::vector<std::wregex> m_patterns;
  std::unordered_map<std::string, Numbers> m_byPrefix;
};

const CReferenceResolver& Reference() {
  static const CReferenceResolver reference;
  return reference;
}

bool IsSame(const vif::ResolvedName& a, const vif::ResolvedName& b) {
  return a.isKnown == b.isKnown && a.name == b.name && a.slots == b.slots;
}

std::string Shown(const vif::ResolvedName& resolved) {
  std::string text = (resolved.isKnown ? "known as " : "unknown as ") + reference::Shown(resolved.name);
  for (const auto& [location, number] : resolved.slots) {
    text += " (" + std::to_string(static_cast<int>(location)) + ", " + std::to_string(number) + ")";
  }
  return text;
}

/// Resolves names both ways and counts them.
class CComparison {
 public:
  /// Whether both opinions on the name are the same.
  testing::AssertionResult Compare(std::string_view name) {
    m_resolver.Resolve(name, m_actual);
    const bool withAll = ++m_count % 128 == 0;
    const vif::ResolvedName expected = withAll ? Reference().ResolveByAll(name) : Reference().ResolveByPrefix(name);
    if (m_actual.isKnown) ++m_knownCount;
    if (IsSame(m_actual, expected)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << reference::Shown(name) << " is " << Shown(m_actual) << " instead of "
                                       << Shown(expected);
  }

  size_t Count() const { return m_count; }
  size_t KnownCount() const { return m_knownCount; }

 private:
  vif::CFieldResolver m_resolver{nullptr, kComponent};
  vif::ResolvedName m_actual;
  size_t m_count = 0;
  size_t m_knownCount = 0;
};

TEST(ResolverDifferential, AgreesOnEveryFieldWithEveryIndex) {
  CComparison comparison;
  for (const ReferenceField& field : kReferenceFields) {
    for (const std::string& name : reference::NamesOf(field)) ASSERT_TRUE(comparison.Compare(name));
  }
  EXPECT_EQ(comparison.KnownCount(), comparison.Count());
  EXPECT_GT(comparison.Count(), 1500U);
}

TEST(ResolverDifferential, AgreesOnEveryFieldWithEveryCharacterRemovedDoubledOrInOtherCase) {
  CComparison comparison;
  for (const ReferenceField& field : kReferenceFields) {
    for (const std::string& spelling : reference::Spellings(field)) {
      const std::string name = reference::NameWith(spelling, "1", "20");
      for (size_t at = 0; at < name.size(); ++at) {
        std::string changed = name;
        changed.erase(at, 1);
        ASSERT_TRUE(comparison.Compare(changed));
        changed = name;
        changed.insert(at, 1, name[at]);
        ASSERT_TRUE(comparison.Compare(changed));
        changed = name;
        if (reference::IsLetter(name[at])) changed[at] = static_cast<char>(name[at] ^ 0x20);
        ASSERT_TRUE(comparison.Compare(changed));
      }
    }
  }
  EXPECT_GT(comparison.Count(), 15'000U);
}

TEST(ResolverDifferential, AgreesOnFieldsWithOneRandomChange) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  CComparison comparison;
  for (const ReferenceField& field : kReferenceFields) {
    const std::vector<std::string> names = reference::NamesOf(field);
    // A field with two indexes has a hundred names, which are enough with fewer changes each.
    const int repetitions = names.size() > std::size(reference::kIndexes) ? 15 : 60;
    for (const std::string& name : names) {
      for (const reference::Change change : reference::kChanges) {
        for (int i = 0; i < repetitions; ++i)
          ASSERT_TRUE(comparison.Compare(reference::Changed(name, change, generator)));
      }
    }
  }
  EXPECT_GT(comparison.Count(), 200'000U);
  EXPECT_GT(comparison.KnownCount(), 10'000U);
  EXPECT_LT(comparison.KnownCount(), comparison.Count() / 2);
}

/// Everything that stands between underscores and index digits in the names of the fields.
std::vector<std::string> Fragments() {
  std::vector<std::string> fragments;
  for (const ReferenceField& field : kReferenceFields) {
    for (const std::string& spelling : reference::Spellings(field)) {
      for (size_t begin = 0; begin <= spelling.size();) {
        const size_t end = std::min(spelling.find_first_of("_#", begin), spelling.size());
        fragments.push_back(spelling.substr(begin, end - begin));
        begin = end + 1;
      }
    }
  }
  return fragments;
}

TEST(ResolverDifferential, AgreesOnFragmentsOfFieldsPutTogether) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  const std::vector<std::string> fragments = Fragments();
  constexpr std::string_view joints[] = {"_", "_", "_", "_", "", "1", "12_", "__", "#"};
  CComparison comparison;
  for (int i = 0; i < 50'000; ++i) {
    std::string name;
    for (size_t count = 1 + testsupport::RandomBelow(generator, 5); count > 0; --count) {
      name += fragments[testsupport::RandomBelow(generator, fragments.size())];
      name += joints[testsupport::RandomBelow(generator, std::size(joints))];
    }
    if (name.ends_with('_')) name.pop_back();
    ASSERT_TRUE(comparison.Compare(name));
  }
}

TEST(ResolverDifferential, AgreesOnTheBeginningOfOneFieldAndTheEndOfAnother) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  const auto randomSpelling = [&] {
    return reference::Spellings(kReferenceFields[testsupport::RandomBelow(generator, std::size(kReferenceFields))])[0];
  };
  CComparison comparison;
  for (int i = 0; i < 50'000; ++i) {
    const std::string first = randomSpelling();
    const std::string second = randomSpelling();
    const std::string spelling = first.substr(0, testsupport::RandomBelow(generator, first.size() + 1)) +
                                 second.substr(testsupport::RandomBelow(generator, second.size() + 1));
    ASSERT_TRUE(comparison.Compare(reference::NameWith(spelling, "1", "20")));
  }
}

TEST(ResolverDifferential, AgreesOnRandomBytes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  CComparison comparison;
  for (int i = 0; i < 20'000; ++i) {
    std::string name(testsupport::RandomBelow(generator, 30), ' ');
    for (char& c : name) c = reference::RandomCharacter(generator);
    ASSERT_TRUE(comparison.Compare(name));
  }
}

/// A definition of a random field, its pattern a copy of the built-in one or compiled once more, and the same compiled
/// once more in any case.
struct DefinitionPair {
  VifFieldDef maybeCopied;
  VifFieldDef recompiled;
};

DefinitionPair RandomDefinition(std::mt19937_64& generator, const std::vector<size_t>& fields) {
  static const std::vector<VifFieldDef> recompiled = [] {
    std::vector<VifFieldDef> table = VifFieldDefs::GetVifFieldDefs();
    for (size_t i = 0; i < table.size(); ++i) table[i].pattern = kReferenceFields[i].pattern;
    return table;
  }();
  constexpr const wchar_t* names[] = {L"Other", nullptr, L"Src_PDO_Voltage"};
  const size_t field = fields[testsupport::RandomBelow(generator, fields.size())];
  DefinitionPair pair = {VifFieldDefs::GetVifFieldDefs()[field], recompiled[field]};
  if (testsupport::RandomBelow(generator, 3) == 0) pair.maybeCopied.pattern = pair.recompiled.pattern;
  if (testsupport::RandomBelow(generator, 3) == 0) {
    pair.maybeCopied.name = names[testsupport::RandomBelow(generator, std::size(names))];
  }
  if (testsupport::RandomBelow(generator, 3) == 0) {
    for (EVifLocation& location : pair.maybeCopied.locations) {
      location = static_cast<EVifLocation>(testsupport::RandomBelow(generator, 13));
    }
  }
  if (testsupport::RandomBelow(generator, 8) == 0) {
    pair.maybeCopied.pattern = L"S.*([0-9])([0-9])?.*";
    pair.recompiled.pattern = L"S.*([0-9])([0-9])?.*";
  }
  pair.recompiled.name = pair.maybeCopied.name;
  pair.recompiled.locations = pair.maybeCopied.locations;
  return pair;
}

TEST(ResolverDifferential, CopiesOfBuiltInDefinitionsDoWhatTheirPatternsSay) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  size_t known = 0;
  for (int i = 0; i < 300; ++i) {
    std::vector<size_t> fields;  // a few, so that some are there more than once
    while (fields.size() < 12) fields.push_back(testsupport::RandomBelow(generator, std::size(kReferenceFields)));
    std::vector<VifFieldDef> copied;
    std::vector<VifFieldDef> recompiled;
    for (size_t count = testsupport::RandomBelow(generator, 25); count > 0; --count) {
      const DefinitionPair pair = RandomDefinition(generator, fields);
      copied.push_back(pair.maybeCopied);
      recompiled.push_back(pair.recompiled);
    }
    const vif::CFieldResolver byCopies(&copied, kComponent);
    const vif::CFieldResolver byPatterns(&recompiled, kComponent);
    vif::ResolvedName actual;
    vif::ResolvedName expected;
    for (int j = 0; j < 60; ++j) {
      const std::vector<std::string> names =
          reference::NamesOf(kReferenceFields[fields[testsupport::RandomBelow(generator, fields.size())]]);
      const std::string& name = names[testsupport::RandomBelow(generator, names.size())];
      byCopies.Resolve(name, actual);
      byPatterns.Resolve(name, expected);
      ASSERT_TRUE(IsSame(actual, expected)) << name << " is " << Shown(actual) << " instead of " << Shown(expected);
      ASSERT_EQ(byCopies.Knows(name), actual.isKnown);
      known += actual.isKnown ? 1U : 0U;
    }
  }
  EXPECT_GT(known, 5000U);
}

}  // namespace
