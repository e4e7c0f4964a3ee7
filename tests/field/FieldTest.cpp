#include "VIFField.h"

#include "support/Random.h"
#include "support/RunTimeErrorOf.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <regex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using namespace std::string_literals;
using testsupport::RunTimeErrorOf;

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr VifIndexNumber kAnyNumber = CVIFField::INDEX_NOT_SPECIFIED;
constexpr std::uint64_t kUnset64 = CVIFField::VIF_VALUE_UNSET_64;
constexpr std::uint32_t kUnset32 = CVIFField::VIF_VALUE_UNSET;

static_assert(CVIFField::MAX_INDEX_DEPTH == 3);
static_assert(CVIFField::INDEX_NOT_SPECIFIED == 0xFFFFFFFFFFFFFFFF);
static_assert(CVIFField::UNSPECIFIED_INDEX == VifIndex{eVifLocUnset, 0xFFFFFFFFFFFFFFFF});
static_assert(CVIFField::VIF_VALUE_UNSET_64 == 0xFFFFFFFFFFFFFFFF);
static_assert(CVIFField::VIF_VALUE_UNSET == 0xFFFFFFFF);
static_assert(std::is_same_v<decltype(CVIFField::MAX_INDEX_DEPTH), const std::size_t>);
static_assert(std::is_same_v<decltype(CVIFField::INDEX_NOT_SPECIFIED), const VifIndexNumber>);
static_assert(std::is_same_v<decltype(CVIFField::UNSPECIFIED_INDEX), const VifIndex>);
static_assert(std::is_same_v<decltype(CVIFField::VIF_VALUE_UNSET_64), const std::uint64_t>);
static_assert(std::is_same_v<decltype(CVIFField::VIF_VALUE_UNSET), const std::uint32_t>);
static_assert(std::is_same_v<VifIndex, std::tuple<EVifLocation, std::uint64_t>>);

// ComponentIndex is the one accessor that a constant field does not have.
static_assert(std::is_invocable_r_v<VifIndexNumber, decltype(&CVIFField::ComponentIndex), CVIFField&>);
static_assert(!std::is_invocable_v<decltype(&CVIFField::ComponentIndex), const CVIFField&>);
static_assert(requires(const CVIFField& field, const Slots& query) {
  field.Name();
  field.Value();
  field.Description();
  field.IsNumeric();
  field.Indexes();
  field.IndexCount();
  field.Index(eVifLocComponent);
  field.HasIndex(eVifLocComponent);
  field.GetULongNumericValue();
  field.GetNumericValue();
  field.Match(nullptr, kUnused, kUnused, kUnused);
  field.Match(nullptr, query);
  field.MakeOutputString();
});
static_assert(std::is_same_v<decltype(std::declval<const CVIFField&>().Indexes()), const Slots&>);
static_assert(std::is_same_v<decltype(std::declval<const CVIFField&>().MakeOutputString()), CSafeString>);
static_assert(std::is_nothrow_move_constructible_v<CVIFField>);
static_assert(std::is_nothrow_move_assignable_v<CVIFField>);

// Too long for the small-string buffer.
const std::string kLongName(200, 'N');

/// A numeric field with that value.
CVIFField Number(const std::string& value) { return {true, "Number", value, kUnused, kUnused, kUnused}; }

/// The number that a numeric field reads from the text.
std::uint64_t NumberOf(const std::string& value) { return Number(value).GetULongNumericValue(); }

/// A field of that name without a location.
CVIFField Named(const std::string& name) { return {false, name, "", kUnused, kUnused, kUnused}; }

bool NameMatches(const std::string& name, const char* pattern) {
  return Named(name).Match(pattern, kUnused, kUnused, kUnused);
}

/// The voltage of source PDO 3 of component 1.
CVIFField Voltage() {
  return {true, "Src_PDO_Voltage", "100", "5 V", {eVifLocComponent, 1}, {eVifLocSrcPdo, 3}, kUnused};
}

// Construction

TEST(DefaultField, HasNoTexts) {
  const CVIFField field;
  EXPECT_STREQ(field.Name(), "");
  EXPECT_STREQ(field.Value(), "");
  EXPECT_STREQ(field.Description(), "");
}

TEST(DefaultField, IsNumericWithTheUnsetValue) {
  const CVIFField field;
  EXPECT_TRUE(field.IsNumeric());
  EXPECT_EQ(field.GetULongNumericValue(), 0xFFFFFFFFFFFFFFFFU);
  EXPECT_EQ(field.GetNumericValue(), 0xFFFFFFFFU);
}

TEST(DefaultField, UsesNoSlot) {
  CVIFField field;
  EXPECT_EQ(field.Indexes(), (Slots{kUnused, kUnused, kUnused}));
  EXPECT_EQ(field.IndexCount(), 0U);
  EXPECT_EQ(field.ComponentIndex(), 0xFFFFFFFFFFFFFFFEU);
}

TEST(DefaultField, PrintsAsAnEqualsSign) { EXPECT_STREQ(CVIFField().MakeOutputString().get(), "="); }

TEST(Field, WithoutDescriptionRepeatsItsValueThere) {
  const Slots slots = {{{eVifLocComponent, 1}, {eVifLocSrcPdo, 2}, kUnused}};
  const CVIFField fromArray(true, "name", "12 V", slots);
  const CVIFField fromSlots(true, "name", "12 V", slots[0], slots[1], slots[2]);
  EXPECT_STREQ(fromArray.Description(), "12 V");
  EXPECT_STREQ(fromSlots.Description(), "12 V");
}

