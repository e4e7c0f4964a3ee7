// What a misspelled name probably means.
#include "vocabulary/Alignment.h"

#include <analysis/Vocabulary.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/Random.h"

using namespace vifanalysis;

namespace {

/// The distance and the correction by brute force, for short texts.
size_t ReferenceDistance(std::string_view name, std::string_view spelling) {
  if (spelling.empty()) return name.size();
  if (spelling.front() == '#') {
    size_t best = ReferenceDistance(name, spelling.substr(1));
    if (!name.empty()) {
      const bool isDigit = name.front() >= '0' && name.front() <= '9';
      best = std::min(best, ReferenceDistance(name.substr(1), spelling) + (isDigit ? 0 : 1));
    }
    return best;
  }
  size_t best = ReferenceDistance(name, spelling.substr(1)) + 1;
  if (name.empty()) return best;
  best = std::min(best, ReferenceDistance(name.substr(1), spelling) + 1);
  best = std::min(best, ReferenceDistance(name.substr(1), spelling.substr(1)) + (name[0] == spelling[0] ? 0 : 1));
  if (name.size() > 1 && spelling.size() > 1 && name[0] == spelling[1] && name[1] == spelling[0]) {
    best = std::min(best, ReferenceDistance(name.substr(2), spelling.substr(2)) + 1);
  }
  return best;
}

std::string RandomText(std::mt19937_64& random, std::string_view characters, size_t most) {
  std::string text(testsupport::RandomBelow(random, most + 1), ' ');
  for (char& c : text) c = characters[testsupport::RandomBelow(random, characters.size())];
  return text;
}

}  // namespace

TEST(VocabularySuggestion, ForASpellingOfAnotherEditionKeepsTheDigits) {
  EXPECT_EQ(SuggestField("SVID1_num_modes_min_SOP"), "SVID1_Num_Modes_Min_SOP");
  EXPECT_EQ(SuggestField("SVID2_mode13_enter_SOP"), "SVID2_Mode13_Enter_SOP");
  EXPECT_EQ(SuggestField("PD_Power_as_Sink"), "PD_Power_As_Sink");
}

TEST(VocabularySuggestion, ForAnotherLetterCase) {
  EXPECT_EQ(SuggestField("src_pdo_voltage3"), "Src_PDO_Voltage3");
  EXPECT_EQ(SuggestField("$vendor_name"), "$Vendor_Name");
  EXPECT_EQ(SuggestField("$Vendor_name"), "$Vendor_Name");
  EXPECT_EQ(SuggestField("vendor_name"), "Vendor_Name");
}

TEST(VocabularySuggestion, ForAKnownMistake) {
  EXPECT_EQ(SuggestField("Type_C_Source_Vconn"), "Type_C_Sources_VCONN");
  EXPECT_EQ(SuggestField("SVID1_num_modes_fixed_SOP"), "SVID1_Modes_Fixed_SOP");
}

TEST(VocabularySuggestion, ForAFewMistakes) {
  EXPECT_EQ(SuggestField("Src_PDO_Voltge3"), "Src_PDO_Voltage3");
  EXPECT_EQ(SuggestField("Src_PDO_Votlage3"), "Src_PDO_Voltage3");
  EXPECT_EQ(SuggestField("PD_Prot_Type"), "PD_Port_Type");
  EXPECT_EQ(SuggestField("Unconstrained_Powr"), "Unconstrained_Power");
  EXPECT_EQ(SuggestField("SVID2_Mod1_Entr_SOP"), "SVID2_Mode1_Enter_SOP");
  EXPECT_EQ(SuggestField("USB4_PCIe_Endpiont1_Vendor_ID2"), "USB4_PCIe_Endpoint1_Vendor_ID2");
  EXPECT_EQ(SuggestField("$Vendr_Name"), "$Vendor_Name");
  EXPECT_EQ(SuggestField("Has_Invariant_PDO"), "Has_Invariant_PDOs");
}

TEST(VocabularySuggestion, LeavesOutDigitsThatTheFieldDoesNotTake) {
  EXPECT_EQ(SuggestField("PD_Port_Type1"), "PD_Port_Type");
}

