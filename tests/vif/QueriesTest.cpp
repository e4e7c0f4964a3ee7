#include "QueryOutcome.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <regex>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testsupport::AppendEmptyComponents;
using testsupport::Count;
using testsupport::FieldText;
using testsupport::FieldTexts;
using testsupport::GetFields;
using testsupport::GetFirstFields;
using testsupport::GetFirstUniqueField;
using testsupport::GetSingleField;
using testsupport::GetUniqueField;
using testsupport::OutcomeOf;
using testsupport::OutcomesOfAllForms;
using testsupport::OutcomesOfFirstForms;
using testsupport::RunTimeErrorOf;
using testsupport::Slots;
using testsupport::TempDir;

constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr VifIndexNumber kAny = CVIFField::INDEX_NOT_SPECIFIED;
constexpr Slots kAnywhere = {kUnused, kUnused, kUnused};
const char* const kNoNarrow = nullptr;
const wchar_t* const kNoWide = nullptr;

VifIndex Component(std::uint64_t number) { return {eVifLocComponent, number}; }
VifIndex SrcPdo(std::uint64_t number) { return {eVifLocSrcPdo, number}; }
VifIndex SnkPdo(std::uint64_t number) { return {eVifLocSnkPdo, number}; }
VifIndex Product(std::uint64_t number) { return {eVifLocProduct, number}; }
VifIndex Router(std::uint64_t number) { return {eVifLocRouter, number}; }
VifIndex Endpoint(std::uint64_t number) { return {eVifLocRouterPcie, number}; }

CVIFField Field(const std::string& name, const std::string& value, const VifIndex& index1 = kUnused,
                const VifIndex& index2 = kUnused, const VifIndex& index3 = kUnused) {
  return {true, name, value, "", index1, index2, index3};
}

/// A charger with three source PDOs and a sink PDO in component 0, and one source PDO in component 1.
CVendorInfoFile Charger() {
  return CVendorInfoFile({Field("VIF_Specification", "3"), Field("Port_Label", "0", Component(0)),
                          Field("Src_PDO_Voltage", "100", Component(0), SrcPdo(1)),
                          Field("Src_PDO_Voltage", "180", Component(0), SrcPdo(2)),
                          Field("Src_PDO_Voltage", "240", Component(0), SrcPdo(3)),
                          Field("Snk_PDO_Voltage", "100", Component(0), SnkPdo(1)),
                          Field("Src_PDO_Voltage", "400", Component(1), SrcPdo(1))});
}

/// An object with `componentCount` components without fields of their own, and these fields.
CVendorInfoFile WithComponents(std::size_t componentCount, const std::vector<CVIFField>& fields) {
  const TempDir dir;
  CVendorInfoFile vif;
  AppendEmptyComponents(vif, componentCount, dir.Write("empty.txt", "").string());
  vif.Append(fields);
  return vif;
}

std::vector<std::string> Texts(const VifFieldList& list) { return FieldTexts(*list); }

/// The values of the fields, which identify them in most tests.
std::vector<std::string> Values(const VifFieldList& list) {
  std::vector<std::string> values;
  for (const CVIFField& field : *list) values.emplace_back(field.Value());
  return values;
}

/// The outcomes of a query for any name and the slots, in every way that the query can say "any name".
template <typename Ask>
std::vector<std::string> OutcomesForAnyName(const Slots& slots, const Ask& ask) {
  const auto ofPattern = [&](const auto& pattern) {
    return std::vector{OutcomeOf([&] { return ask(pattern, slots[0], slots[1], slots[2]); }),
                       OutcomeOf([&] { return ask(pattern, slots); })};
  };
  std::vector<std::string> outcomes;
  for (const auto& pair :
       {ofPattern(nullptr), ofPattern(kNoNarrow), ofPattern(kNoWide), ofPattern(""), ofPattern(L"")}) {
    outcomes.insert(outcomes.end(), pair.begin(), pair.end());
  }
  return outcomes;
}

template <typename Ask>
std::vector<std::string> FirstOutcomesForAnyName(const VifIndex& index2, const VifIndex& index3, const Ask& ask) {
  const auto ofPattern = [&](const auto& pattern) { return OutcomeOf([&] { return ask(pattern, index2, index3); }); };
  return {ofPattern(nullptr), ofPattern(kNoNarrow), ofPattern(kNoWide), ofPattern(""), ofPattern(L"")};
}

// The interface.

static_assert(std::is_same_v<decltype(std::declval<const CVendorInfoFile&>().GetFields()), VifFieldList>);
static_assert(std::is_same_v<decltype(std::declval<const CVendorInfoFile&>().ComponentCount()), std::uint32_t>);
static_assert(std::is_same_v<decltype(std::declval<const CVendorInfoFile&>().GetSingleField(nullptr, kAnywhere)),
                             std::tuple<CVIFField, bool>>);
static_assert(std::is_same_v<VifFieldList::element_type, std::vector<CVIFField>>);
static_assert(std::is_invocable_r_v<void, VifFieldList::deleter_type, std::vector<CVIFField>*>);
static_assert(!std::is_copy_constructible_v<VifFieldList>);

// Count

TEST(Count, OfAnEmptyObjectIsZero) {
  const CVendorInfoFile vif;
  EXPECT_EQ(vif.Count(), 0U);
  EXPECT_THAT(OutcomesForAnyName(kAnywhere, Count(vif)), Each("0"));
  EXPECT_THAT(OutcomesOfAllForms(".*", kAnywhere, Count(vif)), Each("0"));
}

TEST(Count, ForTheEmptyQueryIsTheNumberOfFields) {
  const CVendorInfoFile vif = Charger();
  EXPECT_EQ(vif.Count(), 7U);
  EXPECT_THAT(OutcomesForAnyName(kAnywhere, Count(vif)), Each("7"));
}

TEST(Count, AcceptsALiteralNull) {
  EXPECT_EQ(Charger().Count(nullptr, kAnywhere), 7U);
  EXPECT_EQ(Charger().Count(nullptr, Component(1), kUnused, kUnused), 1U);
}

TEST(Count, CountsTheMatchingFieldsInEveryForm) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Src_PDO_Voltage", kAnywhere, Count(vif)), Each("4"));
  EXPECT_THAT(OutcomesOfAllForms("src_pdo_VOLTAGE", {Component(0), kUnused, kUnused}, Count(vif)), Each("3"));
  EXPECT_THAT(OutcomesOfAllForms("S.*_PDO_.*", {Component(0), kUnused, kUnused}, Count(vif)), Each("4"));
  EXPECT_THAT(OutcomesOfAllForms("Src_PDO", kAnywhere, Count(vif)), Each("0"));
  EXPECT_THAT(OutcomesForAnyName({Component(0), kUnused, kUnused}, Count(vif)), Each("5"));
}

// GetFields

TEST(GetFields, OfAnEmptyObjectIsAnEmptyList) {
  const CVendorInfoFile vif;
  ASSERT_NE(vif.GetFields(), nullptr);
  EXPECT_THAT(*vif.GetFields(), IsEmpty());
  EXPECT_THAT(OutcomesForAnyName(kAnywhere, GetFields(vif)), Each(""));
}

TEST(GetFields, WithoutAMatchIsAnEmptyList) {
  const CVendorInfoFile vif = Charger();
  ASSERT_NE(vif.GetFields("None", kAnywhere), nullptr);
  EXPECT_THAT(OutcomesOfAllForms("None", kAnywhere, GetFields(vif)), Each(""));
  EXPECT_THAT(OutcomesForAnyName({Component(7), kUnused, kUnused}, GetFields(vif)), Each(""));
}

TEST(GetFields, WithoutArgumentsReturnsAllFieldsInTheOrderOfTheFile) {
  EXPECT_THAT(Texts(Charger().GetFields()),
              ElementsAre("VIF_Specification=3", "Port_Label=0 @6.0", "Src_PDO_Voltage=100 @6.0 @7.1",
                          "Src_PDO_Voltage=180 @6.0 @7.2", "Src_PDO_Voltage=240 @6.0 @7.3",
                          "Snk_PDO_Voltage=100 @6.0 @8.1", "Src_PDO_Voltage=400 @6.1 @7.1"));
}