TEST(Field, KeepsADescriptionOfItsOwn) {
  const Slots slots = {{{eVifLocComponent, 1}, {eVifLocSrcPdo, 2}, kUnused}};
  const CVIFField fromArray(true, "name", "12", "twelve", slots);
  const CVIFField fromSlots(true, "name", "12", "twelve", slots[0], slots[1], slots[2]);
  EXPECT_STREQ(fromArray.Description(), "twelve");
  EXPECT_STREQ(fromSlots.Description(), "twelve");
  EXPECT_STREQ(CVIFField(true, "name", "12", "", slots).Description(), "");
}

TEST(Field, HoldsTheArgumentsOfEveryConstructor) {
  const Slots slots = {{{eVifLocComponent, 1}, {eVifLocSopSvid, 2}, {eVifLocSopSvidMode, 3}}};
  for (const bool isNumeric : {true, false}) {
    for (const CVIFField& field :
         {CVIFField(isNumeric, "name", "12", slots), CVIFField(isNumeric, "name", "12", slots[0], slots[1], slots[2]),
          CVIFField(isNumeric, "name", "12", "12", slots),
          CVIFField(isNumeric, "name", "12", "12", slots[0], slots[1], slots[2])}) {
      EXPECT_STREQ(field.Name(), "name");
      EXPECT_STREQ(field.Value(), "12");
      EXPECT_STREQ(field.Description(), "12");
      EXPECT_EQ(field.IsNumeric(), isNumeric);
      EXPECT_EQ(field.Indexes(), slots);
      EXPECT_EQ(field.GetNumericValue(), isNumeric ? 12 : kUnset32);
    }
  }
}

/// A random text, like real values or unlike them.
std::string RandomText(std::mt19937_64& generator) {
  const std::array texts = {""s,
                            "12"s,
                            "0x1Fz"s,
                            "YES"s,
                            "false"s,
                            "no\0"s,
                            "1\0002"s,
                            "\0007"s,
                            "12 V"s,
                            " 5"s,
                            "Text"s,
                            "\xFF\x80"s,
                            "0x"s,
                            "18446744073709551616"s,
                            kLongName,
                            "9\0"s + kLongName,
                            kLongName + "\0x"s};
  return texts[testsupport::RandomBelow(generator, texts.size())];
}

TEST(Field, HoldsTheSameWhetherItMovesOrCopiesItsTexts) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  const Slots slots = {{{eVifLocComponent, 1}, {eVifLocSrcPdo, 2}, kUnused}};
  for (int i = 0; i < 2000; ++i) {
    const bool isNumeric = testsupport::RandomBelow(generator, 2) == 0;
    std::string name = RandomText(generator);
    std::string value = RandomText(generator);
    std::string description = RandomText(generator);
    const CVIFField copied(isNumeric, name, value, description, slots);
    const CVIFField taken(isNumeric, std::move(name), std::move(value), std::move(description), slots);
    ASSERT_STREQ(taken.Name(), copied.Name());
    ASSERT_STREQ(taken.Value(), copied.Value());
    ASSERT_STREQ(taken.Description(), copied.Description());
    ASSERT_EQ(taken.IsNumeric(), isNumeric);
    ASSERT_EQ(taken.Indexes(), slots);
    ASSERT_EQ(taken.GetNumericValue(), copied.GetNumericValue()) << copied.Value();
    if (!isNumeric) continue;
    ASSERT_EQ(taken.GetULongNumericValue(), copied.GetULongNumericValue()) << copied.Value();
  }
}

TEST(Field, MovesTextsWithoutCopyingThem) {
  std::string name = kLongName;
  std::string value = kLongName;
  std::string description = kLongName;
  const std::array characters = {name.data(), value.data(), description.data()};
  const CVIFField field(false, std::move(name), std::move(value), std::move(description), {kUnused, kUnused, kUnused});
  EXPECT_EQ(field.Name(), characters[0]);
  EXPECT_EQ(field.Value(), characters[1]);
  EXPECT_EQ(field.Description(), characters[2]);
}

TEST(Field, DoesNotChangeTextsThatItMayNotMove) {
  std::string name = kLongName;
  const std::string value = kLongName;
  const CVIFField field(false, std::move(name), value, value, {kUnused, kUnused, kUnused});
  EXPECT_EQ(field.Value(), kLongName);
  EXPECT_EQ(field.Description(), kLongName);
  EXPECT_EQ(value, kLongName);
}

TEST(Field, OwnsItsTexts) {
  std::string name = "name";
  std::string value = "value";
  std::string description = "description";
  const CVIFField field(false, name, value, description, kUnused, kUnused, kUnused);
  name[0] = value[0] = description[0] = '?';
  EXPECT_STREQ(field.Name(), "name");
  EXPECT_STREQ(field.Value(), "value");
  EXPECT_STREQ(field.Description(), "description");
}

TEST(Field, KeepsTextsThatAreNotUtf8) {
  const CVIFField field(false, "\xFFn", "\x80v", "\xC3", kUnused, kUnused, kUnused);
  EXPECT_STREQ(field.Name(), "\xFFn");
  EXPECT_STREQ(field.Value(), "\x80v");
  EXPECT_STREQ(field.Description(), "\xC3");
}

// The numeric value

TEST(NumericValue, KnowsFourWords) {
  EXPECT_EQ(NumberOf("NO"), 0U);
  EXPECT_EQ(NumberOf("FALSE"), 0U);
  EXPECT_EQ(NumberOf("YES"), 1U);
  EXPECT_EQ(NumberOf("TRUE"), 1U);
}

TEST(NumericValue, KnowsTheFourWordsInAnyLetterCase) {
  for (const std::string& word : {"NO"s, "FALSE"s, "YES"s, "TRUE"s}) {
    for (unsigned mixture = 0; mixture < 1U << word.size(); ++mixture) {
      std::string text = word;
      for (std::size_t i = 0; i < text.size(); ++i) {
        if ((mixture >> i) % 2 == 1) text[i] = static_cast<char>(text[i] + 32);
      }
      EXPECT_EQ(NumberOf(text), NumberOf(word)) << text;
    }
  }
}

