// The tables of the vocabulary against each other and against the field definition table.
#include "vocabulary/Alignment.h"
#include "vocabulary/ValueTables.h"

#include <VIFFieldDefs.h>
#include <analysis/Rules.h>
#include <analysis/Sources.h>
#include <analysis/Vocabulary.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

using namespace vifanalysis;

namespace {

constexpr std::span<const FieldValue> (*kValueTables[])() = {PortValues,     DataValues,  PowerValues,
                                                             IdentityValues, OtherValues, BooleanValues};

std::string Narrow(const wchar_t* name) {
  std::string text;
  for (; *name != L'\0'; ++name) text += static_cast<char>(*name);
  return text;
}

/// The field with the canonical name, letter by letter.
const FieldInfo* FieldNamed(std::string_view name) {
  const auto fields = Fields();
  const auto found = std::find_if(fields.begin(), fields.end(), [&](const FieldInfo& f) { return f.name == name; });
  return found != fields.end() ? &*found : nullptr;
}

bool IsValid(const EditionRange& range) {
  if (!range.IsKnown()) return !IsKnown(range.last);
  return range.first <= range.last && range.last < Edition{4, 0};
}

/// Whether the text is one or more codes of sources, separated by single blanks, none of them twice.
bool AreSources(std::string_view codes) {
  std::set<std::string_view> seen;
  while (true) {
    const std::string_view code = codes.substr(0, codes.find(' '));
    if (FindSource(code) == nullptr || !seen.insert(code).second) return false;
    if (code.size() == codes.size()) return true;
    codes.remove_prefix(code.size() + 1);
  }
}

bool IsInRows(std::span<const FieldSpelling> rows, const FieldSpelling& row) {
  return std::any_of(rows.begin(), rows.end(), [&](const FieldSpelling& other) { return &other == &row; });
}

}  // namespace

TEST(VocabularyTables, ContainTheDefinitionTableInItsOrder) {
  const auto& definitions = VifFieldDefs::GetVifFieldDefs();
  const auto fields = Fields();
  ASSERT_EQ(definitions.size(), 271U);
  ASSERT_GT(fields.size(), definitions.size());
  for (size_t i = 0; i < definitions.size(); ++i) {
    EXPECT_EQ(fields[i].name, Narrow(definitions[i].name));
    EXPECT_EQ(fields[i].locations, definitions[i].locations) << fields[i].name;
    EXPECT_EQ(fields[i].standing, FieldStanding::Defined) << fields[i].name;
  }
}

TEST(VocabularyTables, ContainNoDefinedFieldElsewhere) {
  const size_t defined = VifFieldDefs::GetVifFieldDefs().size();
  for (const FieldInfo& field : Fields().subspan(defined)) {
    EXPECT_NE(field.standing, FieldStanding::Defined) << field.name;
    for (const VifFieldDef& definition : VifFieldDefs::GetVifFieldDefs()) {
      EXPECT_FALSE(std::regex_match(std::wstring(field.name.begin(), field.name.end()), definition.pattern))
          << field.name;
    }
  }
}

TEST(VocabularyTables, SpellDefinedFieldsAsTheDefinitionTableReadsThem) {
  const auto& definitions = VifFieldDefs::GetVifFieldDefs();
  for (size_t i = 0; i < definitions.size(); ++i) {
    std::wstring written(Fields()[i].spelling.begin(), Fields()[i].spelling.end());
    const auto marks = static_cast<size_t>(std::count(written.begin(), written.end(), L'#'));
    std::replace(written.begin(), written.end(), L'#', L'7');
    std::wsmatch match;
    ASSERT_TRUE(std::regex_match(written, match, definitions[i].pattern)) << Fields()[i].spelling;
    ASSERT_EQ(match.size(), marks + 1) << Fields()[i].spelling;
    for (size_t mark = 1; mark <= marks; ++mark) EXPECT_EQ(match[mark].str(), L"7") << Fields()[i].spelling;
  }
}

TEST(VocabularyTables, HaveNoFieldTwice) {
  std::set<std::string_view> names;
  for (const FieldInfo& field : Fields()) EXPECT_TRUE(names.insert(field.name).second) << field.name;
}

TEST(VocabularyTables, SayOfEveryFieldWhatItDeclares) {
  for (const FieldInfo& field : Fields()) {
    ASSERT_FALSE(field.declares.empty()) << field.name;
    EXPECT_TRUE(field.declares.ends_with('.') || field.declares.ends_with('?')) << field.name;
    EXPECT_TRUE(field.note.empty() || field.note.ends_with('.')) << field.name;
    EXPECT_TRUE(AreSources(field.sources)) << field.name << ": " << field.sources;
  }
}

TEST(VocabularyTables, AskAQuestionOfEveryBooleanThatIsNotPartOfAVdo) {
  for (const FieldInfo& field : Fields()) {
    if (field.type != FieldType::Boolean || field.declares.ends_with('?')) continue;
    EXPECT_TRUE(field.declares.find("VDO") != std::string_view::npos || IsKnown(field.goneBy)) << field.name;
  }
}

