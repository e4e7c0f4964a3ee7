#include "VIFFieldDefs.h"

#include "ReferenceNames.h"
#include "support/Latin1Locale.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <locale>
#include <regex>
#include <string>
#include <string_view>
#include <thread>
#include <type_traits>
#include <vector>

namespace {

using VifFieldDefs::GetVifFieldDefs;

static_assert(std::is_same_v<decltype(GetVifFieldDefs()), const std::vector<VifFieldDef>&>);
static_assert(std::is_same_v<decltype(VifFieldDef::name), const wchar_t*>);
static_assert(std::is_same_v<decltype(VifFieldDef::pattern), std::wregex>);
static_assert(std::is_same_v<decltype(VifFieldDef::locations), std::array<EVifLocation, 3>>);

bool Matches(const std::string& asciiName, const std::wregex& pattern) {
  return std::regex_match(std::wstring(asciiName.begin(), asciiName.end()), pattern);
}

/// The names of all fields, with and without indexes.
std::vector<std::string> NamesOfAllFields() {
  std::vector<std::string> names;
  for (const ReferenceField& field : kReferenceFields) {
    for (const std::string& spelling : reference::Spellings(field)) {
      names.push_back(reference::NameWith(spelling, "", ""));
      if (spelling.find(reference::kDigits) != std::string::npos) {
        names.push_back(reference::NameWith(spelling, "1", "20"));
      }
    }
  }
  return names;
}

/// How many definitions match the name.
std::ptrdiff_t MatchingDefinitions(const std::string& name) {
  return std::count_if(GetVifFieldDefs().begin(), GetVifFieldDefs().end(),
                       [&](const VifFieldDef& definition) { return Matches(name, definition.pattern); });
}

TEST(FieldDefs, Are271) { EXPECT_EQ(GetVifFieldDefs().size(), 271U); }

TEST(FieldDefs, StartWithTheSpecification) {
  EXPECT_STREQ(GetVifFieldDefs().front().name, L"VIF_Specification");
  EXPECT_EQ(GetVifFieldDefs().front().locations, (std::array{eVifLocVif, eVifLocUnset, eVifLocUnset}));
}

TEST(FieldDefs, EndWithTheShutdownTemperature) {
  EXPECT_STREQ(GetVifFieldDefs().back().name, L"Active_Cable_Shutdown_Temp_Support");
  EXPECT_EQ(GetVifFieldDefs().back().locations, (std::array{eVifLocComponent, eVifLocUnset, eVifLocUnset}));
}

TEST(FieldDefs, HaveTheReferenceNamesInOrder) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    EXPECT_STREQ(GetVifFieldDefs()[i].name, kReferenceFields[i].name) << "row " << i + 1;
  }
}

TEST(FieldDefs, HaveTheReferenceLocationsInOrder) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    const auto& locations = GetVifFieldDefs()[i].locations;
    const auto& reference = kReferenceFields[i].locations;
    EXPECT_TRUE(std::equal(std::begin(locations), std::end(locations), std::begin(reference), std::end(reference)))
        << "row " << i + 1;
  }
}

TEST(FieldDefs, HavePatternsWithoutFlags) {
  for (const VifFieldDef& definition : GetVifFieldDefs()) {
    EXPECT_EQ(definition.pattern.flags(), std::regex_constants::ECMAScript);
  }
}

TEST(FieldDefs, HaveTheReferenceNumberOfCaptureGroups) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    EXPECT_EQ(GetVifFieldDefs()[i].pattern.mark_count(), std::wregex(kReferenceFields[i].pattern).mark_count())
        << "row " << i + 1;
  }
}

TEST(FieldDefs, MatchTheirOwnNames) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    for (const std::string& name : reference::NamesOf(kReferenceFields[i])) {
      EXPECT_TRUE(Matches(name, GetVifFieldDefs()[i].pattern)) << "row " << i + 1 << " and " << name;
    }
  }
}

TEST(FieldDefs, CaptureWhatTheReferencePatternsDo) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    const std::wregex pattern(kReferenceFields[i].pattern);
    for (const std::string& narrowName : reference::NamesOf(kReferenceFields[i])) {
      const std::wstring name(narrowName.begin(), narrowName.end());
      std::wsmatch actual;
      std::wsmatch expected;
      std::regex_match(name, actual, GetVifFieldDefs()[i].pattern);
      std::regex_match(name, expected, pattern);
      ASSERT_EQ(actual.size(), expected.size()) << "row " << i + 1 << " and " << narrowName;
      EXPECT_TRUE(std::equal(actual.begin(), actual.end(), expected.begin()))
          << "row " << i + 1 << " and " << narrowName;
    }
  }
}