TEST(GetFields, ForTheEmptyQueryReturnsAllFields) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesForAnyName(kAnywhere, GetFields(vif)), Each(OutcomeOf([&] { return vif.GetFields(); })));
}

TEST(GetFields, AcceptsALiteralNull) {
  EXPECT_THAT(Values(Charger().GetFields(nullptr, SrcPdo(1), kUnused, kUnused)), ElementsAre("100", "400"));
  EXPECT_THAT(Values(Charger().GetFields(nullptr, Slots{SrcPdo(1), kUnused, kUnused})), ElementsAre("100", "400"));
}

TEST(GetFields, ReturnsTheMatchingFieldsInTheOrderOfTheFileInEveryForm) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Src_PDO_Voltage", {SrcPdo(1), kUnused, kUnused}, GetFields(vif)),
              Each("[Src_PDO_Voltage=100 @6.0 @7.1][Src_PDO_Voltage=400 @6.1 @7.1]"));
  EXPECT_THAT(OutcomesOfAllForms("(src|snk)_pdo_.*", {kUnused, Component(0), kUnused}, GetFields(vif)),
              Each("[Src_PDO_Voltage=100 @6.0 @7.1][Src_PDO_Voltage=180 @6.0 @7.2][Src_PDO_Voltage=240 @6.0 @7.3]"
                   "[Snk_PDO_Voltage=100 @6.0 @8.1]"));
}

TEST(GetFields, ComparesSlotsByLocationAndNotByPosition) {
  const CVendorInfoFile vif = Charger();
  const Slots orders[] = {{Component(0), SrcPdo(2), kUnused},
                          {SrcPdo(2), Component(0), kUnused},
                          {kUnused, SrcPdo(2), Component(0)},
                          {SrcPdo(2), kUnused, Component(0)},
                          {kUnused, kUnused, SrcPdo(2)}};
  for (const Slots& slots : orders) {
    EXPECT_THAT(OutcomesForAnyName(slots, GetFields(vif)), Each("[Src_PDO_Voltage=180 @6.0 @7.2]"));
  }
}

TEST(GetFields, TreatsASlotWithoutNumberAsAnyNumber) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(Values(vif.GetFields(nullptr, SrcPdo(kAny), kUnused, kUnused)), ElementsAre("100", "180", "240", "400"));
  EXPECT_THAT(Values(vif.GetFields(nullptr, Component(kAny), SnkPdo(kAny), kUnused)), ElementsAre("100"));
  EXPECT_EQ(vif.Count(nullptr, Component(kAny), kUnused, kUnused), 6U);
}

TEST(GetFields, TreatsASlotWithoutLocationAsAWildcardWhateverItsNumber) {
  const VifIndex wildcard = {eVifLocUnset, 5};
  EXPECT_EQ(Charger().GetFields(nullptr, wildcard, wildcard, wildcard)->size(), 7U);
}

TEST(GetFields, FindsAnEmptyNameByPatternsThatMatchIt) {
  const CVendorInfoFile vif(std::vector<CVIFField>{Field("", "nameless"), Field("a", "named")});
  EXPECT_THAT(Values(vif.GetFields("a*", kAnywhere)), ElementsAre("nameless", "named"));
  EXPECT_THAT(Values(vif.GetFields("^$", kAnywhere)), ElementsAre("nameless"));
  EXPECT_THAT(Values(vif.GetFields("", kAnywhere)), ElementsAre("nameless", "named"));
}

TEST(GetFields, ConvertsAWidePatternToUtf8) {
  const CVendorInfoFile vif(
      {Field("Ger\xC3\xA4t", "1"), Field("Gerat", "2"), Field("\xE2\x82\xAC\xF0\x9F\x94\x8C", "3")});
  EXPECT_THAT(Values(vif.GetFields(L"Ger\u00E4t", kAnywhere)), ElementsAre("1"));
  EXPECT_THAT(Values(vif.GetFields(L"ger..t", kUnused, kUnused, kUnused)), ElementsAre("1"));
  EXPECT_THAT(Values(vif.GetFields(L"\u20AC\U0001F50C", kAnywhere)), ElementsAre("3"));
}

TEST(GetFields, FindsFieldsOfALoadedFile) {
  const TempDir dir;
  const CVendorInfoFile vif(dir.Write("a.txt", "Src_PDO_Voltage1: 100\nSrc_PDO_Voltage2: 180\nPort_Label: 0\n"));
  EXPECT_THAT(Values(vif.GetFields("Src_PDO_Voltage", kAnywhere)), ElementsAre("100", "180"));
  EXPECT_THAT(Values(vif.GetSrcPdo(1, 2)), ElementsAre("180"));
}

// Results

TEST(QueryResults, OutliveTheObject) {
  auto vif = std::make_optional<CVendorInfoFile>(Charger());
  const VifFieldList all = vif->GetFields();
  const VifFieldList some = vif->GetFields("Src_PDO_Voltage", Component(1), kUnused, kUnused);
  const VifFieldList component = vif->GetComponent(1);
  const CVIFField unique = vif->GetUniqueField("Port_Label", kAnywhere);
  const auto [single, found] = vif->GetSingleField("Port_Label", kAnywhere);
  vif.reset();
  EXPECT_EQ(Texts(all), Texts(Charger().GetFields()));
  EXPECT_THAT(Texts(some), ElementsAre("Src_PDO_Voltage=400 @6.1 @7.1"));
  EXPECT_THAT(Texts(component), ElementsAre("Src_PDO_Voltage=400 @6.1 @7.1"));
  EXPECT_EQ(FieldText(unique), "Port_Label=0 @6.0");
  EXPECT_TRUE(found);
  EXPECT_EQ(FieldText(single), "Port_Label=0 @6.0");
}

TEST(QueryResults, AreIndependentCopies) {
  const CVendorInfoFile vif = Charger();
  const VifFieldList first = vif.GetFields();
  const VifFieldList second = vif.GetFields("Src_.*", kAnywhere);
  for (CVIFField& field : *first) field = Field("Changed", "1");
  second->clear();
  EXPECT_EQ(Texts(vif.GetFields()), Texts(Charger().GetFields()));
  EXPECT_EQ(vif.Count("Changed", kAnywhere), 0U);
  EXPECT_EQ(vif.GetFields("Src_.*", kAnywhere)->size(), 4U);
}

TEST(QueryResults, CopyEveryMemberOfAField) {
  const CVendorInfoFile vif(
      std::vector<CVIFField>{CVIFField(false, "Name", "12", "what it is", Component(1), SrcPdo(2), kUnused),
                             CVIFField(true, "Number", "0x100000005", "", kUnused, kUnused, kUnused)});
  const CVIFField text = vif.GetUniqueField("Name", kAnywhere);
  EXPECT_STREQ(text.Name(), "Name");
  EXPECT_STREQ(text.Value(), "12");
  EXPECT_STREQ(text.Description(), "what it is");
  EXPECT_FALSE(text.IsNumeric());
  EXPECT_EQ(text.Indexes(), (Slots{Component(1), SrcPdo(2), kUnused}));
  EXPECT_EQ(vif.GetFields("Number", kAnywhere)->front().GetULongNumericValue(), 4294967301U);
}

TEST(QueryResults, CarryTheirDeleter) {
  VifFieldList list = Charger().GetFields();
  const VifFieldList::deleter_type release = list.get_deleter();
  ASSERT_TRUE(release);
  std::vector<CVIFField>* fields = list.release();
  EXPECT_EQ(fields->size(), 7U);
  release(fields);
}

TEST(QueryResults, HoldAListInEveryCase) {
  const CVendorInfoFile none;
  const CVendorInfoFile charger = Charger();
  const CVendorInfoFile loaded = WithComponents(2, {});
  for (const CVendorInfoFile* vif : {&none, &charger, &loaded}) {
    EXPECT_NE(vif->GetFields(), nullptr);
    EXPECT_NE(vif->GetFields("None", kAnywhere), nullptr);
    EXPECT_NE(vif->GetFirstFields("None", kUnused, kUnused), nullptr);
    EXPECT_NE(vif->GetComponent(9), nullptr);
    EXPECT_NE(vif->GetRouter(9), nullptr);
    EXPECT_NE(vif->GetPcieEndpointIds(9, 9), nullptr);
    EXPECT_NE(vif->GetSrcPdo(9, 9), nullptr);
    EXPECT_NE(vif->GetSnkPdo(9, 9), nullptr);
    EXPECT_NE(vif->GetSopSvid(9, 9), nullptr);
    EXPECT_NE(vif->GetSopSvidMode(9, 9, 9), nullptr);
    EXPECT_NE(vif->GetCableSvid(9, 9), nullptr);
    EXPECT_NE(vif->GetCableSvidMode(9, 9, 9), nullptr);
  }
}