TEST(NumericValue, KnowsTheFourWordsOnlyAsTheWholeText) {
  for (const std::string& text :
       {"NOT"s, "Y"s, "YES "s, " YES"s, "TRUEFALSE"s, "FALS"s, "YES."s, "N0"s, "NO}"s, "YE{"s, "YES\0"s}) {
    EXPECT_EQ(NumberOf(text), kUnset64) << text;
  }
}

TEST(NumericValue, ReadsDecimalText) {
  EXPECT_EQ(NumberOf("0"), 0U);
  EXPECT_EQ(NumberOf("42"), 42U);
  EXPECT_EQ(NumberOf("0042"), 42U);
  EXPECT_EQ(NumberOf("18446744073709551614"), 18446744073709551614U);
  EXPECT_EQ(NumberOf(std::string(100, '0') + "7"), 7U);
}

TEST(NumericValue, ReadsHexadecimalTextAfterItsPrefix) {
  EXPECT_EQ(NumberOf("0x1F"), 31U);
  EXPECT_EQ(NumberOf("0X1f"), 31U);
  EXPECT_EQ(NumberOf("0xabcdefABCDEF"), 0xABCDEFABCDEFU);
  EXPECT_EQ(NumberOf("0x000000000000000000001"), 1U);
  EXPECT_EQ(NumberOf("0xFFFFFFFFFFFFFFFE"), 0xFFFFFFFFFFFFFFFEU);
}

TEST(NumericValue, StopsAtTheFirstCharacterThatIsNotADigit) {
  EXPECT_EQ(NumberOf("12 V"), 12U);
  EXPECT_EQ(NumberOf("0x1F;"), 31U);
  EXPECT_EQ(NumberOf("12.75"), 12U);
  EXPECT_EQ(NumberOf("1e3"), 1U);
  EXPECT_EQ(NumberOf("12A"), 12U);
  EXPECT_EQ(NumberOf("0x12G"), 18U);
  EXPECT_EQ(NumberOf("0x0x5"), 0U);
  EXPECT_EQ(NumberOf("00x5"), 0U);
  EXPECT_EQ(NumberOf("0b101"), 0U);
  EXPECT_EQ(NumberOf("7\xC2\xB2"), 7U);
  EXPECT_EQ(NumberOf("7\0008"s), 7U);
}

TEST(NumericValue, IsUnsetForEmptyText) { EXPECT_EQ(NumberOf(""), kUnset64); }

TEST(NumericValue, IsUnsetForThePrefixAlone) {
  EXPECT_EQ(NumberOf("0x"), kUnset64);
  EXPECT_EQ(NumberOf("0X"), kUnset64);
  EXPECT_EQ(NumberOf("0xG"), kUnset64);
  EXPECT_EQ(NumberOf("0x 1"), kUnset64);
}

TEST(NumericValue, IsUnsetForALeadingBlank) {
  EXPECT_EQ(NumberOf(" 5"), kUnset64);
  EXPECT_EQ(NumberOf("\t5"), kUnset64);
  EXPECT_EQ(NumberOf(" 0x5"), kUnset64);
  EXPECT_EQ(NumberOf(" NO"), kUnset64);
}

TEST(NumericValue, IsUnsetForALeadingSign) {
  EXPECT_EQ(NumberOf("-5"), kUnset64);
  EXPECT_EQ(NumberOf("+5"), kUnset64);
  EXPECT_EQ(NumberOf("0x-5"), kUnset64);
  EXPECT_EQ(NumberOf("0x+5"), kUnset64);
}

TEST(NumericValue, IsUnsetForTextThatDoesNotStartWithADigit) {
  EXPECT_EQ(NumberOf("x10"), kUnset64);
  EXPECT_EQ(NumberOf("ABC"), kUnset64);
  EXPECT_EQ(NumberOf("\xD9\xA3"), kUnset64);
}

TEST(NumericValue, IsUnsetForMoreThan64Bits) {
  EXPECT_EQ(NumberOf("18446744073709551616"), kUnset64);
  EXPECT_EQ(NumberOf("99999999999999999999999999999 V"), kUnset64);
  EXPECT_EQ(NumberOf("0x10000000000000000"), kUnset64);
  EXPECT_EQ(NumberOf("0x" + std::string(1000, 'F')), kUnset64);
}

TEST(NumericValue, CannotTellTheLargestNumberFromUnset) {
  EXPECT_EQ(NumberOf("18446744073709551615"), kUnset64);
  EXPECT_EQ(NumberOf("0xFFFFFFFFFFFFFFFF"), kUnset64);
  EXPECT_EQ(Number("18446744073709551615").GetNumericValue(), kUnset32);
}

TEST(NumericValue, ReturnsItsLow32Bits) {
  EXPECT_EQ(Number("100").GetNumericValue(), 100U);
  EXPECT_EQ(NumberOf("0x100000005"), 4294967301U);
  EXPECT_EQ(Number("0x100000005").GetNumericValue(), 5U);
  EXPECT_EQ(Number("4294967296").GetNumericValue(), 0U);
  EXPECT_EQ(Number("0xFFFFFFFFFFFFFFFE").GetNumericValue(), 0xFFFFFFFEU);
  EXPECT_EQ(Number("0x1FFFFFFFF").GetNumericValue(), 0xFFFFFFFFU);
}