TEST(VocabularyTables, HaveEditionsExactlyForWhatWasSeen) {
  for (const FieldInfo& field : Fields()) {
    EXPECT_TRUE(IsValid(field.seen)) << field.name;
    EXPECT_EQ(field.seen.IsKnown(), field.files > 0) << field.name;
  }
  for (const FieldSpelling& row : Spellings()) {
    EXPECT_TRUE(IsValid(row.seen)) << row.spelling;
    EXPECT_EQ(row.seen.IsKnown(), row.files > 0) << row.spelling;
  }
  for (const auto table : kValueTables) {
    for (const FieldValue& row : table()) {
      EXPECT_TRUE(IsValid(row.seen)) << row.field;
      EXPECT_EQ(row.seen.IsKnown(), row.files > 0) << row.field << " " << row.value;
    }
  }
}

TEST(VocabularyTables, GiveEveryValueRowToItsField) {
  size_t rows = 0;
  for (const auto table : kValueTables) {
    for (const FieldValue& row : table()) {
      ++rows;
      const FieldInfo* field = FieldNamed(row.field);
      ASSERT_NE(field, nullptr) << row.field;
      EXPECT_EQ(FindValue(*field, row.value), &row) << row.field << " " << row.value;
      EXPECT_FALSE(row.text.empty()) << row.field << " " << row.value;
      EXPECT_TRUE(AreSources(row.sources)) << row.field << ": " << row.sources;
      EXPECT_EQ(row.olderText.empty(), !IsKnown(row.olderUntil)) << row.field;
    }
  }
  size_t attached = 0;
  for (const FieldInfo& field : Fields()) attached += field.values.size();
  EXPECT_EQ(attached, rows);
}

TEST(VocabularyTables, HaveTheValuesOfAFieldInRisingOrder) {
  for (const FieldInfo& field : Fields()) {
    EXPECT_EQ(std::adjacent_find(field.values.begin(), field.values.end(),
                                 [](const FieldValue& a, const FieldValue& b) { return a.value >= b.value; }),
              field.values.end())
        << field.name;
  }
}

TEST(VocabularyTables, HaveValuesForBooleansAndEnumerationsOnly) {
  for (const FieldInfo& field : Fields()) {
    if (field.type == FieldType::Boolean) {
      ASSERT_EQ(field.values.size(), 2U) << field.name;
      EXPECT_EQ(field.values[0].text, "NO") << field.name;
      EXPECT_EQ(field.values[1].text, "YES") << field.name;
    } else if (field.type != FieldType::Enumeration) {
      EXPECT_TRUE(field.values.empty()) << field.name;
    }
  }
}

TEST(VocabularyTables, HaveValuesOfDefinedEnumerations) {
  for (const FieldInfo& field : Fields()) {
    if (field.type == FieldType::Enumeration && field.standing == FieldStanding::Defined) {
      EXPECT_FALSE(field.values.empty()) << field.name;
    }
  }
}

TEST(VocabularyTables, MarkValuesThatAreOnlyInferredAsWeak) {
  for (const auto table : kValueTables) {
    for (const FieldValue& row : table()) {
      EXPECT_EQ(row.sources == "S6", row.confidence == Confidence::Low) << row.field << " " << row.value;
    }
  }
}

TEST(VocabularyTables, CountNoValueInMoreFilesThanItsField) {
  for (const FieldInfo& field : Fields()) {
    // Other names of a field, whose values are counted with its own.
    std::uint32_t files = field.files;
    for (const FieldSpelling& row : field.spellings) files += row.files;
    for (const FieldValue& value : field.values) EXPECT_LE(value.files, files) << field.name << " " << value.value;
  }
}

TEST(VocabularyTables, GiveEveryUnitRowToItsField) {
  size_t attached = 0;
  for (const FieldInfo& field : Fields()) attached += field.units.size();
  EXPECT_EQ(attached, Units().size());
  for (const FieldUnit& row : Units()) {
    const FieldInfo* field = FieldNamed(row.field);
    ASSERT_NE(field, nullptr) << row.field;
    EXPECT_EQ(field->type, FieldType::Number) << row.field;
    EXPECT_TRUE(&row >= field->units.data() && &row < field->units.data() + field->units.size()) << row.field;
    EXPECT_GT(row.scale, 0U) << row.field;
    EXPECT_EQ(row.places > 0, row.files > 0) << row.field;
    EXPECT_TRUE(AreSources(row.sources)) << row.field << ": " << row.sources;
  }
}