// GetUniqueField

TEST(GetUniqueField, ReturnsTheOneMatchingFieldInEveryForm) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Port_Label", kAnywhere, GetUniqueField(vif)), Each("Port_Label=0 @6.0"));
  EXPECT_THAT(OutcomesOfAllForms("s.*", {SrcPdo(3), kUnused, kUnused}, GetUniqueField(vif)),
              Each("Src_PDO_Voltage=240 @6.0 @7.3"));
  EXPECT_THAT(OutcomesForAnyName({Component(1), kUnused, kUnused}, GetUniqueField(vif)),
              Each("Src_PDO_Voltage=400 @6.1 @7.1"));
}

TEST(GetUniqueField, AcceptsALiteralNull) {
  EXPECT_EQ(FieldText(Charger().GetUniqueField(nullptr, SnkPdo(1), kUnused, kUnused)), "Snk_PDO_Voltage=100 @6.0 @8.1");
  EXPECT_EQ(FieldText(Charger().GetUniqueField(nullptr, Slots{SnkPdo(1), kUnused, kUnused})),
            "Snk_PDO_Voltage=100 @6.0 @8.1");
}

TEST(GetUniqueField, FailsWithoutAMatchInAnObjectWithoutFileName) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("None", kAnywhere, GetUniqueField(vif)),
              Each("CZoRunTimeException: Couldn't find field in \"this VIF\" that matched with \"None\"."));
  EXPECT_THAT(OutcomesOfAllForms("Port_Label", {Component(1), kUnused, kUnused}, GetUniqueField(vif)),
              Each("CZoRunTimeException: Couldn't find field in \"this VIF\" that matched with \"Port_Label\"."));
}

TEST(GetUniqueField, FailsInAnEmptyObject) {
  const CVendorInfoFile vif;
  EXPECT_THAT(OutcomesOfAllForms(".*", kAnywhere, GetUniqueField(vif)),
              Each("CZoRunTimeException: Couldn't find field in \"this VIF\" that matched with \".*\"."));
}

TEST(GetUniqueField, FailsOnMoreThanOneMatch) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Src_PDO_Voltage", {Component(0), kUnused, kUnused}, GetUniqueField(vif)),
              Each("CZoRunTimeException: 3 fields in \"this VIF\" matched with \"Src_PDO_Voltage\"."));
  EXPECT_THAT(OutcomesOfAllForms("s.*", {SrcPdo(1), kUnused, kUnused}, GetUniqueField(vif)),
              Each("CZoRunTimeException: 2 fields in \"this VIF\" matched with \"s.*\"."));
}

TEST(GetUniqueField, SaysHowManyFieldsMatched) {
  const CVendorInfoFile vif(std::vector<CVIFField>(12'345, Field("a", "1")));
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField("a", kAnywhere); }),
            "12345 fields in \"this VIF\" matched with \"a\".");
}

TEST(GetUniqueField, PrintsNothingForAnEmptyOrWideNullPattern) {
  const CVendorInfoFile vif = Charger();
  const Slots nowhere = {Component(9), kUnused, kUnused};
  const std::string none = "Couldn't find field in \"this VIF\" that matched with \"\".";
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField("", nowhere); }), none);
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(L"", nowhere); }), none);
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(kNoWide, nowhere); }), none);
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(kNoWide, kAnywhere); }),
            "7 fields in \"this VIF\" matched with \"\".");
}

TEST(GetUniqueField, PrintsANullPatternAsTheHostDoes) {
  const CVendorInfoFile vif = Charger();
  const Slots nowhere = {Component(9), kUnused, kUnused};
  const std::string none = "Couldn't find field in \"this VIF\" that matched with \"(null)\".";
  const std::string many = "7 fields in \"this VIF\" matched with \"(null)\".";
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(kNoNarrow, nowhere); }), none);
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(nullptr, nowhere); }), none);
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(kNoNarrow, kUnused, kUnused, kUnused); }), many);
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField(nullptr, kUnused, kUnused, kUnused); }), many);
}

// GetSingleField

TEST(GetSingleField, ReturnsTheOneMatchingFieldInEveryForm) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Port_Label", kAnywhere, GetSingleField(vif)), Each("true Port_Label=0 @6.0"));
  EXPECT_THAT(OutcomesOfAllForms("s.*", {SrcPdo(3), kUnused, kUnused}, GetSingleField(vif)),
              Each("true Src_PDO_Voltage=240 @6.0 @7.3"));
  EXPECT_THAT(OutcomesForAnyName({Component(1), kUnused, kUnused}, GetSingleField(vif)),
              Each("true Src_PDO_Voltage=400 @6.1 @7.1"));
}

TEST(GetSingleField, AcceptsALiteralNull) {
  EXPECT_TRUE(std::get<bool>(Charger().GetSingleField(nullptr, SnkPdo(1), kUnused, kUnused)));
  EXPECT_FALSE(std::get<bool>(Charger().GetSingleField(nullptr, Slots{SnkPdo(2), kUnused, kUnused})));
}

TEST(GetSingleField, ReturnsTheEmptyFieldWithoutAMatchInEveryForm) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("None", kAnywhere, GetSingleField(vif)), Each("false ="));
  EXPECT_THAT(OutcomesForAnyName({Component(9), kUnused, kUnused}, GetSingleField(vif)), Each("false ="));
  const CVendorInfoFile none;
  EXPECT_THAT(OutcomesOfAllForms(".*", kAnywhere, GetSingleField(none)), Each("false ="));
}

TEST(GetSingleField, ReturnsADefaultFieldWithoutAMatch) {
  const auto [field, found] = Charger().GetSingleField("None", kAnywhere);
  EXPECT_FALSE(found);
  EXPECT_STREQ(field.Name(), "");
  EXPECT_STREQ(field.Value(), "");
  EXPECT_STREQ(field.Description(), "");
  EXPECT_TRUE(field.IsNumeric());
  EXPECT_EQ(field.GetULongNumericValue(), CVIFField::VIF_VALUE_UNSET_64);
  EXPECT_EQ(field.Indexes(), kAnywhere);
}

TEST(GetSingleField, FailsOnMoreThanOneMatch) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Src_PDO_Voltage", {Component(0), kUnused, kUnused}, GetSingleField(vif)),
              Each("CZoRunTimeException: 3 fields in \"this VIF\" matched with \"Src_PDO_Voltage\"."));
  EXPECT_THAT(OutcomesOfAllForms("s.*", {SrcPdo(1), kUnused, kUnused}, GetSingleField(vif)),
              Each("CZoRunTimeException: 2 fields in \"this VIF\" matched with \"s.*\"."));
}

TEST(GetSingleField, PrintsAnAbsentPatternAsGetUniqueFieldDoes) {
  const CVendorInfoFile vif = Charger();
  EXPECT_EQ(OutcomesForAnyName(kAnywhere, GetSingleField(vif)), OutcomesForAnyName(kAnywhere, GetUniqueField(vif)));
  EXPECT_THAT(OutcomesForAnyName(kAnywhere, GetSingleField(vif)),
              Each(HasSubstr("7 fields in \"this VIF\" matched with \"")));
}

// How messages name the object and the pattern.