TEST(NumericValue, ReturnsTheUnset32BitsForTextThatIsNotANumber) {
  EXPECT_EQ(Number("ABC").GetNumericValue(), kUnset32);
  EXPECT_EQ(Number("18446744073709551616").GetNumericValue(), kUnset32);
}

TEST(NumericValue, IsUnsetForAFieldThatIsNotNumeric) {
  for (const std::string& value : {"No"s, "false"s, "YES"s, "True"s, "12"s, "0x1F"s, ""s}) {
    const CVIFField field(false, "Text", value, kUnused, kUnused, kUnused);
    EXPECT_EQ(field.GetNumericValue(), kUnset32) << value;
    EXPECT_EQ(RunTimeErrorOf([&] { field.GetULongNumericValue(); }), "Field 'Text' is not Numeric.") << value;
  }
}

TEST(NumericValue, ThrowsWhatEveryHandlerCatches) {
  const CVIFField field(false, "Vendor_Name", "ABC", kUnused, kUnused, kUnused);
  EXPECT_THROW(field.GetULongNumericValue(), CZoRunTimeException);
  EXPECT_THROW(field.GetULongNumericValue(), CZoException);
  EXPECT_THROW(field.GetULongNumericValue(), std::runtime_error);
  EXPECT_THROW(field.GetULongNumericValue(), std::exception);
}

