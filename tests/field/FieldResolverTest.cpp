#include "FieldResolver.h"

#include "Compiler.h"
#include "ReferenceNames.h"
#include "RunOnStack.h"
#include "support/Latin1Locale.h"
#include "support/RunTimeErrorOf.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <locale>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

namespace {

using namespace std::string_literals;
using testsupport::RunTimeErrorOf;
using Table = std::vector<VifFieldDef>;

constexpr std::uint32_t kComponent = 5;

/// A resolved name as its canonical name and its three slots, with `-` for an unused slot and a missing number, and a
/// leading question mark if no definition knows the name.
std::string Text(const vif::ResolvedName& resolved) {
  std::string text = resolved.isKnown ? "" : "?";
  text += resolved.name;
  for (const VifIndex& slot : resolved.slots) {
    const auto& [location, number] = slot;
    text += ' ';
    if (location != eVifLocUnset) text += std::to_string(static_cast<int>(location)) + ".";
    text += number == CVIFField::INDEX_NOT_SPECIFIED ? "-" : std::to_string(number);
  }
  return text;
}

std::string Resolved(const Table* table, std::string_view name, std::uint32_t component = kComponent) {
  vif::ResolvedName resolved;
  vif::CFieldResolver(table, component).Resolve(name, resolved);
  return Text(resolved);
}

/// The built-in definitions, compiled once more.
Table Recompiled() {
  Table table = VifFieldDefs::GetVifFieldDefs();
  for (std::size_t i = 0; i < table.size(); ++i) table[i].pattern = kReferenceFields[i].pattern;
  return table;
}

/// The built-in table in all its forms: null, itself, a copy, and a table of the caller's own.
class BuiltInTable : public testing::TestWithParam<const char*> {
 protected:
  std::string Resolve(std::string_view name, std::uint32_t component = kComponent) const {
    static const Table copy = VifFieldDefs::GetVifFieldDefs();
    static const Table recompiled = Recompiled();
    const std::string guise = GetParam();
    if (guise == "None") return Resolved(nullptr, name, component);
    if (guise == "Itself") return Resolved(&VifFieldDefs::GetVifFieldDefs(), name, component);
    return Resolved(guise == "Copy" ? &copy : &recompiled, name, component);
  }
};

INSTANTIATE_TEST_SUITE_P(As, BuiltInTable, testing::Values("None", "Itself", "Copy", "Recompiled"),
                         [](const auto& guise) { return std::string(guise.param); });

TEST_P(BuiltInTable, ExtractsTheNumberFromTheName) {
  EXPECT_EQ(Resolve("Src_PDO_Voltage2"), "Src_PDO_Voltage 6.5 7.2 -");
  EXPECT_EQ(Resolve("Snk_PDO_Voltage12"), "Snk_PDO_Voltage 6.5 8.12 -");
}

TEST_P(BuiltInTable, LeavesTheNumberUnsetWithoutDigits) {
  EXPECT_EQ(Resolve("Src_PDO_Voltage"), "Src_PDO_Voltage 6.5 7.- -");
  EXPECT_EQ(Resolve("SVID_Mode_Enter"), "SVID_Mode_Enter 6.5 11.- 12.-");
  EXPECT_EQ(Resolve("SVID1_Mode_Enter"), "SVID_Mode_Enter 6.5 11.1 12.-");
  EXPECT_EQ(Resolve("SVID_Mode1_Enter"), "SVID_Mode_Enter 6.5 11.- 12.1");
}

TEST_P(BuiltInTable, GivesTheFirstNumberToTheOuterGroupAndTheSecondToTheInner) {
  EXPECT_EQ(Resolve("SVID3_Mode2_Recog_Mask_SOP"), "SVID_Mode_Recog_Mask_SOP 6.5 9.3 10.2");
  EXPECT_EQ(Resolve("SVID2_Mode1_Enter_SOP"), "SVID_Mode_Enter_SOP 6.5 9.2 10.1");
  EXPECT_EQ(Resolve("SVID3_Mode2_Recog_Value"), "SVID_Mode_Recog_Value 6.5 11.3 12.2");
}

TEST_P(BuiltInTable, TreatsTheNumberAfterEndpointAsTheRouters) {
  EXPECT_EQ(Resolve("USB4_PCIe_Endpoint1_Device_ID4"), "USB4_PCIe_Endpoint_Device_ID 3.0 4.1 5.4");
  EXPECT_EQ(Resolve("USB4_PCIe_Endpoint1_Vendor_ID2"), "USB4_PCIe_Endpoint_Vendor_ID 3.0 4.1 5.2");
}

TEST_P(BuiltInTable, NumbersTheVifAndTheProductZero) {
  EXPECT_EQ(Resolve("VIF_Specification"), "VIF_Specification 1.0 - -");
  EXPECT_EQ(Resolve("Certification_Type"), "Certification_Type 3.0 - -");
  EXPECT_EQ(Resolve("Product_VID"), "Product_VID 3.0 - -");
  EXPECT_EQ(Resolve("USB4_Dock"), "USB4_Dock 3.0 - -");
}

TEST_P(BuiltInTable, NumbersTheComponentAsTheReaderDoes) {
  EXPECT_EQ(Resolve("Port_Label", 1), "Port_Label 6.1 - -");
  EXPECT_EQ(Resolve("Port_Label", 0), "Port_Label 6.0 - -");
  EXPECT_EQ(Resolve("Port_Label", 0xFFFFFFFF), "Port_Label 6.4294967295 - -");
}

TEST_P(BuiltInTable, TreatsTheRouterIndexAsAComponentsField) {
  EXPECT_EQ(Resolve("USB4_Router_Index"), "USB4_Router_Index 6.5 - -");
  EXPECT_EQ(Resolve("USB4_Router_Index1"), "?USB4_Router_Index1 - - -");
  EXPECT_EQ(Resolve("USB4_Router_ID1"), "USB4_Router_ID 3.0 4.1 -");
}

TEST_P(BuiltInTable, ReadsNumbersInDecimalUpTo64Bits) {
  EXPECT_EQ(Resolve("Src_PDO_Voltage0"), "Src_PDO_Voltage 6.5 7.0 -");
  EXPECT_EQ(Resolve("Src_PDO_Voltage0010"), "Src_PDO_Voltage 6.5 7.10 -");
  EXPECT_EQ(Resolve("Src_PDO_Voltage4294967296"), "Src_PDO_Voltage 6.5 7.4294967296 -");
  EXPECT_EQ(Resolve("Src_PDO_Voltage18446744073709551614"), "Src_PDO_Voltage 6.5 7.18446744073709551614 -");
}

TEST_P(BuiltInTable, LeavesANumberOfMoreThan64BitsUnset) {
  EXPECT_EQ(Resolve("Src_PDO_Voltage18446744073709551616"), "Src_PDO_Voltage 6.5 7.- -");
  EXPECT_EQ(Resolve("SVID" + std::string(40, '9') + "_Mode2_Enter"), "SVID_Mode_Enter 6.5 11.- 12.2");
}

TEST_P(BuiltInTable, KnowsTheCableControllerInBothSpellings) {
  EXPECT_EQ(Resolve("Cable_SOP_PP_Controller"), "Cable_SOP_PP_Controller 6.5 - -");
  EXPECT_EQ(Resolve("Cable_SOP''_Controller"), "Cable_SOP_PP_Controller 6.5 - -");
  EXPECT_EQ(Resolve("Cable_SOP'_Controller"), "?Cable_SOP'_Controller - - -");
}

TEST_P(BuiltInTable, KeepsTheMisspelledFieldSeparate) {
  EXPECT_EQ(Resolve("Active_Cable_Optically_Isolated"), "Active_Cable_Optically_Isolated 6.5 - -");
  EXPECT_EQ(Resolve("Active_Cable_Optically_Isololated"), "Active_Cable_Optically_Isololated 6.5 - -");
}

TEST_P(BuiltInTable, GivesOptionalContentNoLocation) { EXPECT_EQ(Resolve("OptionalContent"), "OptionalContent - - -"); }

TEST_P(BuiltInTable, LeavesAnUnknownNameAsWritten) {
  EXPECT_EQ(Resolve("My_Own_Field7"), "?My_Own_Field7 - - -");
  EXPECT_EQ(Resolve(""), "? - - -");
}

TEST_P(BuiltInTable, IsCaseSensitive) {
  EXPECT_EQ(Resolve("vendor_name"), "?vendor_name - - -");
  EXPECT_EQ(Resolve("Vendor_Name"), "Vendor_Name 1.0 - -");
}

TEST_P(BuiltInTable, MatchesTheWholeName) {
  EXPECT_EQ(Resolve("Vendor_Names"), "?Vendor_Names - - -");
  EXPECT_EQ(Resolve(" Vendor_Name"), "? Vendor_Name - - -");
  EXPECT_EQ(Resolve("Vendor_Name\n"), "?Vendor_Name\n - - -");
  EXPECT_EQ(Resolve("Vendor_Name\0"s), "?Vendor_Name\0 - - -"s);
  EXPECT_EQ(Resolve("Src_PDO_Voltage2 "), "?Src_PDO_Voltage2  - - -");
  EXPECT_EQ(Resolve("Src_PDO_Voltage-2"), "?Src_PDO_Voltage-2 - - -");
  EXPECT_EQ(Resolve("Src_PDO_Voltage2a"), "?Src_PDO_Voltage2a - - -");
  EXPECT_EQ(Resolve("Src_PDO_Voltage#"), "?Src_PDO_Voltage# - - -");
}

TEST_P(BuiltInTable, KeepsUnknownBytesUnchanged) {
  EXPECT_EQ(Resolve("Vendor_N\xC3\xA4me"), "?Vendor_N\xC3\xA4me - - -");
  EXPECT_EQ(Resolve("Vendor_Name\xFF"), "?Vendor_Name\xFF - - -");
}

TEST_P(BuiltInTable, KnowsOnlyAsciiDigits) {
  EXPECT_EQ(Resolve("Src_PDO_Voltage\xD9\xA3"), "?Src_PDO_Voltage\xD9\xA3 - - -");
}

TEST_P(BuiltInTable, IgnoresTheGlobalLocale) {
  const testsupport::CScopedGlobalLocale latin1(testsupport::Latin1Locale());
  EXPECT_EQ(Resolve("Src_PDO_Voltage2"), "Src_PDO_Voltage 6.5 7.2 -");
  EXPECT_EQ(Resolve("src_pdo_voltage2"), "?src_pdo_voltage2 - - -");
}

TEST_P(BuiltInTable, TerminatesOnANameOfAMillionCharacters) {
  const std::string unknown(1'000'000, 'x');
  try {
    EXPECT_EQ(Resolve(unknown), "?" + unknown + " - - -");
  } catch (const std::regex_error& error) {
    EXPECT_FALSE(vif::kHasStepwiseEngine);
    EXPECT_EQ(error.code(), std::regex_constants::error_complexity);
  }
}

TEST_P(BuiltInTable, MayBeUsedByManyThreadsAtOnce) {
  std::array<std::string, 8> results;
  std::vector<std::thread> threads;
  for (std::string& result : results) {
    threads.emplace_back([this, &result] { result = Resolve("SVID3_Mode2_Recog_Mask_SOP"); });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::string& result : results) EXPECT_EQ(result, "SVID_Mode_Recog_Mask_SOP 6.5 9.3 10.2");
}

TEST(FieldResolver, AcceptsANumberOfAMillionDigitsWithoutTryingTheBuiltInPatterns) {
  const std::string nines(1'000'000, '9');
  const std::string zeros(1'000'000, '0');
  for (const Table* table : {static_cast<const Table*>(nullptr), &VifFieldDefs::GetVifFieldDefs()}) {
    EXPECT_EQ(Resolved(table, "Src_PDO_Voltage" + nines), "Src_PDO_Voltage 6.5 7.- -");
    EXPECT_EQ(Resolved(table, "Src_PDO_Voltage" + zeros + "1"), "Src_PDO_Voltage 6.5 7.1 -");
  }
}

TEST(FieldResolver, ReadsNoDigitBeyondTheEndOfTheName) {
  const std::string_view longer = "Src_PDO_Voltage12";
  EXPECT_EQ(Resolved(nullptr, longer.substr(0, longer.size() - 1)), "Src_PDO_Voltage 6.5 7.1 -");
}

TEST(FieldResolver, KeepsNothingOfThePreviousName) {
  const vif::CFieldResolver resolver(nullptr, kComponent);
  vif::ResolvedName resolved;
  resolver.Resolve("SVID3_Mode2_Enter_SOP", resolved);
  resolver.Resolve("Port_Label", resolved);
  EXPECT_EQ(Text(resolved), "Port_Label 6.5 - -");
  resolver.Resolve("unknown", resolved);
  EXPECT_EQ(Text(resolved), "?unknown - - -");
}

TEST(OwnTable, MayBeEmpty) {
  const Table table;
  EXPECT_EQ(Resolved(&table, "Vendor_Name"), "?Vendor_Name - - -");
}

TEST(OwnTable, ReplacesTheBuiltInOne) {
  const Table table = {{L"Mine", std::wregex(L"Mine"), {eVifLocVif}}};
  EXPECT_EQ(Resolved(&table, "Mine"), "Mine 1.0 - -");
  EXPECT_EQ(Resolved(&table, "Vendor_Name"), "?Vendor_Name - - -");
}

TEST(OwnTable, ExtendsACopyOfTheBuiltInOne) {
  Table table = VifFieldDefs::GetVifFieldDefs();
  table.push_back({L"Mine", std::wregex(L"Mine([0-9]+)"), {eVifLocComponent, eVifLocSrcPdo}});
  EXPECT_EQ(Resolved(&table, "Mine8"), "Mine 6.5 7.8 -");
  EXPECT_EQ(Resolved(&table, "Vendor_Name"), "Vendor_Name 1.0 - -");
}

TEST(OwnTable, IsTriedInItsOwnOrder) {
  const VifFieldDef any = {L"Any", std::wregex(L".*"), {eVifLocVif}};
  const VifFieldDef one = {L"One", std::wregex(L"one"), {eVifLocProduct}};
  const Table anyFirst = {any, one};
  const Table oneFirst = {one, any};
  EXPECT_EQ(Resolved(&anyFirst, "one"), "Any 1.0 - -");
  EXPECT_EQ(Resolved(&oneFirst, "one"), "One 3.0 - -");
  EXPECT_EQ(Resolved(&oneFirst, "two"), "Any 1.0 - -");
}

TEST(OwnTable, MustMatchTheWholeName) {
  const Table table = {{L"Mine", std::wregex(L"Mine"), {}}};
  EXPECT_EQ(Resolved(&table, "Mine1"), "?Mine1 - - -");
  EXPECT_EQ(Resolved(&table, "aMine"), "?aMine - - -");
}

TEST(OwnTable, KeepsTheFlagsOfItsPatterns) {
  const Table table = {{L"Mine", std::wregex(L"mine", std::regex_constants::icase), {}}};
  EXPECT_EQ(Resolved(&table, "MINE"), "Mine - - -");
}

TEST(OwnTable, StoresTheEmptyNameForNull) {
  const Table table = {{nullptr, std::wregex(L"Nameless([0-9]*)"), {eVifLocComponent, eVifLocSnkPdo}}};
  EXPECT_EQ(Resolved(&table, "Nameless4"), " 6.5 8.4 -");
}

TEST(OwnTable, SeesNamesAsUnicode) {
  const Table table = {{L"\u00DCbung\u20AC", std::wregex(L"\u00FC.([0-9])"), {eVifLocSrcPdo}}};
  EXPECT_EQ(Resolved(&table,
                     "\xC3\xBC\xE2\x82\xAC"
                     "7"),
            "\xC3\x9C"
            "bung\xE2\x82\xAC 7.7 - -");
}

TEST(OwnTable, SeesBytesThatAreNotUtf8AsReplacementCharacters) {
  const Table table = {{L"Broken", std::wregex(L"a\uFFFDz"), {}}};
  EXPECT_EQ(Resolved(&table, "a\xFFz"), "Broken - - -");
}

TEST(OwnTable, NumbersTheApplicationHeaderZero) {
  const Table table = {{L"Mine", std::wregex(L"Mine([0-9]*)"), {eVifLocVif, eVifLocAppVersion, eVifLocProduct}}};
  EXPECT_EQ(Resolved(&table, "Mine4"), "Mine 1.0 2.0 3.0");
}

/// The result for one location of a definition with the two numbers of `Mine1_2`.
std::string MineAt(EVifLocation location) {
  const Table table = {{L"Mine", std::wregex(L"Mine([0-9]*)_([0-9]*)"), {location}}};
  return Resolved(&table, "Mine1_2");
}

TEST(OwnTable, FeedsTheFirstGroupToTheOuterGroupsOfTheFile) {
  EXPECT_EQ(MineAt(eVifLocRouter), "Mine 4.1 - -");
  EXPECT_EQ(MineAt(eVifLocSrcPdo), "Mine 7.1 - -");
  EXPECT_EQ(MineAt(eVifLocSnkPdo), "Mine 8.1 - -");
  EXPECT_EQ(MineAt(eVifLocSopSvid), "Mine 9.1 - -");
  EXPECT_EQ(MineAt(eVifLocCableSvid), "Mine 11.1 - -");
}

TEST(OwnTable, FeedsTheSecondGroupToTheInnerGroupsOfTheFile) {
  EXPECT_EQ(MineAt(eVifLocRouterPcie), "Mine 5.2 - -");
  EXPECT_EQ(MineAt(eVifLocSopSvidMode), "Mine 10.2 - -");
  EXPECT_EQ(MineAt(eVifLocCableSvidMode), "Mine 12.2 - -");
}

TEST(OwnTable, FeedsNoGroupToTheOthers) {
  EXPECT_EQ(MineAt(eVifLocVif), "Mine 1.0 - -");
  EXPECT_EQ(MineAt(eVifLocAppVersion), "Mine 2.0 - -");
  EXPECT_EQ(MineAt(eVifLocProduct), "Mine 3.0 - -");
  EXPECT_EQ(MineAt(eVifLocComponent), "Mine 6.5 - -");
}

TEST(OwnTable, MayFeedOneGroupTwice) {
  const Table table = {{L"Mine", std::wregex(L"Mine([0-9]*)"), {eVifLocSrcPdo, eVifLocSnkPdo, eVifLocSrcPdo}}};
  EXPECT_EQ(Resolved(&table, "Mine4"), "Mine 7.4 8.4 7.4");
}

TEST(OwnTable, SkipsUnsetLocationsBetweenOthers) {
  const std::wregex pattern(L"Mine([0-9]*)");
  const Table between = {{L"Mine", pattern, {eVifLocComponent, eVifLocUnset, eVifLocSrcPdo}}};
  EXPECT_EQ(Resolved(&between, "Mine4"), "Mine 6.5 7.4 -");
  const Table before = {{L"Mine", pattern, {eVifLocUnset, eVifLocUnset, eVifLocSrcPdo}}};
  EXPECT_EQ(Resolved(&before, "Mine4"), "Mine 7.4 - -");
}

TEST(OwnTable, LeavesTheNumberUnsetWithoutSuchAGroup) {
  const Table none = {{L"Mine", std::wregex(L"Mine[0-9]*"), {eVifLocSrcPdo, eVifLocSopSvidMode}}};
  EXPECT_EQ(Resolved(&none, "Mine4"), "Mine 7.- 10.- -");
  const Table one = {{L"Mine", std::wregex(L"Mine([0-9]*)"), {eVifLocSopSvid, eVifLocSopSvidMode}}};
  EXPECT_EQ(Resolved(&one, "Mine4"), "Mine 9.4 10.- -");
}

TEST(OwnTable, LeavesTheNumberUnsetWhenTheGroupCapturesNothing) {
  const Table table = {{L"Mine", std::wregex(L"Mine(?:a([0-9]*)|b([0-9]*))"), {eVifLocSopSvid, eVifLocSopSvidMode}}};
  EXPECT_EQ(Resolved(&table, "Minea1"), "Mine 9.1 10.- -");
  EXPECT_EQ(Resolved(&table, "Mineb2"), "Mine 9.- 10.2 -");
  EXPECT_EQ(Resolved(&table, "Minea"), "Mine 9.- 10.- -");
}

TEST(OwnTable, LeavesTheNumberUnsetWhenTheGroupCapturesNoNumber) {
  const Table table = {{L"Mine", std::wregex(L"Mine(.*)"), {eVifLocSopSvid}}};
  for (const std::string& captured : {"x"s, "-1"s, "+1"s, " 1"s, "\xD9\xA3"s}) {
    EXPECT_EQ(Resolved(&table, "Mine" + captured), "Mine 9.- - -") << captured;
  }
}

TEST(OwnTable, LeavesANumberOfMoreThan64BitsUnset) {
  const Table table = {{L"Mine", std::wregex(L"Mine([0-9]*)"), {eVifLocSopSvid}}};
  EXPECT_EQ(Resolved(&table, "Mine18446744073709551614"), "Mine 9.18446744073709551614 - -");
  EXPECT_EQ(Resolved(&table, "Mine18446744073709551616"), "Mine 9.- - -");
}

/// A definition with a location that does not exist, after one that matches first.
Table TableWithLocation(std::int32_t value) {
  return {{L"First", std::wregex(L"Mine1"), {eVifLocVif}},
          {L"Mine", std::wregex(L"Mine([0-9]*)"), {eVifLocComponent, static_cast<EVifLocation>(value)}}};
}

TEST(OwnTable, FailsOnAnUnknownLocationAtTheFirstNameThatMatches) {
  const Table table = TableWithLocation(13);
  const vif::CFieldResolver resolver(&table, kComponent);
  vif::ResolvedName resolved;
  resolver.Resolve("Other", resolved);
  EXPECT_EQ(Text(resolved), "?Other - - -");
  resolver.Resolve("Mine1", resolved);
  EXPECT_EQ(Text(resolved), "First 1.0 - -");
  EXPECT_EQ(RunTimeErrorOf([&] { resolver.Resolve("Mine2", resolved); }), "Internal error - Unknown EVifLocation: 13");
}

TEST(OwnTable, NamesAnyUnknownLocation) {
  const Table huge = TableWithLocation(2147483647);
  EXPECT_EQ(RunTimeErrorOf([&] { Resolved(&huge, "Mine"); }), "Internal error - Unknown EVifLocation: 2147483647");
  const Table negative = TableWithLocation(-1);
  EXPECT_EQ(RunTimeErrorOf([&] { Resolved(&negative, "Mine"); }), "Internal error - Unknown EVifLocation: -1");
}

TEST(OwnTable, FailsOnAnUnknownLocationInEverySlot) {
  for (size_t slot = 0; slot < 3; ++slot) {
    Table table = {{L"Mine", std::wregex(L"Mine"), {eVifLocVif, eVifLocVif, eVifLocVif}}};
    table[0].locations[slot] = static_cast<EVifLocation>(14);
    EXPECT_EQ(RunTimeErrorOf([&] { Resolved(&table, "Mine"); }), "Internal error - Unknown EVifLocation: 14") << slot;
  }
}

// Other standard libraries match such names on the heap or give up, each in its own way.
#if defined(__GLIBCXX__)

/// Resolves a name of 100,000 times "a" followed by `end`, using a table of one pattern.
std::string TextOfLongName(const wchar_t* pattern, const std::string& end = "") {
  const Table table = {{L"Long", std::wregex(pattern), {eVifLocComponent, eVifLocSrcPdo}}};
  vif::ResolvedName resolved;
  vif::CFieldResolver(&table, kComponent).Resolve(std::string(100'000, 'a') + end, resolved);
  return resolved.isKnown ? Text(resolved) : "unknown";
}

/// The code of the error that resolving a long name throws; nothing if it succeeds.
std::optional<std::regex_constants::error_type> ErrorOnLongName(const wchar_t* pattern) {
  try {
    TextOfLongName(pattern);
    return std::nullopt;
  } catch (const std::regex_error& error) {
    return error.code();
  }
}

void ExpectAnswersOnLongNames() {
  EXPECT_EQ(TextOfLongName(L".*", "12"), "Long 6.5 7.- -");
  EXPECT_EQ(TextOfLongName(L"^a*([0-9]*)$", "12"), "Long 6.5 7.12 -");
  EXPECT_EQ(TextOfLongName(L".*([0-9]+)", "12"), "Long 6.5 7.2 -");
  EXPECT_EQ(TextOfLongName(L"(?:a|b)*?([0-9]+)", "12"), "Long 6.5 7.12 -");
  EXPECT_EQ(TextOfLongName(L"[a-z]*", "12"), "unknown");
  EXPECT_EQ(TextOfLongName(L"a*b", ""), "unknown");
}

TEST(OwnTable, ResolvesLongNames) { ExpectAnswersOnLongNames(); }

TEST(OwnTable, ResolvesLongNamesOnASmallStack) { testsupport::RunOnSmallStack(ExpectAnswersOnLongNames); }

TEST(OwnTable, FailsOnLongNamesWhenAPatternHasABackReferenceOnASmallStack) {
  testsupport::RunOnSmallStack([] { EXPECT_EQ(ErrorOnLongName(L"(a)\\1*"), std::regex_constants::error_stack); });
}

#endif

TEST(OwnTable, FollowsBackReferencesAsFarAsTheStackAllows) {
  const Table table = {{L"Twice", std::wregex(L"(a)\\1.*"), {}}};
  testsupport::RunOnStack(testsupport::kOrdinaryStack,
                          [&] { EXPECT_EQ(Resolved(&table, std::string(3000, 'a')), "Twice - - -"); });
}

TEST(OwnTable, TerminatesOnAPatternThatRecursesDeeplyWithoutReadingAnything) {
  const std::wregex deep(L"(?:()+){9000}Abc");
  for (const std::size_t stack : {testsupport::kSmallStack, testsupport::kOrdinaryStack}) {
    testsupport::RunOnStack(stack, [&] {
      const Table table = {{L"Deep", deep, {}}};
      try {
        EXPECT_EQ(Resolved(&table, "Abc"), "Deep - - -");
      } catch (const std::regex_error& error) {
        EXPECT_EQ(error.code(),
                  vif::kHasStepwiseEngine ? std::regex_constants::error_stack : std::regex_constants::error_complexity);
      }
    });
  }
}

TEST(OwnTable, RemainsUsableAfterSuchAFailure) {
  const Table table = {{L"Long", std::wregex(L"(.)\\1.*"), {}}};
  const vif::CFieldResolver resolver(&table, kComponent);
  vif::ResolvedName resolved;
  EXPECT_THROW(resolver.Resolve(std::string(1'000'000, 'a'), resolved), std::regex_error);
  resolver.Resolve("short", resolved);
  EXPECT_FALSE(resolved.isKnown);
  resolver.Resolve("ssshort", resolved);
  EXPECT_EQ(Text(resolved), "Long - - -");
}

// Tables with copies of built-in definitions

TEST(CopiedTable, ResolvesLongNames) {
  const Table table = VifFieldDefs::GetVifFieldDefs();
  testsupport::RunOnSmallStack([&] {
    const std::string digits = std::string(100'000, '0') + "7";
    EXPECT_EQ(Resolved(&table, "Src_PDO_Voltage" + digits), Resolved(nullptr, "Src_PDO_Voltage7"));
    const std::string unknown(100'000, 'S');
    EXPECT_EQ(Resolved(&table, unknown), Resolved(nullptr, unknown));
  });
}

TEST(CopiedTable, MayGiveItsDefinitionsOtherNamesAndLocations) {
  Table table = VifFieldDefs::GetVifFieldDefs();
  for (VifFieldDef& definition : table) {
    definition.name = L"Other";
    definition.locations = {eVifLocProduct, eVifLocRouter, eVifLocSrcPdo};
  }
  EXPECT_EQ(Resolved(&table, "Src_PDO_Voltage7"), "Other 3.0 4.7 7.7");
  EXPECT_EQ(Resolved(&table, "TID"), "Other 3.0 4.- 7.-");
}

TEST(CopiedTable, MayHaveOtherPatternsUnderTheOldNames) {
  Table table = VifFieldDefs::GetVifFieldDefs();
  table.front().pattern = L"Mine";
  table.back().pattern.assign(L"TID");
  EXPECT_EQ(Resolved(&table, "Mine"), "VIF_Specification 1.0 - -");
  EXPECT_EQ(Resolved(&table, "VIF_Specification"), "?VIF_Specification - - -");
  EXPECT_EQ(Resolved(&table, "TID"), Resolved(nullptr, "TID"));
  std::swap(table[0].pattern, table[1].pattern);
  EXPECT_EQ(Resolved(&table, "VIF_Producer"), "VIF_Specification 1.0 - -");
  table[5].pattern.imbue(std::locale::classic());  // which clears it
  EXPECT_EQ(Resolved(&table, "TID"), "Active_Cable_Shutdown_Temp_Support 6.5 - -");
}

TEST(CopiedTable, IsTriedInItsOwnOrder) {
  Table table = VifFieldDefs::GetVifFieldDefs();
  table.insert(table.begin() + 100, {L"Mine", std::wregex(L"(?:TID|Src_PDO_Voltage1|Active_.*)"), {}});
  EXPECT_EQ(Resolved(&table, "TID"), Resolved(nullptr, "TID"));
  EXPECT_EQ(Resolved(&table, "Active_Cable_Shutdown_Temp_Support"), "Mine - - -");
  table.insert(table.begin(), {L"First", std::wregex(L"T.*"), {}});
  EXPECT_EQ(Resolved(&table, "TID"), "First - - -");
}

TEST(CopiedTable, UsesTheFirstOfSeveralCopies) {
  const VifFieldDef tid = VifFieldDefs::GetVifFieldDefs()[5];
  Table table = {tid, tid, tid};
  table[0].name = L"One";
  EXPECT_EQ(Resolved(&table, "TID"), "One 1.0 - -");
}

}  // namespace