/// Expects both failures on an object loaded from a file of that name to name the file.
void ExpectMessagesToName(const std::filesystem::path& name) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write(name, "Src_PDO_Voltage1: 1\nSrc_PDO_Voltage2: 2\n");
  const std::u8string utf8 = path.u8string();
  const std::string where(utf8.begin(), utf8.end());
  const CVendorInfoFile vif(path);
  EXPECT_THAT(OutcomesOfAllForms("None", kAnywhere, GetUniqueField(vif)),
              Each("CZoRunTimeException: Couldn't find field in \"" + where + "\" that matched with \"None\"."));
  const std::string tooMany = "CZoRunTimeException: 2 fields in \"" + where + "\" matched with \"Src_.*\".";
  EXPECT_THAT(OutcomesOfAllForms("Src_.*", kAnywhere, GetUniqueField(vif)), Each(tooMany));
  EXPECT_THAT(OutcomesOfAllForms("Src_.*", kAnywhere, GetSingleField(vif)), Each(tooMany));
}

TEST(QueryMessages, NameTheFile) { ExpectMessagesToName("a.txt"); }

TEST(QueryMessages, NameAFileWithTextOutsideAscii) { ExpectMessagesToName(u8"Ger\u00E4t \u20AC \U0001F50C.txt"); }

TEST(QueryMessages, NameAFileWithPlaceholders) { ExpectMessagesToName("100%s %n %u %%.txt"); }

TEST(QueryMessages, NameTheFirstFileOfSeveral) {
  const TempDir dir;
  CVendorInfoFile vif(dir.Write("first.txt", ""));
  vif.Append(dir.Write("second.txt", "").string().c_str());
  EXPECT_THAT(RunTimeErrorOf([&] { vif.GetUniqueField("a", kAnywhere); }),
              AllOf(HasSubstr("first.txt\" that"), testing::Not(HasSubstr("second"))));
}

TEST(QueryMessages, SayThisVifUntilAFileIsLoaded) {
  const TempDir dir;
  CVendorInfoFile vif;
  EXPECT_EQ(RunTimeErrorOf([&] { vif.GetUniqueField("a", kAnywhere); }),
            "Couldn't find field in \"this VIF\" that matched with \"a\".");
  vif.Append(dir.Write("a.txt", "").string().c_str());
  EXPECT_THAT(RunTimeErrorOf([&] { vif.GetUniqueField("a", kAnywhere); }), testing::Not(HasSubstr("this VIF")));
}

TEST(QueryMessages, QuoteAPatternWithPlaceholders) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("%s %n %u %%", kAnywhere, GetUniqueField(vif)),
              Each("CZoRunTimeException: Couldn't find field in \"this VIF\" that matched with \"%s %n %u %%\"."));
  EXPECT_THAT(OutcomesOfAllForms("(%s)?.*", kAnywhere, GetSingleField(vif)),
              Each("CZoRunTimeException: 7 fields in \"this VIF\" matched with \"(%s)?.*\"."));
}

TEST(QueryMessages, QuoteAPatternOutsideAsciiAsUtf8) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THAT(OutcomesOfAllForms("Ger\xC3\xA4t", kAnywhere, GetUniqueField(vif)),
              Each("CZoRunTimeException: Couldn't find field in \"this VIF\" that matched with \"Ger\xC3\xA4t\"."));
}

