// Queries by plain names compared with `CVIFField::Match` and with `std::regex`, over generated names and in several
// locales. The lists are long, because queries search those in a way of their own.
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/Latin1Locale.h"
#include "support/OddCaseLocale.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <locale>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testsupport::CScopedGlobalLocale;
using testsupport::RandomBelow;

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr Slots kAnywhere = {kUnused, kUnused, kUnused};
constexpr std::size_t kManyFields = 3000;

/// Generates names that are hard to tell apart.
class CGenerator {
 public:
  /// Parts of names, often the beginning or the end of another, in any letter case and with any bytes.
  std::string Name() {
    constexpr std::string_view parts[] = {"",     "Src_PDO_", "src_pdo_", "Voltage", "_",        "a",    "A",
                                          "aa",   "1",        "2",        "12",      "\xC9",     "\xE9", "\x80",
                                          "q",    "@",        "`",        "[",       "_1234567", "{",    "Ger\xC3\xA4t",
                                          "\x0F", "/"};
    std::string name;
    for (std::size_t count = RandomBelow(m_random, 5); count > 0; --count) {
      name += parts[RandomBelow(m_random, std::size(parts))];
    }
    if (RandomBelow(m_random, 20) == 0) name += static_cast<char>(1 + RandomBelow(m_random, 255));
    return name;
  }

  std::vector<CVIFField> Fields(std::size_t count) {
    std::vector<CVIFField> fields;
    while (fields.size() < count) {
      const VifIndex component = {eVifLocComponent, RandomBelow(m_random, 3)};
      fields.emplace_back(true, Name(), std::to_string(fields.size()), component, kUnused, kUnused);
    }
    return fields;
  }

  /// The name of one of the fields, often in other letter case, or any other name.
  std::string Pattern(const std::vector<CVIFField>& fields) {
    std::string pattern = RandomBelow(m_random, 5) == 0 ? Name() : fields[RandomBelow(m_random, fields.size())].Name();
    for (char& c : pattern) {
      if (RandomBelow(m_random, 3) == 0) c = std::toupper(c, std::locale());
      if (RandomBelow(m_random, 3) == 0) c = std::tolower(c, std::locale());
    }
    std::erase_if(pattern,
                  [](char c) { return c == '\0' || std::string_view("[{").find(c) != std::string_view::npos; });
    return pattern;
  }

  Slots Query() {
    return {RandomBelow(m_random, 2) == 0 ? kUnused : VifIndex{eVifLocComponent, RandomBelow(m_random, 3)}, kUnused,
            kUnused};
  }

 private:
  std::mt19937_64 m_random = testsupport::SeededGenerator();
};

/// The fields that pass, according to `Match`, which must agree with `std::regex`.
std::vector<CVIFField> Matching(const std::vector<CVIFField>& fields, const std::string& pattern, const Slots& query) {
  const std::regex expression(pattern, std::regex_constants::ECMAScript | std::regex_constants::icase);
  std::vector<CVIFField> matching;
  for (const CVIFField& field : fields) {
    if (!field.Match(nullptr, query)) continue;
    const bool isMatch = pattern.empty() || std::regex_match(field.Name(), expression);
    EXPECT_EQ(field.Match(pattern.c_str(), query), isMatch) << pattern << " on " << field.Name();
    if (isMatch) matching.push_back(field);
  }
  return matching;
}

void ExpectAgreement() {
  SCOPED_TRACE(testsupport::SeedMessage());
  CGenerator generator;
  const std::vector<CVIFField> fields = generator.Fields(kManyFields);
  const CVendorInfoFile vif(fields);
  std::size_t found = 0;
  for (int i = 0; i < 60; ++i) {
    const std::string pattern = generator.Pattern(fields);
    const Slots query = generator.Query();
    const std::vector<CVIFField> expected = Matching(fields, pattern, query);
    found += expected.empty() ? 0U : 1U;
    ASSERT_EQ(vif.Count(pattern.c_str(), query), expected.size()) << pattern;
    ASSERT_EQ(testsupport::FieldTexts(*vif.GetFields(pattern.c_str(), query)), testsupport::FieldTexts(expected))
        << pattern;
  }
  EXPECT_GT(found, 20U);
}

TEST(NameQueryDifferential, AgreesInTheClassicLocale) { ExpectAgreement(); }

TEST(NameQueryDifferential, AgreesInAUtf8Locale) {
  std::locale utf8;
  try {
    utf8 = std::locale("C.UTF-8");
  } catch (const std::runtime_error&) {
    GTEST_SKIP() << "There is no such locale here.";
  }
  const CScopedGlobalLocale scoped(utf8);
  ExpectAgreement();
}

TEST(NameQueryDifferential, AgreesInALatin1Locale) {
  const CScopedGlobalLocale latin1(testsupport::Latin1Locale());
  ExpectAgreement();
}

TEST(NameQueryDifferential, AgreesInALocaleOfOddLetterCase) {
  const CScopedGlobalLocale odd(testsupport::OddCaseLocale());
  ExpectAgreement();
}

TEST(NameQueryDifferential, TakesTheLetterCaseFromTheLocaleOfTheQuery) {
  const std::vector<CVIFField> fields(kManyFields, CVIFField(true, "Name_2", "1", kUnused, kUnused, kUnused));
  const CVendorInfoFile vif(fields);
  EXPECT_EQ(vif.Count("name_1", kAnywhere), 0U);
  {
    const CScopedGlobalLocale odd(testsupport::OddCaseLocale());
    EXPECT_EQ(vif.Count("name_1", kAnywhere), kManyFields);
    EXPECT_EQ(CVendorInfoFile(fields).Count("name_1", kAnywhere), kManyFields);
  }
  EXPECT_EQ(vif.Count("name_1", kAnywhere), 0U);
}

TEST(NameQueryDifferential, TellsAllNamesThatBeginAlikeApart) {
  std::vector<CVIFField> fields;
  for (std::size_t i = 0; i < kManyFields; ++i) {
    fields.emplace_back(true, "Src_PDO_Field_" + std::to_string(i), std::to_string(i), kUnused, kUnused, kUnused);
  }
  const CVendorInfoFile vif(fields);
  for (std::size_t i = 0; i < kManyFields; ++i) {
    const std::string pattern = "src_pdo_field_" + std::to_string(i);
    EXPECT_EQ(vif.GetUniqueField(pattern.c_str(), kAnywhere).GetNumericValue(), i);
  }
}

}  // namespace