TEST(NumericValue, NamesAnyFieldInItsError) {
  for (const std::string& name : {""s, "%s%n%d"s, "\xFF\x80"s, std::string(100'000, 'n')}) {
    const CVIFField field(false, name, "", kUnused, kUnused, kUnused);
    EXPECT_EQ(RunTimeErrorOf([&] { field.GetULongNumericValue(); }), "Field '" + name + "' is not Numeric.");
  }
}

/// Reads a number digit by digit.
std::uint64_t NumberDigitByDigit(std::string text) {
  for (char& c : text) {
    if (std::string_view("abcdefghijklmnopqrstuvwxyz").find(c) != std::string_view::npos) c = static_cast<char>(c - 32);
  }
  if (text == "NO" || text == "FALSE") return 0;
  if (text == "YES" || text == "TRUE") return 1;
  const bool isHexadecimal = text.starts_with("0X");
  const std::string_view digits = isHexadecimal ? "0123456789ABCDEF" : "0123456789";
  std::optional<std::uint64_t> number;
  for (std::size_t i = isHexadecimal ? 2 : 0; i < text.size(); ++i) {
    const std::size_t digit = digits.find(text[i]);
    if (digit == std::string_view::npos) break;
    const std::uint64_t before = number.value_or(0);
    if (before > (std::numeric_limits<std::uint64_t>::max() - digit) / digits.size()) return kUnset64;
    number = before * digits.size() + digit;
  }
  return number.value_or(kUnset64);
}

TEST(NumericValue, AgreesWithReadingDigitByDigit) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  constexpr std::string_view beginnings[] = {"",  "0x",  "0X", "184467440737095516", "0xFFFFFFFFFFFFFFF",
                                             "n", "tru", "-"};
  constexpr std::string_view characters = "0123456789012345678901234567890123456789abcdefABCDEFxXeEoOsS -+.;\xC3";
  for (int i = 0; i < 100'000; ++i) {
    std::string text(beginnings[testsupport::RandomBelow(generator, std::size(beginnings))]);
    for (std::size_t rest = testsupport::RandomBelow(generator, 12); rest > 0; --rest) {
      text += characters[testsupport::RandomBelow(generator, characters.size())];
    }
    ASSERT_EQ(NumberOf(text), NumberDigitByDigit(text)) << text;
  }
}

// Copying and moving

TEST(Field, CopiesAllMembers) {
  const CVIFField original = Voltage();
  const CVIFField constructed(original);
  CVIFField assigned(false, kLongName, kLongName, kUnused, kUnused, kUnused);
  assigned = original;
  for (const CVIFField& copy : {constructed, assigned}) {
    EXPECT_STREQ(copy.Name(), "Src_PDO_Voltage");
    EXPECT_STREQ(copy.Value(), "100");
    EXPECT_STREQ(copy.Description(), "5 V");
    EXPECT_TRUE(copy.IsNumeric());
    EXPECT_EQ(copy.Indexes(), original.Indexes());
    EXPECT_EQ(copy.GetULongNumericValue(), 100U);
  }
}

TEST(Field, CopiesAreIndependent) {
  CVIFField original(true, kLongName, "100", {eVifLocVif, 0}, kUnused, kUnused);
  const CVIFField copy(original);
  original = CVIFField();
  EXPECT_EQ(copy.Name(), kLongName);
  EXPECT_EQ(copy.GetULongNumericValue(), 100U);
  EXPECT_EQ(copy.IndexCount(), 1U);
}

TEST(Field, CopyAssignmentLeavesTheSourceAlone) {
  CVIFField source = Voltage();
  CVIFField target(false, kLongName, "text", kUnused, kUnused, kUnused);
  target = source;
  EXPECT_STREQ(source.Name(), "Src_PDO_Voltage");
  EXPECT_STREQ(source.Value(), "100");
  EXPECT_STREQ(source.Description(), "5 V");
  EXPECT_EQ(source.Indexes(), Voltage().Indexes());
}

TEST(Field, MoveConstructionTakesTheTextsAndCopiesTheRest) {
  CVIFField source(true, kLongName, "100", "hundred", {eVifLocComponent, 1}, {eVifLocSrcPdo, 2}, kUnused);
  const CVIFField target(std::move(source));
  EXPECT_EQ(target.Name(), kLongName);
  EXPECT_STREQ(target.Value(), "100");
  EXPECT_STREQ(target.Description(), "hundred");
  EXPECT_TRUE(target.IsNumeric());
  EXPECT_EQ(target.GetULongNumericValue(), 100U);
  EXPECT_EQ(target.Index(eVifLocSrcPdo), 2U);

  EXPECT_STREQ(source.Name(), "");
  EXPECT_STREQ(source.Value(), "");
  EXPECT_STREQ(source.Description(), "");
  EXPECT_TRUE(source.IsNumeric());
  EXPECT_EQ(source.GetULongNumericValue(), 100U);
  EXPECT_EQ(source.Indexes(), target.Indexes());
}

TEST(Field, MovesItsTextsWhenAListOfFieldsGrows) {
  std::vector<CVIFField> fields(1, CVIFField(false, kLongName, kLongName, kUnused, kUnused, kUnused));
  const char* name = fields.front().Name();
  const char* value = fields.front().Value();
  const char* description = fields.front().Description();
  const CVIFField* before = fields.data();
  fields.reserve(2 * fields.capacity());
  ASSERT_NE(fields.data(), before);
  EXPECT_EQ(fields.front().Name(), name);
  EXPECT_EQ(fields.front().Value(), value);
  EXPECT_EQ(fields.front().Description(), description);
}

TEST(Field, MoveAssignmentGivesTheTargetAllOfTheSource) {
  CVIFField source = Voltage();
  CVIFField target(false, "Vendor_Name", "ABC", "vendor", {eVifLocVif, 0}, kUnused, kUnused);
  target = std::move(source);
  EXPECT_STREQ(target.Name(), "Src_PDO_Voltage");
  EXPECT_STREQ(target.Value(), "100");
  EXPECT_STREQ(target.Description(), "5 V");
  EXPECT_TRUE(target.IsNumeric());
  EXPECT_EQ(target.Indexes(), Voltage().Indexes());
  EXPECT_EQ(target.GetULongNumericValue(), 100U);
}

TEST(Field, MoveAssignmentLeavesTheSourceTheTargetsTextsAndSlots) {
  CVIFField source = Voltage();
  CVIFField target(false, kLongName, "ABC", "vendor", {eVifLocVif, 7}, kUnused, {eVifLocProduct, 8});
  const Slots targetSlots = target.Indexes();
  target = std::move(source);
  EXPECT_EQ(source.Name(), kLongName);
  EXPECT_STREQ(source.Value(), "ABC");
  EXPECT_STREQ(source.Description(), "vendor");
  EXPECT_EQ(source.Indexes(), targetSlots);
}

TEST(Field, MoveAssignmentLeavesTheSourceItsOwnFlagAndNumber) {
  CVIFField numeric = Voltage();
  CVIFField textual(false, "Vendor_Name", "ABC", kUnused, kUnused, kUnused);
  textual = std::move(numeric);
  EXPECT_TRUE(numeric.IsNumeric());
  EXPECT_EQ(numeric.GetULongNumericValue(), 100U);
  EXPECT_STREQ(numeric.Name(), "Vendor_Name");

  CVIFField otherTextual(false, "Model_Part_Number", "7", kUnused, kUnused, kUnused);
  CVIFField otherNumeric = Number("5");
  otherNumeric = std::move(otherTextual);
  EXPECT_FALSE(otherTextual.IsNumeric());
  EXPECT_EQ(otherTextual.GetNumericValue(), kUnset32);
  EXPECT_FALSE(otherNumeric.IsNumeric());
  EXPECT_EQ(otherNumeric.GetNumericValue(), kUnset32);
}

TEST(Field, CopyingTransfersTheNumberWithoutReadingTheValueAgain) {
  CVIFField source = Number("100");
  CVIFField target = Number("5");
  target = std::move(source);
  // The source's text now says another number than the one that it stores.
  ASSERT_STREQ(source.Value(), "5");
  const CVIFField constructed(source);
  CVIFField assigned;
  assigned = source;
  EXPECT_EQ(constructed.GetULongNumericValue(), 100U);
  EXPECT_EQ(assigned.GetULongNumericValue(), 100U);
  const CVIFField moved(std::move(source));
  EXPECT_STREQ(moved.Value(), "5");
  EXPECT_EQ(moved.GetULongNumericValue(), 100U);
}

TEST(Field, AssigningItToItselfChangesNothing) {
  CVIFField field(true, kLongName, "100", "5 V", {eVifLocComponent, 1}, {eVifLocSrcPdo, 3}, kUnused);
  CVIFField& same = field;
  field = same;
  field = std::move(same);
  EXPECT_EQ(field.Name(), kLongName);
  EXPECT_STREQ(field.Value(), "100");
  EXPECT_STREQ(field.Description(), "5 V");
  EXPECT_TRUE(field.IsNumeric());
  EXPECT_EQ(field.Indexes(), Voltage().Indexes());
  EXPECT_EQ(field.GetULongNumericValue(), 100U);
}

TEST(Field, MovedFromFieldMayBeAssignedAgain) {
  CVIFField source = Voltage();
  const CVIFField target(std::move(source));
  source = target;
  EXPECT_STREQ(source.Name(), "Src_PDO_Voltage");
  source = Number("5");
  EXPECT_EQ(source.GetULongNumericValue(), 5U);
}

TEST(Field, SwapsWithAnother) {
  CVIFField a = Voltage();
  CVIFField b(false, "Vendor_Name", "ABC", {eVifLocVif, 0}, kUnused, kUnused);
  std::swap(a, b);
  EXPECT_STREQ(a.MakeOutputString().get(), "Vendor_Name=\"ABC\"");
  EXPECT_EQ(a.GetNumericValue(), kUnset32);
  EXPECT_TRUE(a.HasIndex(eVifLocVif));
  EXPECT_STREQ(b.MakeOutputString().get(), "Src_PDO_Voltage=100");
  EXPECT_EQ(b.GetNumericValue(), 100U);
  EXPECT_TRUE(b.HasIndex(eVifLocSrcPdo));
}

TEST(Field, ReturnsTheSameTextsUntilItIsChanged) {
  const CVIFField field = Voltage();
  EXPECT_EQ(field.Name(), field.Name());
  EXPECT_EQ(field.Value(), field.Value());
  EXPECT_EQ(field.Description(), field.Description());
  EXPECT_EQ(&field.Indexes(), &field.Indexes());
}

// Slots

TEST(IndexCount, CountsTheSlotsInUse) {
  EXPECT_EQ(CVIFField(true, "", "", kUnused, kUnused, kUnused).IndexCount(), 0U);
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocVif, 0}, kUnused, kUnused).IndexCount(), 1U);
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocComponent, 1}, kUnused, {eVifLocSrcPdo, 1}).IndexCount(), 2U);
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocVif, 0}, {eVifLocVif, 0}, {eVifLocVif, 0}).IndexCount(), 3U);
}