TEST(QueryMessages, QuoteAPatternOfAnyLength) {
  const std::string pattern(100'000, 'x');
  EXPECT_EQ(RunTimeErrorOf([&] { Charger().GetUniqueField(pattern.c_str(), kAnywhere); }),
            "Couldn't find field in \"this VIF\" that matched with \"" + pattern + "\".");
}

TEST(QueryMessages, AreKeptWhenAnotherFailureFollows) {
  const CVendorInfoFile vif = Charger();
  try {
    vif.GetUniqueField("First", kAnywhere);
    FAIL() << "no exception";
  } catch (const CZoRunTimeException& first) {
    EXPECT_THROW(vif.GetUniqueField("Second", kAnywhere), CZoRunTimeException);
    EXPECT_STREQ(first.what(), "Couldn't find field in \"this VIF\" that matched with \"First\".");
  }
}

TEST(QueryMessages, ReachEveryHandler) {
  const CVendorInfoFile vif = WithComponents(1, {Field("a", "1", Component(0)), Field("a", "2", Component(0))});
  EXPECT_THROW(vif.GetUniqueField("None", kAnywhere), CZoException);
  EXPECT_THROW(vif.GetUniqueField("None", kAnywhere), std::runtime_error);
  EXPECT_THROW(vif.GetUniqueField("a", kAnywhere), CZoException);
  EXPECT_THROW(vif.GetUniqueField("a", kAnywhere), std::exception);
  EXPECT_THROW(vif.GetSingleField("a", kAnywhere), CZoException);
  EXPECT_THROW(vif.GetSingleField("a", kAnywhere), std::runtime_error);
  EXPECT_THROW(vif.GetFirstUniqueField("a", kUnused, kUnused), CZoException);
  EXPECT_THROW(vif.GetFirstUniqueField("a", kUnused, kUnused), std::runtime_error);
}

// GetFirstFields

TEST(GetFirstFields, IsEmptyWithAComponentCountOfZeroEvenIfFieldsHaveComponents) {
  const CVendorInfoFile vif = Charger();
  ASSERT_EQ(vif.ComponentCount(), 0U);
  EXPECT_THAT(FirstOutcomesForAnyName(kUnused, kUnused, GetFirstFields(vif)), Each(""));
  EXPECT_THAT(OutcomesOfFirstForms(".*", kUnused, kUnused, GetFirstFields(vif)), Each(""));
}

TEST(GetFirstFields, ReturnsTheFieldsOfTheLowestComponentThatHasAny) {
  const CVendorInfoFile vif = WithComponents(2, {Field("a", "1", Component(1)), Field("a", "2", Component(0)),
                                                 Field("a", "3", Component(1)), Field("a", "4", Component(0))});
  EXPECT_THAT(Values(vif.GetFirstFields("a", kUnused, kUnused)), ElementsAre("2", "4"));
  EXPECT_THAT(OutcomesOfFirstForms("A", kUnused, kUnused, GetFirstFields(vif)), Each("[a=2 @6.0][a=4 @6.0]"));
  EXPECT_THAT(OutcomesOfFirstForms("a+", kUnused, kUnused, GetFirstFields(vif)), Each("[a=2 @6.0][a=4 @6.0]"));
  EXPECT_THAT(FirstOutcomesForAnyName(kUnused, kUnused, GetFirstFields(vif)), Each("[a=2 @6.0][a=4 @6.0]"));
}

TEST(GetFirstFields, AcceptsALiteralNull) {
  const CVendorInfoFile vif = WithComponents(1, {Field("a", "1", Component(0))});
  EXPECT_THAT(Values(vif.GetFirstFields(nullptr, kUnused, kUnused)), ElementsAre("1"));
}

TEST(GetFirstFields, SearchesFromZeroToTheCountMinusOne) {
  std::vector<CVIFField> fields;
  for (std::uint64_t component = 6; component-- > 0;) {
    fields.push_back(Field(std::string("Name") + std::to_string(component), "1", Component(component)));
  }
  for (std::size_t count = 0; count <= 5; ++count) {
    const CVendorInfoFile vif = WithComponents(count, fields);
    ASSERT_EQ(vif.ComponentCount(), count);
    for (std::size_t component = 0; component < 6; ++component) {
      const std::string name = std::string("Name") + std::to_string(component);
      EXPECT_EQ(vif.GetFirstFields(name.c_str(), kUnused, kUnused)->size(), component < count ? 1U : 0U)
          << name << " of " << count;
    }
  }
}

TEST(GetFirstFields, FindsNothingInOneLoadedComponent) {
  const TempDir dir;
  const CVendorInfoFile vif(dir.Write("a.txt", "Port_Label: 1\n"));
  ASSERT_EQ(vif.GetComponent(1)->size(), 1U);
  EXPECT_THAT(*vif.GetFirstFields("Port_Label", kUnused, kUnused), IsEmpty());
  EXPECT_THAT(*vif.GetFirstFields(nullptr, kUnused, kUnused), IsEmpty());
}

TEST(GetFirstFields, DoesNotSearchTheLastLoadedComponent) {
  const TempDir dir;
  CVendorInfoFile vif(dir.Write("a.txt", "Port_Label: 1\n"));
  vif.Append(dir.Write("b.txt", "Port_Label: 2\nSrc_PDO_Voltage1: 100\n").string().c_str());
  EXPECT_THAT(Values(vif.GetFirstFields("Port_Label", kUnused, kUnused)), ElementsAre("1"));
  EXPECT_THAT(*vif.GetFirstFields("Src_PDO_Voltage", kUnused, kUnused), IsEmpty());
  vif.Append(dir.Write("c.txt", "Port_Label: 3\n").string().c_str());
  EXPECT_THAT(Values(vif.GetFirstFields("Src_PDO_Voltage", kUnused, kUnused)), ElementsAre("100"));
}

TEST(GetFirstFields, TriesTheNextComponentUntilOneMatches) {
  const CVendorInfoFile vif =
      WithComponents(4, {Field("a", "0", Component(0)), Field("b", "1", Component(1)),
                         Field("a", "2", Component(2), SrcPdo(1)), Field("a", "3", Component(3), SrcPdo(1))});
  EXPECT_THAT(Values(vif.GetFirstFields("b", kUnused, kUnused)), ElementsAre("1"));
  EXPECT_THAT(Values(vif.GetFirstFields("a", SrcPdo(1), kUnused)), ElementsAre("2"));
  EXPECT_THAT(Values(vif.GetFirstFields(nullptr, kUnused, SrcPdo(kAny))), ElementsAre("2"));
  EXPECT_THAT(*vif.GetFirstFields("c", kUnused, kUnused), IsEmpty());
  EXPECT_THAT(*vif.GetFirstFields("b", SrcPdo(1), kUnused), IsEmpty());
}

TEST(GetFirstFields, NeverReturnsFieldsOutsideAnyComponent) {
  const CVendorInfoFile vif = WithComponents(
      3, {Field("a", "1"), Field("a", "2", Product(0)), Field("a", "3", SrcPdo(0)), Field("a", "4", Component(kAny))});
  EXPECT_THAT(*vif.GetFirstFields("a", kUnused, kUnused), IsEmpty());
  EXPECT_THAT(*vif.GetFirstFields(nullptr, Product(0), kUnused), IsEmpty());
}

TEST(GetFirstFields, FindsTheComponentInAnySlot) {
  const CVendorInfoFile vif =
      WithComponents(2, {Field("a", "1", SrcPdo(1), Component(1)), Field("a", "2", kUnused, SrcPdo(1), Component(0))});
  EXPECT_THAT(Values(vif.GetFirstFields("a", SrcPdo(1), kUnused)), ElementsAre("2"));
}

TEST(GetFirstFields, UsesTheFirstOfSeveralComponentSlots) {
  const CVendorInfoFile vif =
      WithComponents(2, {Field("a", "1", Component(1), Component(0)), Field("a", "2", Component(9), Component(0))});
  EXPECT_THAT(Values(vif.GetFirstFields("a", kUnused, kUnused)), ElementsAre("1"));
}

TEST(GetFirstFields, TreatsTheCallersComponentAsAFurtherCondition) {
  const CVendorInfoFile vif = WithComponents(3, {Field("a", "0", Component(0)), Field("a", "1", Component(1))});
  EXPECT_THAT(Values(vif.GetFirstFields("a", Component(1), kUnused)), ElementsAre("1"));
  EXPECT_THAT(Values(vif.GetFirstFields("a", kUnused, Component(kAny))), ElementsAre("0"));
  EXPECT_THAT(*vif.GetFirstFields("a", Component(0), Component(1)), IsEmpty());
}

TEST(GetFirstFields, ReturnsCopiesThatOutliveTheObject) {
  auto vif = std::make_optional<CVendorInfoFile>(WithComponents(1, {Field("a", "1", Component(0))}));
  const VifFieldList first = vif->GetFirstFields("a", kUnused, kUnused);
  const CVIFField unique = vif->GetFirstUniqueField("a", kUnused, kUnused);
  vif->GetFirstFields("a", kUnused, kUnused)->front() = Field("b", "2");
  EXPECT_EQ(vif->Count("b", kAnywhere), 0U);
  vif.reset();
  EXPECT_THAT(Texts(first), ElementsAre("a=1 @6.0"));
  EXPECT_EQ(FieldText(unique), "a=1 @6.0");
}

// GetFirstUniqueField

TEST(GetFirstUniqueField, ReturnsTheOneFieldThatGetFirstFieldsFinds) {
  const CVendorInfoFile vif =
      WithComponents(3, {Field("a", "2", Component(2)), Field("a", "1", Component(1)), Field("b", "3", Component(1))});
  EXPECT_THAT(OutcomesOfFirstForms("a", kUnused, kUnused, GetFirstUniqueField(vif)), Each("a=1 @6.1"));
  EXPECT_THAT(FirstOutcomesForAnyName(Component(2), kUnused, GetFirstUniqueField(vif)), Each("a=2 @6.2"));
  EXPECT_EQ(FieldText(vif.GetFirstUniqueField(nullptr, Component(2), kUnused)), "a=2 @6.2");
}

TEST(GetFirstUniqueField, PrintsThePatternInBothPlacesOnMoreThanOneMatch) {
  const CVendorInfoFile vif =
      WithComponents(2, {Field("a", "1", Component(1)), Field("a", "2", Component(0)), Field("a", "3", Component(0))});
  EXPECT_THAT(OutcomesOfFirstForms("a.*", kUnused, kUnused, GetFirstUniqueField(vif)),
              Each("CZoRunTimeException: 2 fields in \"a.*\" matched with \"a.*\"."));
  EXPECT_THAT(OutcomesOfFirstForms("(%s)?a", kUnused, kUnused, GetFirstUniqueField(vif)),
              Each("CZoRunTimeException: 2 fields in \"(%s)?a\" matched with \"(%s)?a\"."));
  EXPECT_THAT(OutcomesOfFirstForms("(\xC3\xA4)?a", kUnused, kUnused, GetFirstUniqueField(vif)),
              Each("CZoRunTimeException: 2 fields in \"(\xC3\xA4)?a\" matched with \"(\xC3\xA4)?a\"."));
}

TEST(GetFirstUniqueField, PrintsAnAbsentPatternInBothPlaces) {
  const CVendorInfoFile vif = WithComponents(1, {Field("a", "1", Component(0)), Field("b", "2", Component(0))});
  const std::string null = "CZoRunTimeException: 2 fields in \"(null)\" matched with \"(null)\".";
  const std::string empty = "CZoRunTimeException: 2 fields in \"\" matched with \"\".";
  EXPECT_THAT(FirstOutcomesForAnyName(kUnused, kUnused, GetFirstUniqueField(vif)),
              ElementsAre(null, null, empty, empty, empty));
}

TEST(GetFirstUniqueField, ThrowsOutOfRangeWithoutAMatch) {
  const std::string outOfRange = "std::out_of_range: invalid vector subscript";
  const CVendorInfoFile noComponents = Charger();
  const CVendorInfoFile twoComponents = WithComponents(2, {Field("a", "1", Component(2)), Field("a", "2")});
  const CVendorInfoFile none;
  for (const CVendorInfoFile* vif : {&noComponents, &twoComponents, &none}) {
    EXPECT_THAT(OutcomesOfFirstForms("a", kUnused, kUnused, GetFirstUniqueField(*vif)), Each(outOfRange));
    EXPECT_THAT(FirstOutcomesForAnyName(kUnused, kUnused, GetFirstUniqueField(*vif)), Each(outOfRange));
  }
}

TEST(GetFirstUniqueField, ThrowsNoHostExceptionWithoutAMatch) {
  try {
    Charger().GetFirstUniqueField("None", kUnused, kUnused);
    FAIL() << "no exception";
  } catch (const std::exception& error) {
    EXPECT_EQ(dynamic_cast<const CZoException*>(&error), nullptr);
    EXPECT_NE(dynamic_cast<const std::out_of_range*>(&error), nullptr);
  }
}

// ComponentCount

TEST(ComponentCount, IsTheNumberOfComponentsReadFromAllFiles) {
  const TempDir dir;
  const std::string path = dir.Write("a.txt", "Port_Label: 1\n").string();
  CVendorInfoFile vif;
  EXPECT_EQ(vif.ComponentCount(), 0U);
  vif.Append(path.c_str());
  EXPECT_EQ(vif.ComponentCount(), 1U);
  vif.Append(path.c_str());
  EXPECT_EQ(vif.ComponentCount(), 2U);
  EXPECT_EQ(vif.GetFields()->back().Index(eVifLocComponent), 2U);
}

TEST(ComponentCount, IgnoresAppendedFields) {
  CVendorInfoFile vif = Charger();
  EXPECT_EQ(vif.ComponentCount(), 0U);
  vif.Append({Field("a", "1", Component(41))});
  EXPECT_EQ(vif.ComponentCount(), 0U);
}

TEST(ComponentCount, IsCopied) {
  const CVendorInfoFile vif = WithComponents(3, {});
  EXPECT_EQ(CVendorInfoFile(vif).ComponentCount(), 3U);
}

// The getters of groups. Every field's value says where the field belongs.

constexpr EVifLocation kInComponent[] = {eVifLocSrcPdo, eVifLocSnkPdo, eVifLocSopSvid, eVifLocCableSvid};

/// Two components, each with fields of its own and two groups of every kind, their SVIDs with two modes; two products
/// with two routers with two endpoints; a field outside any group.
CVendorInfoFile Groups() {
  std::vector<CVIFField> fields = {Field("Top", "top")};
  for (const std::uint64_t component : {1U, 2U}) {
    const std::string inComponent = std::string("C") + std::to_string(component);
    fields.push_back(Field("Field", inComponent, Component(component)));
    for (const EVifLocation location : kInComponent) {
      const std::string name = GetVifLocInfo(location).name;
      for (const std::uint64_t group : {1U, 2U}) {
        const std::string inGroup = inComponent + " " + name + std::to_string(group);
        fields.push_back(Field("Field", inGroup, Component(component), {location, group}));
        if (location != eVifLocSopSvid && location != eVifLocCableSvid) continue;
        const EVifLocation mode = location == eVifLocSopSvid ? eVifLocSopSvidMode : eVifLocCableSvidMode;
        for (const std::uint64_t number : {1U, 2U}) {
          fields.push_back(Field("Field", inGroup + " Mode" + std::to_string(number), Component(component),
                                 {location, group}, {mode, number}));
        }
      }
    }
  }
  for (const std::uint64_t product : {0U, 1U}) {
    const std::string inProduct = std::string("P") + std::to_string(product);
    fields.push_back(Field("Field", inProduct, Product(product)));
    for (const std::uint64_t router : {0U, 1U}) {
      const std::string inRouter = inProduct + " R" + std::to_string(router);
      fields.push_back(Field("Field", inRouter, Product(product), Router(router)));
      for (const std::uint64_t endpoint : {1U, 2U}) {
        fields.push_back(Field("Field", inRouter + " E" + std::to_string(endpoint), Product(product), Router(router),
                               Endpoint(endpoint)));
      }
    }
  }
  return CVendorInfoFile(fields);
}

TEST(GetComponent, ReturnsAllFieldsOfTheComponentAndOfTheGroupsInIt) {
  const CVendorInfoFile vif = Groups();
  const VifFieldList component = vif.GetComponent(2);
  EXPECT_THAT(Values(component), Each(testing::StartsWith("C2")));
  EXPECT_EQ(component->size(), 17U);
  EXPECT_THAT(Values(vif.GetComponent(3)), IsEmpty());
  EXPECT_THAT(Values(Charger().GetComponent(0)), ElementsAre("0", "100", "180", "240", "100"));
}

TEST(GetComponent, ReturnsAllComponentsForAnyNumber) {
  const VifFieldList components = Groups().GetComponent(kAny);
  EXPECT_THAT(Values(components), Each(testing::StartsWith("C")));
  EXPECT_EQ(components->size(), 34U);
}

TEST(GetRouter, ReturnsTheRouterOfProductZeroWithItsEndpoints) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetRouter(0)), ElementsAre("P0 R0", "P0 R0 E1", "P0 R0 E2"));
  EXPECT_THAT(Values(vif.GetRouter(1)), ElementsAre("P0 R1", "P0 R1 E1", "P0 R1 E2"));
  EXPECT_THAT(Values(vif.GetRouter(2)), IsEmpty());
}