TEST(FieldDefs, MatchWhatTheReferencePatternsMatchAmongAllNames) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  const std::vector<std::string> names = NamesOfAllFields();
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    const std::wregex pattern(kReferenceFields[i].pattern);
    for (const std::string& name : names) {
      ASSERT_EQ(Matches(name, GetVifFieldDefs()[i].pattern), Matches(name, pattern))
          << "row " << i + 1 << " and " << name;
    }
  }
}

TEST(FieldDefs, MatchWhatTheReferencePatternsMatchAmongChangedNames) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    const std::wregex pattern(kReferenceFields[i].pattern);
    for (const std::string& spelling : reference::Spellings(kReferenceFields[i])) {
      for (int change = 0; change < 50; ++change) {
        const std::string name = reference::Changed(reference::NameWith(spelling, "1", "20"), generator);
        ASSERT_EQ(Matches(name, GetVifFieldDefs()[i].pattern), Matches(name, pattern))
            << "row " << i + 1 << " and " << reference::Shown(name);
      }
    }
  }
}

TEST(FieldDefs, DoNotMatchWithinALongerText) {
  ASSERT_EQ(GetVifFieldDefs().size(), std::size(kReferenceFields));
  for (size_t i = 0; i < std::size(kReferenceFields); ++i) {
    const std::wregex& pattern = GetVifFieldDefs()[i].pattern;
    const std::wstring name = kReferenceFields[i].name;
    EXPECT_TRUE(std::regex_search(name, pattern)) << "row " << i + 1;
    EXPECT_FALSE(std::regex_search(L"x" + name, pattern)) << "row " << i + 1;
    EXPECT_FALSE(std::regex_search(name + L"x", pattern)) << "row " << i + 1;
  }
}

TEST(FieldDefs, NeverMatchTheSameName) {
  for (const std::string& name : NamesOfAllFields()) EXPECT_EQ(MatchingDefinitions(name), 1) << name;
}

TEST(FieldDefs, AreCaseSensitive) {
  EXPECT_EQ(MatchingDefinitions("Vendor_Name"), 1);
  EXPECT_EQ(MatchingDefinitions("vendor_name"), 0);
  EXPECT_EQ(MatchingDefinitions("VENDOR_NAME"), 0);
}

TEST(FieldDefs, AreTheSameObjectOnEveryCall) { EXPECT_EQ(&GetVifFieldDefs(), &GetVifFieldDefs()); }

TEST(FieldDefs, AreNotChangedByCopying) {
  std::vector<VifFieldDef> copy = GetVifFieldDefs();
  EXPECT_EQ(copy[230].name, GetVifFieldDefs()[230].name);
  EXPECT_EQ(copy[230].locations, GetVifFieldDefs()[230].locations);
  EXPECT_TRUE(Matches("Src_PDO_Voltage2", copy[230].pattern));

  copy[230] = {L"Mine", std::wregex(L"Mine"), {eVifLocVif}};
  copy.push_back({L"Other", std::wregex(L"Other"), {}});
  EXPECT_STREQ(GetVifFieldDefs()[230].name, L"Src_PDO_Voltage");
  EXPECT_TRUE(Matches("Src_PDO_Voltage2", GetVifFieldDefs()[230].pattern));
  EXPECT_EQ(GetVifFieldDefs().size(), 271U);
}

TEST(FieldDefs, MayBeUsedByManyThreadsAtOnce) {
  std::array<std::ptrdiff_t, 8> fitting{};
  std::vector<std::thread> threads;
  for (std::ptrdiff_t& count : fitting) {
    threads.emplace_back([&count] { count = MatchingDefinitions("SVID1_Mode2_Enter_SOP"); });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::ptrdiff_t count : fitting) EXPECT_EQ(count, 1);
}

/// Whether the table was built under the classic locale although another has since become the global one.
bool IsBuiltUnderTheClassicLocale() {
  std::locale::global(testsupport::Latin1Locale());
  const auto& definitions = GetVifFieldDefs();
  return std::all_of(definitions.begin(), definitions.end(), [](const VifFieldDef& definition) {
    return definition.pattern.getloc() == std::locale::classic();
  });
}

// A regular expression keeps the global locale in force when it was compiled. So a new process that changes the locale
// before its first call can tell whether the table existed before.
TEST(FieldDefsDeathTest, AreBuiltBeforeTheFirstCall) {
#ifdef VENDORINFOFILE_TESTS_ARE_EMULATED
  GTEST_SKIP() << "The system cannot execute this program without the emulator.";
#endif
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  EXPECT_EXIT(std::exit(IsBuiltUnderTheClassicLocale() ? 0 : 1), testing::ExitedWithCode(0), "");
}

TEST(FieldDef, IsEmptyByDefault) {
  const VifFieldDef definition;
  EXPECT_EQ(definition.name, nullptr);
  EXPECT_EQ(definition.locations, (std::array{eVifLocUnset, eVifLocUnset, eVifLocUnset}));
}

}  // namespace