TEST(IndexCount, DependsOnLocationsAndNotOnNumbers) {
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocUnset, 5}, {eVifLocVif, kAnyNumber}, kUnused).IndexCount(), 1U);
}

TEST(Index, IsTheNumberAtTheLocation) {
  EXPECT_EQ(Voltage().Index(eVifLocComponent), 1U);
  EXPECT_EQ(Voltage().Index(eVifLocSrcPdo), 3U);
}

TEST(Index, IsThatOfTheFirstOfSeveralSlots) {
  const CVIFField field(true, "", "", kUnused, {eVifLocSrcPdo, 8}, {eVifLocSrcPdo, 9});
  EXPECT_EQ(field.Index(eVifLocSrcPdo), 8U);
}

TEST(Index, IsNotSpecifiedWithoutSuchASlot) { EXPECT_EQ(Voltage().Index(eVifLocSnkPdo), kAnyNumber); }

TEST(Index, IsNotSpecifiedForASlotWithoutNumber) {
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocSrcPdo, kAnyNumber}, kUnused, kUnused).Index(eVifLocSrcPdo), kAnyNumber);
}

TEST(Index, IsNotSpecifiedForNoLocation) {
  EXPECT_EQ(Voltage().Index(eVifLocUnset), kAnyNumber);
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocUnset, 5}, kUnused, kUnused).Index(eVifLocUnset), kAnyNumber);
}

TEST(HasIndex, FindsALocationInAnySlot) {
  const CVIFField field(true, "", "", {eVifLocProduct, 0}, {eVifLocRouter, 1}, {eVifLocRouterPcie, kAnyNumber});
  EXPECT_TRUE(field.HasIndex(eVifLocProduct));
  EXPECT_TRUE(field.HasIndex(eVifLocRouter));
  EXPECT_TRUE(field.HasIndex(eVifLocRouterPcie));
  EXPECT_FALSE(field.HasIndex(eVifLocComponent));
}

TEST(HasIndex, ForNoLocationTellsWhetherASlotIsUnused) {
  EXPECT_TRUE(Voltage().HasIndex(eVifLocUnset));
  EXPECT_TRUE(CVIFField().HasIndex(eVifLocUnset));
  EXPECT_TRUE(CVIFField(true, "", "", {eVifLocUnset, 5}, {eVifLocVif, 0}, {eVifLocVif, 0}).HasIndex(eVifLocUnset));
  EXPECT_FALSE(CVIFField(true, "", "", {eVifLocVif, 0}, {eVifLocVif, 0}, {eVifLocVif, 0}).HasIndex(eVifLocUnset));
}

TEST(ComponentIndex, IsTheComponentsNumberMinusOne) {
  EXPECT_EQ(Voltage().ComponentIndex(), 0U);
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocProduct, 0}, kUnused, {eVifLocComponent, 5}).ComponentIndex(), 4U);
}

TEST(ComponentIndex, IsThatOfTheFirstOfSeveralSlots) {
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocComponent, 3}, {eVifLocComponent, 9}, kUnused).ComponentIndex(), 2U);
}

TEST(ComponentIndex, WrapsOutsideAnyComponent) {
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocVif, 0}, kUnused, kUnused).ComponentIndex(), 0xFFFFFFFFFFFFFFFEU);
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocComponent, kAnyNumber}, kUnused, kUnused).ComponentIndex(),
            0xFFFFFFFFFFFFFFFEU);
}

TEST(ComponentIndex, WrapsForComponentZero) {
  EXPECT_EQ(CVIFField(true, "", "", {eVifLocComponent, 0}, kUnused, kUnused).ComponentIndex(), 0xFFFFFFFFFFFFFFFFU);
}

// Match: locations

TEST(Match, AcceptsEveryFieldForTheEmptyQuery) {
  for (const CVIFField& field : {CVIFField(), Voltage(), Named("Vendor_Name")}) {
    EXPECT_TRUE(field.Match(nullptr, kUnused, kUnused, kUnused));
    EXPECT_TRUE(field.Match("", kUnused, kUnused, kUnused));
    EXPECT_TRUE(field.Match(nullptr, {kUnused, kUnused, kUnused}));
    EXPECT_TRUE(field.Match("", {kUnused, kUnused, kUnused}));
  }
}