TEST(GetRouter, ReturnsAllRoutersOfProductZeroForAnyNumber) {
  EXPECT_THAT(Values(Groups().GetRouter(kAny)),
              ElementsAre("P0 R0", "P0 R0 E1", "P0 R0 E2", "P0 R1", "P0 R1 E1", "P0 R1 E2"));
}

TEST(GetRouter, SearchesProductZeroOnly) {
  const CVendorInfoFile vif(std::vector<CVIFField>{Field("a", "other product", Product(1), Router(0)),
                                                   Field("a", "no product", Router(0)),
                                                   Field("a", "any product", Product(kAny), Router(0))});
  EXPECT_THAT(Values(vif.GetRouter(0)), IsEmpty());
  EXPECT_THAT(Values(vif.GetRouter(kAny)), IsEmpty());
}

TEST(GetPcieEndpointIds, ReturnsTheEndpointOfARouterOfProductZero) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(0, 1)), ElementsAre("P0 R0 E1"));
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(1, 2)), ElementsAre("P0 R1 E2"));
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(0, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(2, 1)), IsEmpty());
}

TEST(GetPcieEndpointIds, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(0, kAny)), ElementsAre("P0 R0 E1", "P0 R0 E2"));
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(kAny, 1)), ElementsAre("P0 R0 E1", "P0 R1 E1"));
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(kAny, kAny)), ElementsAre("P0 R0 E1", "P0 R0 E2", "P0 R1 E1", "P0 R1 E2"));
}

TEST(GetPcieEndpointIds, SearchesProductZeroOnly) {
  const CVendorInfoFile vif(std::vector<CVIFField>{Field("a", "1", Product(1), Router(0), Endpoint(1)),
                                                   Field("a", "2", Router(0), Endpoint(1))});
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(0, 1)), IsEmpty());
  EXPECT_THAT(Values(vif.GetPcieEndpointIds(kAny, kAny)), IsEmpty());
}

TEST(GetSrcPdo, ReturnsTheFieldsOfThePdo) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSrcPdo(1, 2)), ElementsAre("C1 SrcPdo2"));
  EXPECT_THAT(Values(vif.GetSrcPdo(2, 1)), ElementsAre("C2 SrcPdo1"));
  EXPECT_THAT(Values(vif.GetSrcPdo(1, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetSrcPdo(3, 1)), IsEmpty());
}

TEST(GetSrcPdo, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSrcPdo(kAny, 1)), ElementsAre("C1 SrcPdo1", "C2 SrcPdo1"));
  EXPECT_THAT(Values(vif.GetSrcPdo(2, kAny)), ElementsAre("C2 SrcPdo1", "C2 SrcPdo2"));
  EXPECT_THAT(Values(vif.GetSrcPdo(kAny, kAny)), ElementsAre("C1 SrcPdo1", "C1 SrcPdo2", "C2 SrcPdo1", "C2 SrcPdo2"));
}

TEST(GetSnkPdo, ReturnsTheFieldsOfThePdo) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSnkPdo(1, 2)), ElementsAre("C1 SnkPdo2"));
  EXPECT_THAT(Values(vif.GetSnkPdo(2, 1)), ElementsAre("C2 SnkPdo1"));
  EXPECT_THAT(Values(vif.GetSnkPdo(1, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetSnkPdo(3, 1)), IsEmpty());
}

TEST(GetSnkPdo, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSnkPdo(kAny, 2)), ElementsAre("C1 SnkPdo2", "C2 SnkPdo2"));
  EXPECT_THAT(Values(vif.GetSnkPdo(1, kAny)), ElementsAre("C1 SnkPdo1", "C1 SnkPdo2"));
  EXPECT_THAT(Values(vif.GetSnkPdo(kAny, kAny)), ElementsAre("C1 SnkPdo1", "C1 SnkPdo2", "C2 SnkPdo1", "C2 SnkPdo2"));
}

TEST(GetSopSvid, ReturnsTheFieldsOfTheSvidAndItsModes) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSopSvid(1, 2)), ElementsAre("C1 SopSvid2", "C1 SopSvid2 Mode1", "C1 SopSvid2 Mode2"));
  EXPECT_THAT(Values(vif.GetSopSvid(1, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetSopSvid(3, 1)), IsEmpty());
}