TEST(VocabularySuggestion, IsNoneForWhatIsFarFromEverything) {
  EXPECT_EQ(SuggestField(""), "");
  EXPECT_EQ(SuggestField("$"), "");
  EXPECT_EQ(SuggestField("12"), "");
  EXPECT_EQ(SuggestField("Something_Else_Entirely"), "");
  EXPECT_EQ(SuggestField(std::string(100000, 'a')), "");
  EXPECT_EQ(SuggestField("\xFF\xFE\x80"), "");
}

TEST(VocabularySuggestion, IsNoneWhereTwoFieldsAreEquallyNear) {
  EXPECT_EQ(SuggestField("Src_PDO_Mix_Voltage"), "");
  EXPECT_EQ(SuggestField("VID"), "");
}

TEST(VocabularySuggestion, IsNoneForNamesThatExistInSomeEdition) {
  for (const FieldInfo& field : Fields()) EXPECT_EQ(SuggestField(field.name), "") << field.name;
  for (const FieldSpelling& row : Spellings()) {
    if (row.kind == NameKind::OlderField || row.kind == NameKind::TextForm) {
      EXPECT_EQ(SuggestField(row.spelling), "") << row.spelling;
    }
  }
}

TEST(VocabularySuggestion, OfOtherSpellingsIsTheSameField) {
  for (const FieldSpelling& row : Spellings()) {
    if (row.kind != NameKind::OtherSpelling && row.kind != NameKind::Mistake) continue;
    std::string name(row.spelling);
    std::replace(name.begin(), name.end(), '#', '4');
    const NameMatch suggested = FindField(SuggestField(name));
    ASSERT_NE(suggested.field, nullptr) << name;
    EXPECT_EQ(suggested.field->name, row.field) << name;
    EXPECT_TRUE(suggested.kind == NameKind::Canonical || suggested.kind == NameKind::TextForm) << name;
  }
}

TEST(VocabularySuggestion, IsANameThatIsFoundOrNone) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  size_t found = 0;
  for (int round = 0; round < 2000; ++round) {
    std::string name(Fields()[testsupport::RandomBelow(random, Fields().size())].spelling);
    std::replace(name.begin(), name.end(), '#', '2');
    const std::string original = name;
    name.erase(testsupport::RandomBelow(random, name.size()), 1);
    const std::string suggestion = SuggestField(name);
    if (suggestion.empty()) continue;
    EXPECT_NE(FindField(suggestion).field, nullptr) << name << " -> " << suggestion;
    found += suggestion == original ? 1U : 0U;
  }
  // The rest are index digits left out and names that are equally near to two fields.
  EXPECT_GT(found, 1600U);
}

TEST(VocabularyAlignment, HasTheDistanceOfEveryWayTried) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  for (int round = 0; round < 3000; ++round) {
    const std::string name = RandomText(random, "ab_12", 6);
    const std::string spelling = RandomText(random, "ab_1#", 6);
    EXPECT_EQ(CAlignment(name, spelling).Distance(), ReferenceDistance(name, spelling)) << name << " / " << spelling;
  }
}

TEST(VocabularyAlignment, CorrectsToWhatMatchesTheSpelling) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  for (int round = 0; round < 3000; ++round) {
    const std::string name = RandomText(random, "ab_12", 8);
    const std::string spelling = RandomText(random, "ab_1#", 8);
    const CAlignment alignment(name, spelling);
    const std::string corrected = alignment.Corrected();
    EXPECT_EQ(CAlignment(corrected, spelling).Distance(), 0U) << name << " / " << spelling << " -> " << corrected;
  }
}

TEST(VocabularyAlignment, TakesNamesOfTheGreatestLength) {
  const std::string longest(CAlignment::kMaxLength, 'a');
  EXPECT_EQ(CAlignment(longest, longest).Distance(), 0U);
  EXPECT_EQ(CAlignment(longest, "").Distance(), CAlignment::kMaxLength);
  EXPECT_EQ(CAlignment("", longest).Corrected(), longest);
}