TEST(Match, ComparesTheLocation) {
  EXPECT_TRUE(Voltage().Match(nullptr, {eVifLocComponent, kAnyNumber}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match(nullptr, {eVifLocSnkPdo, kAnyNumber}, kUnused, kUnused));
  EXPECT_FALSE(CVIFField().Match(nullptr, {eVifLocComponent, kAnyNumber}, kUnused, kUnused));
}

TEST(Match, ComparesTheNumber) {
  EXPECT_TRUE(Voltage().Match(nullptr, {eVifLocSrcPdo, 3}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match(nullptr, {eVifLocSrcPdo, 2}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match(nullptr, {eVifLocSrcPdo, 0}, kUnused, kUnused));
}

TEST(Match, ComparesAllBitsOfTheNumber) {
  EXPECT_FALSE(Voltage().Match(nullptr, {eVifLocSrcPdo, 0x100000003}, kUnused, kUnused));
}

TEST(Match, RequiresAllQuerySlotsToMatch) {
  EXPECT_TRUE(Voltage().Match(nullptr, {eVifLocComponent, 1}, {eVifLocSrcPdo, 3}, kUnused));
  EXPECT_FALSE(Voltage().Match(nullptr, {eVifLocComponent, 1}, {eVifLocSrcPdo, 4}, kUnused));
  EXPECT_FALSE(Voltage().Match(nullptr, {eVifLocComponent, 2}, {eVifLocSrcPdo, 3}, kUnused));
  EXPECT_FALSE(Voltage().Match(nullptr, kUnused, kUnused, {eVifLocSnkPdo, kAnyNumber}));
}

TEST(Match, ComparesSlotsByLocationAndNotByPosition) {
  EXPECT_TRUE(Voltage().Match(nullptr, {eVifLocSrcPdo, 3}, {eVifLocComponent, 1}, kUnused));
  const CVIFField field(true, "", "", {eVifLocProduct, 0}, {eVifLocRouter, 1}, {eVifLocRouterPcie, 2});
  EXPECT_TRUE(field.Match(nullptr, {eVifLocRouterPcie, 2}, kUnused, kUnused));
  EXPECT_TRUE(field.Match(nullptr, kUnused, kUnused, {eVifLocProduct, 0}));
}

TEST(Match, UsesTheFirstSlotWithTheLocation) {
  const CVIFField field(true, "", "", {eVifLocSrcPdo, 1}, {eVifLocSrcPdo, 2}, kUnused);
  EXPECT_TRUE(field.Match(nullptr, {eVifLocSrcPdo, 1}, kUnused, kUnused));
  EXPECT_FALSE(field.Match(nullptr, {eVifLocSrcPdo, 2}, kUnused, kUnused));
  EXPECT_TRUE(field.Match(nullptr, {eVifLocSrcPdo, kAnyNumber}, {eVifLocSrcPdo, 1}, kUnused));
}

TEST(Match, FindsASlotWithoutNumberOnlyByAnyNumber) {
  const CVIFField field(true, "", "", {eVifLocSrcPdo, kAnyNumber}, kUnused, kUnused);
  EXPECT_TRUE(field.Match(nullptr, {eVifLocSrcPdo, kAnyNumber}, kUnused, kUnused));
  EXPECT_FALSE(field.Match(nullptr, {eVifLocSrcPdo, 1}, kUnused, kUnused));
}

TEST(Match, TreatsAQuerySlotWithoutLocationAsAWildcardWhateverItsNumber) {
  EXPECT_TRUE(Voltage().Match(nullptr, {eVifLocUnset, 5}, kUnused, kUnused));
  const CVIFField full(true, "", "", {eVifLocVif, 0}, {eVifLocVif, 0}, {eVifLocVif, 0});
  EXPECT_TRUE(full.Match(nullptr, {eVifLocUnset, 5}, {eVifLocVif, 0}, kUnused));
}

TEST(Match, AcceptsTheQuerySlotsAsOneArray) {
  EXPECT_TRUE(Voltage().Match("Src.*", {{{eVifLocSrcPdo, 3}, kUnused, {eVifLocComponent, 1}}}));
  EXPECT_FALSE(Voltage().Match("Src.*", {{{eVifLocComponent, 2}, kUnused, kUnused}}));
  EXPECT_FALSE(Voltage().Match("Src.*", {{kUnused, {eVifLocComponent, 2}, kUnused}}));
  EXPECT_FALSE(Voltage().Match("Src.*", {{kUnused, kUnused, {eVifLocComponent, 2}}}));
  EXPECT_FALSE(Voltage().Match("Snk.*", {{kUnused, kUnused, kUnused}}));
}

// Match: names

TEST(Match, MatchesTheWholeName) {
  EXPECT_TRUE(NameMatches("Src_PDO_Voltage", "Src_PDO_Voltage"));
  EXPECT_FALSE(NameMatches("Src_PDO_Voltage", "Src_PDO"));
  EXPECT_FALSE(NameMatches("Src_PDO_Voltage", "PDO_Voltage"));
  EXPECT_FALSE(NameMatches("Src_PDO_Voltage", "Src_PDO_Voltage2"));
  EXPECT_TRUE(NameMatches("Src_PDO_Voltage", "Src_PDO_.*"));
  EXPECT_FALSE(NameMatches("Src_PDO_Voltage", "PDO_.*"));
}

TEST(Match, IgnoresLetterCase) {
  EXPECT_TRUE(NameMatches("SRC_PDO_VOLTAGE", "Src_PDO_Voltage"));
  EXPECT_TRUE(NameMatches("src_pdo_voltage", "SRC_[A-Z]+_VOLTAGE"));
}

TEST(Match, UnderstandsEcmaScript) {
  EXPECT_TRUE(NameMatches("SVID12", R"(SVID\d+)"));
  EXPECT_TRUE(NameMatches("Snk_PDO_Voltage", "(?:Src|Snk)_PDO_Voltage"));
  EXPECT_TRUE(NameMatches("Src_PDO_Voltage", "(?!Snk).*"));
  EXPECT_FALSE(NameMatches("Snk_PDO_Voltage", "(?!Snk).*"));
  EXPECT_TRUE(NameMatches("abab", R"((ab)\1)"));
  EXPECT_TRUE(NameMatches("a.b", R"(a\.b)"));
  EXPECT_FALSE(NameMatches("axb", R"(a\.b)"));
  EXPECT_TRUE(NameMatches("Vendor_Name", "^Vendor_Name$"));
}

TEST(Match, AcceptsAPatternThatMatchesTheEmptyName) {
  EXPECT_TRUE(CVIFField().Match(".*", kUnused, kUnused, kUnused));
  EXPECT_FALSE(CVIFField().Match("Vendor_Name", kUnused, kUnused, kUnused));
}

TEST(Match, ComparesLocationsAndName) {
  EXPECT_TRUE(Voltage().Match("src_.*", {eVifLocSrcPdo, 3}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match("src_.*", {eVifLocSrcPdo, 2}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match("snk_.*", {eVifLocSrcPdo, 3}, kUnused, kUnused));
}

TEST(Match, ThrowsTheErrorOfAnInvalidPatternWhenTheLocationsMatch) {
  std::vector<const char*> patterns = {"(", "[", "*", "a{2", "\\", "a)"};
#if !defined(_LIBCPP_VERSION)
  patterns.push_back("[z-a]");  // for libc++, a range that contains nothing
#endif
  for (const char* pattern : patterns) {
    EXPECT_THROW(Voltage().Match(pattern, kUnused, kUnused, kUnused), std::regex_error) << pattern;
    EXPECT_THROW(Voltage().Match(pattern, {eVifLocSrcPdo, 3}, kUnused, kUnused), std::regex_error) << pattern;
    EXPECT_THROW(Voltage().Match(pattern, {{kUnused, kUnused, kUnused}}), std::regex_error) << pattern;
  }
}

TEST(Match, IgnoresThePatternWhenTheLocationsDoNotMatch) {
  EXPECT_FALSE(Voltage().Match("(", {eVifLocSrcPdo, 2}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match("(", {eVifLocSnkPdo, kAnyNumber}, kUnused, kUnused));
  EXPECT_FALSE(Voltage().Match("(", kUnused, kUnused, {eVifLocSnkPdo, kAnyNumber}));
}

TEST(Match, AnswersOrThrowsOnLongNames) {
  const CVIFField field = Named(std::string(200'000, 'a'));
  try {
    EXPECT_TRUE(field.Match("(a|b)*", kUnused, kUnused, kUnused));
  } catch (const std::regex_error& error) {
    EXPECT_EQ(error.code(), std::regex_constants::error_stack);
  }
  EXPECT_FALSE(field.Match("Vendor_Name", kUnused, kUnused, kUnused));
}

// Output

TEST(MakeOutputString, PrintsANumericValueBare) {
  EXPECT_STREQ(CVIFField(true, "Num_Src_PDOs", "2", kUnused, kUnused, kUnused).MakeOutputString().get(),
               "Num_Src_PDOs=2");
}

TEST(MakeOutputString, QuotesAnyOtherValue) {
  EXPECT_STREQ(CVIFField(false, "Vendor_Name", "ABC", kUnused, kUnused, kUnused).MakeOutputString().get(),
               "Vendor_Name=\"ABC\"");
  EXPECT_STREQ(CVIFField(false, "", "", kUnused, kUnused, kUnused).MakeOutputString().get(), "=\"\"");
}

TEST(MakeOutputString, PrintsTheTextOfTheValueAndNotItsNumber) {
  EXPECT_STREQ(Number("0x1F;").MakeOutputString().get(), "Number=0x1F;");
  EXPECT_STREQ(Number("no number").MakeOutputString().get(), "Number=no number");
}

TEST(MakeOutputString, EscapesNothing) {
  EXPECT_STREQ(CVIFField(false, "a=\"b", "c\"d\\\n%s", kUnused, kUnused, kUnused).MakeOutputString().get(),
               "a=\"b=\"c\"d\\\n%s\"");
}

TEST(MakeOutputString, PrintsNeitherDescriptionNorSlots) {
  EXPECT_STREQ(Voltage().MakeOutputString().get(), "Src_PDO_Voltage=100");
}

// Threads

TEST(Field, MayBeReadByManyThreadsAtOnce) {
  const CVIFField numeric = Voltage();
  const CVIFField textual(false, "Vendor_Name", "ABC", kUnused, kUnused, kUnused);
  std::array<int, 8> right{};
  std::vector<std::thread> threads;
  for (int& count : right) {
    threads.emplace_back([&] {
      for (int i = 0; i < 200; ++i) {
        if (numeric.GetULongNumericValue() == 100 &&
            numeric.Match("src_pdo_.*", {eVifLocSrcPdo, 3}, kUnused, kUnused) &&
            numeric.MakeOutputString().get() == "Src_PDO_Voltage=100"s) {
          ++count;
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(right, (std::array<int, 8>{200, 200, 200, 200, 200, 200, 200, 200}));
}

TEST(Field, FailsInEveryThreadWithItsOwnMessage) {
  std::array<int, 8> right{};
  std::vector<std::thread> threads;
  for (std::size_t thread = 0; thread < right.size(); ++thread) {
    threads.emplace_back([&right, thread] {
      const std::string name = "Field_Of_Thread_" + std::to_string(thread);
      const CVIFField field(false, name, "ABC", kUnused, kUnused, kUnused);
      for (int i = 0; i < 200; ++i) {
        if (RunTimeErrorOf([&] { field.GetULongNumericValue(); }) == "Field '" + name + "' is not Numeric.") {
          ++right[thread];
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(right, (std::array<int, 8>{200, 200, 200, 200, 200, 200, 200, 200}));
}

}  // namespace
