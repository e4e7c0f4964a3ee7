// What names mean.
#include <VIFFieldDefs.h>
#include <analysis/Vocabulary.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <string>
#include <string_view>

#include "support/InAllThreads.h"
#include "support/Random.h"

using namespace vifanalysis;

namespace {

/// The name of the field found, and why: "Vendor_Name canonical name".
std::string Found(std::string_view name) {
  const NameMatch match = FindField(name);
  if (match.field == nullptr) return std::string(NameKindText(match.kind));
  return std::string(match.field->name) + ", " + std::string(NameKindText(match.kind));
}

/// The spelling with generated digits, or none, at its marks.
std::string WithRandomDigits(std::string_view spelling, std::mt19937_64& random, std::array<std::string, 2>& digits) {
  std::string name;
  size_t mark = 0;
  for (const char c : spelling) {
    if (c != '#') {
      name += c;
      continue;
    }
    const size_t kind = testsupport::RandomBelow(random, 4);
    digits[mark] = kind == 0 ? std::string() : std::to_string(testsupport::RandomBelow(random, kind == 1 ? 10 : 1000));
    name += digits[mark++];
  }
  return name;
}

std::string InRandomCase(std::string name, std::mt19937_64& random) {
  for (char& c : name) {
    const auto letter = static_cast<unsigned char>(c);
    c = static_cast<char>(testsupport::RandomBelow(random, 2) == 0 ? std::toupper(letter) : std::tolower(letter));
  }
  return name;
}

}  // namespace

TEST(VocabularyNames, FindAFieldByItsCanonicalName) {
  EXPECT_EQ(Found("PD_Port_Type"), "PD_Port_Type, canonical name");
  EXPECT_EQ(Found("Src_PDO_Voltage"), "Src_PDO_Voltage, canonical name");
  EXPECT_EQ(FindField("PD_Port_Type").spelling, nullptr);
}

TEST(VocabularyNames, FindAFieldWithIndexDigits) {
  const NameMatch match = FindField("SVID2_Mode14_Enter_SOP");
  ASSERT_NE(match.field, nullptr);
  EXPECT_EQ(match.field->name, "SVID_Mode_Enter_SOP");
  EXPECT_EQ(match.kind, NameKind::Canonical);
  EXPECT_EQ(match.indexDigits, (std::array<std::string_view, 2>{"2", "14"}));
  EXPECT_EQ(Found("Src_PDO_Voltage3"), "Src_PDO_Voltage, canonical name");
  EXPECT_EQ(Found("USB4_PCIe_Endpoint1_Vendor_ID2"), "USB4_PCIe_Endpoint_Vendor_ID, canonical name");
}

TEST(VocabularyNames, FindAFieldWithOneOfTwoIndexes) {
  const NameMatch match = FindField("SVID_Mode3_Enter_SOP");
  EXPECT_EQ(match.kind, NameKind::Canonical);
  EXPECT_EQ(match.indexDigits, (std::array<std::string_view, 2>{"", "3"}));
}

TEST(VocabularyNames, TakeNoDigitsWhereThereIsNoIndex) {
  EXPECT_EQ(Found("PD_Port_Type1"), "unknown name");
  EXPECT_EQ(Found("Src_PDO1_Voltage"), "unknown name");
  EXPECT_EQ(Found("USB5_Dock"), "unknown name");
}

TEST(VocabularyNames, FindAFieldInAnyLetterCase) {
  EXPECT_EQ(Found("pd_port_type"), "PD_Port_Type, other letter case");
  EXPECT_EQ(Found("SRC_PDO_VOLTAGE3"), "Src_PDO_Voltage, other letter case");
  EXPECT_EQ(Found("has_invariant_pdos"), "Has_Invariant_PDOs, other letter case");
}

TEST(VocabularyNames, FindATextFieldWithADollarSign) {
  EXPECT_EQ(Found("$Vendor_Name"), "Vendor_Name, text form");
  EXPECT_EQ(Found("$Port_Source_Power_Gang"), "Port_Source_Power_Gang, text form");
  EXPECT_EQ(Found("$vendor_NAME"), "Vendor_Name, other letter case");
  EXPECT_EQ(Found("$port_source_power_gang"), "Port_Source_Power_Gang, other letter case");
}

TEST(VocabularyNames, FindNoOtherFieldWithADollarSign) {
  EXPECT_EQ(Found("$PD_Port_Type"), "unknown name");
  EXPECT_EQ(Found("$Rp_Value"), "unknown name");
  EXPECT_EQ(Found("$Vendor"), "unknown name");
  EXPECT_EQ(Found("$$Vendor_Name"), "unknown name");
  EXPECT_EQ(Found("$"), "unknown name");
}

TEST(VocabularyNames, TellASpellingOfEarlierEditionsFromLetterCase) {
  EXPECT_EQ(Found("PD_Power_as_Sink"), "PD_Power_As_Sink, other spelling");
  EXPECT_EQ(Found("PD_Power_AS_Sink"), "PD_Power_As_Sink, other letter case");
  EXPECT_EQ(Found("SVID1_mode2_enter_SOP"), "SVID_Mode_Enter_SOP, other spelling");
  const NameMatch match = FindField("Rp_Value");
  ASSERT_NE(match.spelling, nullptr);
  EXPECT_EQ(match.spelling->seen.first, (Edition{1, 11}));
  EXPECT_EQ(match.spelling->seen.last, (Edition{1, 40}));
}

TEST(VocabularyNames, FindAFieldByAnOlderName) {
  EXPECT_EQ(Found("UUT_Device_Type"), "PD_Port_Type, older field");
  EXPECT_EQ(Found("Externally_Powered"), "Unconstrained_Power, older field");
  EXPECT_EQ(Found("$Product_Name"), "Model_Part_Number, older field");
  EXPECT_EQ(Found("uut_device_type"), "PD_Port_Type, older field");
}