TEST(GetSopSvid, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSopSvid(kAny, 1)), ElementsAre("C1 SopSvid1", "C1 SopSvid1 Mode1", "C1 SopSvid1 Mode2",
                                                           "C2 SopSvid1", "C2 SopSvid1 Mode1", "C2 SopSvid1 Mode2"));
  EXPECT_THAT(Values(vif.GetSopSvid(2, kAny)), ElementsAre("C2 SopSvid1", "C2 SopSvid1 Mode1", "C2 SopSvid1 Mode2",
                                                           "C2 SopSvid2", "C2 SopSvid2 Mode1", "C2 SopSvid2 Mode2"));
  EXPECT_EQ(vif.GetSopSvid(kAny, kAny)->size(), 12U);
}

TEST(GetSopSvidMode, ReturnsTheFieldsOfTheMode) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSopSvidMode(1, 2, 1)), ElementsAre("C1 SopSvid2 Mode1"));
  EXPECT_THAT(Values(vif.GetSopSvidMode(2, 1, 2)), ElementsAre("C2 SopSvid1 Mode2"));
  EXPECT_THAT(Values(vif.GetSopSvidMode(1, 2, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetSopSvidMode(1, 3, 1)), IsEmpty());
  EXPECT_THAT(Values(vif.GetSopSvidMode(3, 2, 1)), IsEmpty());
}

TEST(GetSopSvidMode, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetSopSvidMode(kAny, 2, 1)), ElementsAre("C1 SopSvid2 Mode1", "C2 SopSvid2 Mode1"));
  EXPECT_THAT(Values(vif.GetSopSvidMode(1, kAny, 2)), ElementsAre("C1 SopSvid1 Mode2", "C1 SopSvid2 Mode2"));
  EXPECT_THAT(Values(vif.GetSopSvidMode(2, 1, kAny)), ElementsAre("C2 SopSvid1 Mode1", "C2 SopSvid1 Mode2"));
  EXPECT_EQ(vif.GetSopSvidMode(kAny, kAny, kAny)->size(), 8U);
}

TEST(GetCableSvid, ReturnsTheFieldsOfTheSvidAndItsModes) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetCableSvid(2, 1)),
              ElementsAre("C2 CableSvid1", "C2 CableSvid1 Mode1", "C2 CableSvid1 Mode2"));
  EXPECT_THAT(Values(vif.GetCableSvid(2, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetCableSvid(3, 1)), IsEmpty());
}

TEST(GetCableSvid, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetCableSvid(kAny, 2)),
              ElementsAre("C1 CableSvid2", "C1 CableSvid2 Mode1", "C1 CableSvid2 Mode2", "C2 CableSvid2",
                          "C2 CableSvid2 Mode1", "C2 CableSvid2 Mode2"));
  EXPECT_THAT(Values(vif.GetCableSvid(1, kAny)),
              ElementsAre("C1 CableSvid1", "C1 CableSvid1 Mode1", "C1 CableSvid1 Mode2", "C1 CableSvid2",
                          "C1 CableSvid2 Mode1", "C1 CableSvid2 Mode2"));
  EXPECT_EQ(vif.GetCableSvid(kAny, kAny)->size(), 12U);
}

TEST(GetCableSvidMode, ReturnsTheFieldsOfTheMode) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetCableSvidMode(1, 2, 1)), ElementsAre("C1 CableSvid2 Mode1"));
  EXPECT_THAT(Values(vif.GetCableSvidMode(2, 1, 2)), ElementsAre("C2 CableSvid1 Mode2"));
  EXPECT_THAT(Values(vif.GetCableSvidMode(1, 2, 3)), IsEmpty());
  EXPECT_THAT(Values(vif.GetCableSvidMode(1, 3, 1)), IsEmpty());
  EXPECT_THAT(Values(vif.GetCableSvidMode(3, 2, 1)), IsEmpty());
}

TEST(GetCableSvidMode, AcceptsAnyNumber) {
  const CVendorInfoFile vif = Groups();
  EXPECT_THAT(Values(vif.GetCableSvidMode(kAny, 1, 2)), ElementsAre("C1 CableSvid1 Mode2", "C2 CableSvid1 Mode2"));
  EXPECT_THAT(Values(vif.GetCableSvidMode(2, kAny, 1)), ElementsAre("C2 CableSvid1 Mode1", "C2 CableSvid2 Mode1"));
  EXPECT_THAT(Values(vif.GetCableSvidMode(1, 1, kAny)), ElementsAre("C1 CableSvid1 Mode1", "C1 CableSvid1 Mode2"));
  EXPECT_EQ(vif.GetCableSvidMode(kAny, kAny, kAny)->size(), 8U);
}

TEST(GroupGetters, ComparesAllBitsOfANumber) {
  const std::uint64_t large = 0x1'0000'0001;
  const CVendorInfoFile vif(
      std::vector<CVIFField>{Field("a", "small", Component(1)), Field("a", "large", Component(large))});
  EXPECT_THAT(Values(vif.GetComponent(large)), ElementsAre("large"));
  EXPECT_THAT(Values(vif.GetComponent(1)), ElementsAre("small"));
}

// Invalid patterns

/// Every query with a pattern and the given three slots; GetFirstFields and GetFirstUniqueField get the last two.
std::vector<std::string> OutcomesOfAllQueries(const CVendorInfoFile& vif, const std::string& pattern,
                                              const Slots& slots) {
  std::vector<std::string> all;
  for (const std::vector<std::string>& outcomes :
       {OutcomesOfAllForms(pattern, slots, Count(vif)), OutcomesOfAllForms(pattern, slots, GetFields(vif)),
        OutcomesOfAllForms(pattern, slots, GetUniqueField(vif)),
        OutcomesOfAllForms(pattern, slots, GetSingleField(vif)),
        OutcomesOfFirstForms(pattern, slots[1], slots[2], GetFirstFields(vif)),
        OutcomesOfFirstForms(pattern, slots[1], slots[2], GetFirstUniqueField(vif))}) {
    all.insert(all.end(), outcomes.begin(), outcomes.end());
  }
  return all;
}

std::string ErrorOf(const std::string& pattern) {
  return OutcomeOf([&]() -> std::size_t {
    return std::regex(pattern, std::regex_constants::ECMAScript | std::regex_constants::icase).mark_count();
  });
}

TEST(InvalidPattern, ThrowsInEveryQueryWhenAFieldsLocationsMatch) {
  const CVendorInfoFile vif = WithComponents(1, {Field("a", "1", Component(0), SrcPdo(1))});
  std::vector<const char*> patterns = {"(", ")", "[", "*", "a{", "a{2,1}", "\\", "(?", "[[:none:]]"};
#if !defined(_LIBCPP_VERSION)
  patterns.push_back("[b-a]");  // for libc++, a range that contains nothing
#endif
  for (const char* pattern : patterns) {
    const std::string error = ErrorOf(pattern);
    ASSERT_THAT(error, testing::StartsWith("std::regex_error")) << pattern;
    EXPECT_THAT(OutcomesOfAllQueries(vif, pattern, kAnywhere), Each(error)) << pattern;
    EXPECT_THAT(OutcomesOfAllQueries(vif, pattern, {Component(0), SrcPdo(1), kUnused}), Each(error)) << pattern;
  }
}

TEST(InvalidPattern, IsIgnoredInEveryQueryWhenNoFieldsLocationsMatch) {
  const CVendorInfoFile vif = WithComponents(1, {Field("a", "1", Component(0), SrcPdo(1)), Field("b", "2")});
  const Slots elsewhere = {Component(0), SrcPdo(2), kUnused};
  const auto noSuchFieldOf = [&](const char* pattern) {
    return OutcomesOfAllForms(pattern, elsewhere, GetUniqueField(vif));
  };
  EXPECT_THAT(OutcomesOfAllForms("(", elsewhere, Count(vif)), Each("0"));
  EXPECT_THAT(OutcomesOfAllForms("(", elsewhere, GetFields(vif)), Each(""));
  EXPECT_THAT(noSuchFieldOf("("), Each(HasSubstr("Couldn't find field in \"")));
  EXPECT_THAT(noSuchFieldOf("("), Each(HasSubstr("\" that matched with \"(\".")));
  EXPECT_THAT(OutcomesOfAllForms("(", elsewhere, GetSingleField(vif)), Each("false ="));
  EXPECT_THAT(OutcomesOfFirstForms("(", SrcPdo(2), kUnused, GetFirstFields(vif)), Each(""));
  EXPECT_THAT(OutcomesOfFirstForms("(", SrcPdo(2), kUnused, GetFirstUniqueField(vif)),
              Each("std::out_of_range: invalid vector subscript"));
}