TEST(VocabularyTables, GiveNoFieldTwoUnitsForOnePdo) {
  for (const FieldInfo& field : Fields()) {
    for (std::uint64_t supply = 0; supply < 4; ++supply) {
      for (std::uint64_t apdo = 0; apdo < 3; ++apdo) {
        for (std::uint64_t threshold = 0; threshold < 2; ++threshold) {
          const auto fits = [](std::uint8_t mask, std::uint64_t type) {
            return mask == 0 || (unsigned{mask} >> type & 1U) != 0;
          };
          EXPECT_LE(std::count_if(field.units.begin(), field.units.end(),
                                  [&](const FieldUnit& row) {
                                    return fits(row.supplyTypes, supply) && fits(row.apdoTypes, apdo) &&
                                           fits(row.thresholdTypes, threshold);
                                  }),
                    1)
              << field.name;
        }
      }
    }
  }
}

TEST(VocabularyTables, GiveEverySpellingToItsField) {
  size_t attached = 0;
  for (const FieldInfo& field : Fields()) attached += field.spellings.size();
  EXPECT_EQ(attached, Spellings().size());
  for (const FieldSpelling& row : Spellings()) {
    const FieldInfo* field = FieldNamed(row.field);
    ASSERT_NE(field, nullptr) << row.spelling;
    EXPECT_TRUE(IsInRows(field->spellings, row)) << row.spelling;
    EXPECT_TRUE(AreSources(row.sources)) << row.spelling << ": " << row.sources;
    EXPECT_TRUE(row.why.empty() || row.why.ends_with('.')) << row.spelling;
    EXPECT_EQ(FieldNamed(row.spelling), nullptr) << row.spelling;
  }
}

TEST(VocabularyTables, RepeatASpellingOnlyForAFieldSplitInTwo) {
  std::map<std::string_view, std::set<std::string_view>> fields;
  for (const FieldSpelling& row : Spellings()) {
    EXPECT_TRUE(fields[row.spelling].insert(row.field).second) << row.spelling;
    const bool mayBeSplit = row.kind == NameKind::OlderField;
    EXPECT_LE(fields[row.spelling].size(), mayBeSplit ? 2U : 1U) << row.spelling;
  }
}

TEST(VocabularyTables, HaveNoNameTooLongToSuggest) {
  for (const FieldInfo& field : Fields()) EXPECT_LE(field.spelling.size(), CAlignment::kMaxLength) << field.name;
  for (const FieldSpelling& row : Spellings()) EXPECT_LE(row.spelling.size(), CAlignment::kMaxLength) << row.spelling;
}

TEST(VocabularyTables, HaveNoSourceTwice) {
  std::set<std::string_view> codes;
  for (const Source& source : Sources()) {
    EXPECT_TRUE(codes.insert(source.code).second) << source.code;
    EXPECT_EQ(FindSource(source.code), &source);
  }
  EXPECT_EQ(FindSource("S"), nullptr);
  EXPECT_EQ(FindSource(""), nullptr);
}

TEST(VocabularyTables, KnowTheSourcesOfEveryRule) {
  std::size_t withSources = 0;
  for (const RuleInfo& rule : Rules()) {
    if (std::string_view(rule.sources).empty()) continue;
    EXPECT_TRUE(AreSources(rule.sources)) << rule.code << ": " << rule.sources;
    ++withSources;
  }
  EXPECT_EQ(withSources, 45U);
}

TEST(VocabularyTables, HaveNoSourceThatNothingNames) {
  std::string used = " ";
  const auto use = [&](std::string_view codes) { used.append(codes).append(" "); };
  for (const RuleInfo& rule : Rules()) use(rule.sources);
  for (const FieldSpelling& row : Spellings()) use(row.sources);
  for (const FieldInfo& field : Fields()) {
    use(field.sources);
    for (const FieldValue& row : field.values) use(row.sources);
    for (const FieldUnit& row : field.units) use(row.sources);
  }
  for (const Source& source : Sources()) {
    EXPECT_NE(used.find(" " + std::string(source.code) + " "), std::string::npos) << source.code;
  }
}

TEST(VocabularyTables, PutEveryFieldIntoOneGroup) {
  std::set<const FieldInfo*> fields;
  std::vector<EVifLocation> order;
  for (const FieldGroup& group : FieldGroups()) {
    order.push_back(group.location);
    ASSERT_FALSE(group.fields.empty());
    EXPECT_TRUE(std::is_sorted(group.fields.begin(), group.fields.end()));
    for (const FieldInfo* field : group.fields) {
      EXPECT_EQ(field->Group(), group.location) << field->name;
      EXPECT_TRUE(fields.insert(field).second) << field->name;
    }
  }
  EXPECT_EQ(fields.size(), Fields().size());
  EXPECT_EQ(order,
            (std::vector<EVifLocation>{eVifLocVif, eVifLocProduct, eVifLocComponent, eVifLocRouter, eVifLocRouterPcie,
                                       eVifLocSrcPdo, eVifLocSnkPdo, eVifLocSopSvid, eVifLocSopSvidMode,
                                       eVifLocCableSvid, eVifLocCableSvidMode, eVifLocUnset, eVifLocAppVersion}));
}