TEST(VocabularyNames, FindBothFieldsOfOneSplitInTwo) {
  const NameMatch match = FindField("Product_Type_SOP");
  EXPECT_EQ(match.kind, NameKind::OlderField);
  ASSERT_NE(match.field, nullptr);
  ASSERT_NE(match.otherField, nullptr);
  EXPECT_EQ(match.field->name, "Product_Type_UFP_SOP");
  EXPECT_EQ(match.otherField->name, "Product_Type_DFP_SOP");
  EXPECT_EQ(FindField("UUT_Device_Type").otherField, nullptr);
}

TEST(VocabularyNames, FindFieldsOutsideTheDefinitionTable) {
  EXPECT_EQ(Found("Has_Invariant_PDOs"), "Has_Invariant_PDOs, newer field");
  EXPECT_EQ(Found("Structured_VDM_Version_SOP"), "Structured_VDM_Version_SOP, older field");
  EXPECT_EQ(Found("SOPSVIDList"), "SOPSVIDList, XML structure");
  EXPECT_EQ(Found("DP_mode2_Receptacle"), "DP_mode_Receptacle, optional content");
}

TEST(VocabularyNames, FindAFieldByAKnownMistake) {
  EXPECT_EQ(Found("Type_C_Source_Vconn"), "Type_C_Sources_VCONN, mistake");
  EXPECT_EQ(Found("SVID1_num_modes_fixed_SOP"), "SVID_Modes_Fixed_SOP, mistake");
}

TEST(VocabularyNames, TakeBothCanonicalSpellingsOfTheSecondController) {
  EXPECT_EQ(Found("Cable_SOP_PP_Controller"), "Cable_SOP_PP_Controller, canonical name");
  EXPECT_EQ(Found("Cable_SOP''_Controller"), "Cable_SOP_PP_Controller, canonical name");
  EXPECT_EQ(Found("Cable_SOP''_controller"), "Cable_SOP_PP_Controller, other spelling");
}

TEST(VocabularyNames, FindNothingForOtherNames) {
  EXPECT_EQ(Found(""), "unknown name");
  EXPECT_EQ(Found("Voltage"), "unknown name");
  EXPECT_EQ(Found("Src_PDO_Voltage#"), "unknown name");
  EXPECT_EQ(Found(std::string_view("TID\0", 4)), "unknown name");
  EXPECT_EQ(Found(std::string(100000, '1')), "unknown name");
  EXPECT_EQ(Found("SVID" + std::string(100000, '1')), "SVID, canonical name");
}

TEST(VocabularyNames, ResolveEverySpelling) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  for (const FieldSpelling& row : Spellings()) {
    std::array<std::string, 2> digits;
    const std::string name = WithRandomDigits(row.spelling, random, digits);
    const NameMatch match = FindField(name);
    ASSERT_NE(match.field, nullptr) << name;
    EXPECT_EQ(match.kind, row.kind) << name;
    EXPECT_TRUE(match.field->name == row.field || (match.otherField != nullptr && match.otherField->name == row.field))
        << name;
    EXPECT_EQ(match.indexDigits[0], digits[0]) << name;
    EXPECT_EQ(match.indexDigits[1], digits[1]) << name;
  }
}

TEST(VocabularyNames, ResolveEveryFieldWithGeneratedDigitsInGeneratedCase) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  for (const FieldInfo& field : Fields()) {
    for (int i = 0; i < 20; ++i) {
      std::array<std::string, 2> digits;
      const std::string name = WithRandomDigits(field.spelling, random, digits);
      for (const std::string& written : {name, InRandomCase(name, random)}) {
        const NameMatch match = FindField(written);
        EXPECT_EQ(match.field, &field) << written;
        EXPECT_EQ(match.indexDigits[0], digits[0]) << written;
        EXPECT_EQ(match.indexDigits[1], digits[1]) << written;
      }
      EXPECT_EQ(FindField(name).spelling, nullptr) << name;
    }
  }
}

TEST(VocabularyNames, AreCanonicalExactlyWhereTheDefinitionTableHasThem) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  const auto isDefined = [](const std::string& name) {
    const std::wstring wide(name.begin(), name.end());
    const auto& definitions = VifFieldDefs::GetVifFieldDefs();
    return std::any_of(definitions.begin(), definitions.end(),
                       [&](const VifFieldDef& definition) { return std::regex_match(wide, definition.pattern); });
  };
  const auto fields = Fields();
  for (int i = 0; i < 1000; ++i) {
    std::array<std::string, 2> digits;
    std::string name =
        WithRandomDigits(fields[testsupport::RandomBelow(random, fields.size())].spelling, random, digits);
    constexpr std::string_view kCharacters = "1_aS#$";
    const size_t at = testsupport::RandomBelow(random, name.size());
    const char c = kCharacters[testsupport::RandomBelow(random, kCharacters.size())];
    if (i % 3 == 1) name[at] = c;
    if (i % 3 == 2) name.insert(at, 1, c);
    EXPECT_EQ(FindField(name).kind == NameKind::Canonical, isDefined(name)) << name;
  }
}

TEST(VocabularyNames, CanBeFoundByAllThreadsAtOnce) {
  const auto counts = testsupport::InAllThreads([](size_t) {
    const auto fields = Fields();
    return std::count_if(fields.begin(), fields.end(),
                         [](const FieldInfo& field) { return FindField(field.name).field == &field; });
  });
  for (const auto count : counts) EXPECT_EQ(static_cast<size_t>(count), Fields().size());
}