TEST(InvalidPattern, IsIgnoredInAnEmptyObject) {
  const CVendorInfoFile vif;
  EXPECT_EQ(vif.Count("(", kAnywhere), 0U);
  EXPECT_THAT(*vif.GetFields("(", kAnywhere), IsEmpty());
  EXPECT_THAT(*vif.GetFirstFields("(", kUnused, kUnused), IsEmpty());
  EXPECT_FALSE(std::get<bool>(vif.GetSingleField("(", kAnywhere)));
}

TEST(InvalidPattern, IsIgnoredInComponentsThatAreNotSearched) {
  const CVendorInfoFile vif = WithComponents(1, {Field("a", "1", Component(1)), Field("a", "2")});
  EXPECT_THAT(OutcomesOfFirstForms("(", kUnused, kUnused, GetFirstFields(vif)), Each(""));
  const CVendorInfoFile searched = WithComponents(2, {Field("a", "1", Component(1)), Field("a", "2")});
  EXPECT_THAT(OutcomesOfFirstForms("(", kUnused, kUnused, GetFirstFields(searched)), Each(ErrorOf("(")));
}

TEST(InvalidPattern, ThrowsAtALaterFieldToo) {
  const CVendorInfoFile vif(std::vector<CVIFField>{Field("a", "1"), Field("a", "2"), Field("a", "3", Component(1))});
  EXPECT_THAT(OutcomesOfAllForms("[", {Component(kAny), kUnused, kUnused}, GetFields(vif)), Each(ErrorOf("[")));
}

TEST(InvalidPattern, LeavesTheObjectUnchanged) {
  const CVendorInfoFile vif = Charger();
  EXPECT_THROW(vif.GetFields("(", kAnywhere), std::regex_error);
  EXPECT_EQ(Texts(vif.GetFields()), Texts(Charger().GetFields()));
  EXPECT_EQ(vif.Count("Src_.*", kAnywhere), 4U);
}

// Long names

TEST(LongName, IsAnsweredOrThrowsTheErrorOfTheExpression) {
  const CVendorInfoFile vif(
      std::vector<CVIFField>{Field(std::string(200'000, 'a'), "1"), Field("x", "2"), Field("b", "3")});
  const auto isRegexErrorOr = [](const char* answer) {
    return testing::AnyOf(answer, testing::StartsWith("std::regex_error"));
  };
  EXPECT_THAT(OutcomesOfAllForms(".*", kAnywhere, Count(vif)), Each(isRegexErrorOr("3")));
  EXPECT_THAT(OutcomesOfAllForms("(a|b)*", kAnywhere, Count(vif)), Each(isRegexErrorOr("2")));
  EXPECT_THAT(OutcomesOfAllForms(".*x", kAnywhere, Count(vif)), Each(isRegexErrorOr("1")));
  EXPECT_THAT(OutcomesOfAllForms(".*x", kAnywhere, GetUniqueField(vif)), Each(isRegexErrorOr("x=2")));
}

TEST(LongName, DoesNotFailAQueryThatFindsOthers) {
  const CVendorInfoFile vif({Field(std::string(3000, 'a'), "1"), Field("aab", "2"), Field("x", "3")});
  EXPECT_THAT(OutcomesOfAllForms("(a)\\1.*", kAnywhere, Count(vif)), Each("2"));
  EXPECT_THAT(OutcomesOfAllForms("(a)\\1b", kAnywhere, GetUniqueField(vif)), Each("aab=2"));
}

TEST(LongName, IsFoundByItself) {
  const std::string name(200'000, 'a');
  const CVendorInfoFile vif(std::vector<CVIFField>{Field(name, "1"), Field(name + "a", "2")});
  EXPECT_STREQ(vif.GetUniqueField(name.c_str(), kAnywhere).Value(), "1");
}

// The object

TEST(Queries, LeaveTheObjectUnchanged) {
  const CVendorInfoFile vif = WithComponents(2, {Field("a", "1", Component(0)), Field("b", "2", Component(1))});
  const std::vector<std::string> fields = Texts(vif.GetFields());
  const std::wstring fileName = vif.FileName();
  for (const char* pattern : {"", "a", "b", ".*", "None", "("}) OutcomesOfAllQueries(vif, pattern, kAnywhere);
  for (const VifIndexNumber number : {VifIndexNumber{0}, VifIndexNumber{1}, kAny}) {
    vif.GetComponent(number);
    vif.GetRouter(number);
    vif.GetSrcPdo(number, number);
    vif.GetSopSvidMode(number, number, number);
  }
  EXPECT_EQ(Texts(vif.GetFields()), fields);
  EXPECT_EQ(vif.FileName(), fileName);
  EXPECT_EQ(vif.Count(), 2U);
  EXPECT_EQ(vif.ComponentCount(), 2U);
}

TEST(Queries, AnswerTheSameWhenRepeated) {
  const CVendorInfoFile vif = WithComponents(2, {Field("a", "1", Component(0)), Field("b", "2", Component(1))});
  for (const char* pattern : {"", "a", "b", ".*", "None", "("}) {
    EXPECT_EQ(OutcomesOfAllQueries(vif, pattern, kAnywhere), OutcomesOfAllQueries(vif, pattern, kAnywhere)) << pattern;
  }
}

TEST(Queries, SeeFieldsThatAreAppendedLater) {
  CVendorInfoFile vif = Charger();
  EXPECT_EQ(vif.Count("Late", kAnywhere), 0U);
  vif.Append({Field("Late", "1", Component(0))});
  EXPECT_EQ(vif.Count("Late", kAnywhere), 1U);
  EXPECT_STREQ(vif.GetComponent(0)->back().Name(), "Late");
}

TEST(Queries, TreatAMovedFromObjectAsEmpty) {
  CVendorInfoFile source = WithComponents(2, {Field("a", "1", Component(0))});
  const CVendorInfoFile target(std::move(source));
  // NOLINTBEGIN(bugprone-use-after-move,clang-analyzer-cplusplus.Move): a moved-from object is an empty one.
  EXPECT_EQ(source.Count(), 0U);
  EXPECT_EQ(source.ComponentCount(), 0U);
  EXPECT_THAT(*source.GetFields(), IsEmpty());
  EXPECT_THAT(*source.GetComponent(0), IsEmpty());
  EXPECT_EQ(OutcomesOfAllQueries(source, ".*", kAnywhere), OutcomesOfAllQueries(CVendorInfoFile(), ".*", kAnywhere));
  EXPECT_EQ(RunTimeErrorOf([&] { source.GetUniqueField("a", kAnywhere); }),
            "Couldn't find field in \"this VIF\" that matched with \"a\".");
  // NOLINTEND(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
  EXPECT_EQ(target.Count("a", kAnywhere), 1U);
}

TEST(Queries, AnswerInTheTargetOfAMove) {
  CVendorInfoFile source = Charger();
  CVendorInfoFile target;
  target = std::move(source);
  EXPECT_EQ(target.Count("Src_PDO_Voltage", kAnywhere), 4U);
  EXPECT_EQ(source.Count(), 0U);  // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move): they were swapped.
}

TEST(Queries, AnswerTheSameInACopy) {
  const CVendorInfoFile vif = WithComponents(2, {Field("a", "1", Component(0)), Field("a", "2", Component(0))});
  const CVendorInfoFile copy(vif);  // NOLINT(performance-unnecessary-copy-initialization): the copy is the subject.
  for (const char* pattern : {"", "a", "None"}) {
    EXPECT_EQ(OutcomesOfAllQueries(copy, pattern, kAnywhere), OutcomesOfAllQueries(vif, pattern, kAnywhere));
  }
}

}  // namespace
