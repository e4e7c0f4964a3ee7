#include "BaseUtilities/SimpleBuffer.h"

#include "support/Random.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <string_view>

namespace {

using namespace std::string_literals;

enum Unscoped : std::int32_t { eSmall = -2 };
enum class Scoped : std::uint8_t { Large = 200 };

/// The text that a new buffer produces from a format.
template <typename... Arguments>
std::string Narrow(const char* format, const Arguments&... arguments) {
  CSimpleBuffer buffer;
  return buffer.Printf(format, arguments...);
}

template <typename... Arguments>
std::wstring Wide(const wchar_t* format, const Arguments&... arguments) {
  CSimpleBuffer buffer;
  return buffer.Printf(format, arguments...);
}

TEST(SimpleBuffer, IsEmptyAtFirst) {
  const CSimpleBuffer buffer;
  EXPECT_STREQ(buffer.get(), "");
  EXPECT_STREQ(buffer.getWide(), L"");
}

TEST(SimpleBuffer, ReturnsItsContent) {
  CSimpleBuffer buffer;
  const char* narrow = buffer.Printf("plain");
  EXPECT_EQ(narrow, buffer.get());
  EXPECT_STREQ(narrow, "plain");
  const wchar_t* wide = buffer.Printf(L"plain");
  EXPECT_EQ(wide, buffer.getWide());
  EXPECT_STREQ(wide, L"plain");
}

TEST(SimpleBuffer, ReplacesItsContent) {
  CSimpleBuffer buffer;
  buffer.Printf("a first, longer text %d", 1);
  buffer.Printf("second");
  EXPECT_STREQ(buffer.get(), "second");
  buffer.Printf(L"a first, longer text %d", 1);
  buffer.Printf(L"second");
  EXPECT_STREQ(buffer.getWide(), L"second");
}

TEST(SimpleBuffer, GrowsAsNeeded) {
  const std::string text(100'000, 't');
  EXPECT_EQ(Narrow("<%s>", text), "<" + text + ">");
}

TEST(SimpleBuffer, HoldsWideAndNarrowTextAtTheSameTime) {
  CSimpleBuffer buffer;
  buffer.Printf("narrow");
  buffer.Printf(L"wide");
  EXPECT_STREQ(buffer.get(), "narrow");
  EXPECT_STREQ(buffer.getWide(), L"wide");
}

TEST(SimpleBuffer, TreatsNullAsTheEmptyFormat) {
  CSimpleBuffer buffer;
  buffer.Printf("before");
  EXPECT_STREQ(buffer.Printf(static_cast<const char*>(nullptr)), "");
  EXPECT_STREQ(buffer.Printf(static_cast<const char*>(nullptr), 1), "");
  buffer.Printf(L"before");
  EXPECT_STREQ(buffer.Printf(static_cast<const wchar_t*>(nullptr)), L"");
}

TEST(SimpleBuffer, PrintsTextUnchangedWhateverThePlaceholder) {
  for (const char* format : {"%d", "%i", "%u", "%x", "%X", "%o", "%c", "%s", "%S", "%ls", "%hs"}) {
    EXPECT_EQ(Narrow(format, "text"), "text") << format;
    EXPECT_EQ(Narrow(format, L"text"), "text") << format;
    EXPECT_EQ(Narrow(format, "text"s), "text") << format;
    EXPECT_EQ(Narrow(format, L"text"s), "text") << format;
    EXPECT_EQ(Narrow(format, CSafeString("text")), "text") << format;
  }
}

TEST(SimpleBuffer, PrintsWideTextAsUtf8) {
  EXPECT_EQ(Narrow("%s", L"\u00E4\u20AC"), "\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(Narrow("%s", L"\U0001F50C"), "\xF0\x9F\x94\x8C");
}

TEST(SimpleBuffer, PrintsUtf8AsWideTextInAWideFormat) {
  EXPECT_EQ(Wide(L"<%s>", "\xC3\xA4\xE2\x82\xAC"), L"<\u00E4\u20AC>");
  EXPECT_EQ(Wide(L"\u20AC%s", L"\u00E4"), L"\u20AC\u00E4");
  EXPECT_EQ(Wide(L"\U0001F50C"), L"\U0001F50C");
}

TEST(SimpleBuffer, PrintsBytesThatAreNotUtf8Unchanged) { EXPECT_EQ(Narrow("\xFE%s", "\xFF\x80"), "\xFE\xFF\x80"); }

TEST(SimpleBuffer, PrintsBytesThatAreNotUtf8AsReplacementCharactersInAWideFormat) {
  EXPECT_EQ(Wide(L"<%s>", "a\xFFz"), L"<a\uFFFDz>");
}

TEST(SimpleBuffer, PrintsNullTexts) {
  EXPECT_EQ(Narrow("%s", static_cast<const char*>(nullptr)), "(null)");
  EXPECT_EQ(Narrow("%s", static_cast<const wchar_t*>(nullptr)), "(null)");
  EXPECT_EQ(Narrow("%s", nullptr), "(null)");
  EXPECT_EQ(Narrow("%d", static_cast<const char*>(nullptr)), "(null)");
  EXPECT_EQ(Narrow("%8s|%-8s|%08s", nullptr, nullptr, nullptr), "  (null)|(null)  |  (null)");
  EXPECT_EQ(Wide(L"%s", static_cast<const char*>(nullptr)), L"(null)");
}

TEST(SimpleBuffer, KeepsTextAfterAnEmbeddedNulOfAnArgument) {
  CSimpleBuffer buffer;
  EXPECT_EQ(std::string_view(buffer.Printf("<%s>", "a\0b"s), 5), "<a\0b>"s);
}

TEST(SimpleBuffer, PrintsNumbersInDecimal) {
  for (const char* format : {"%d", "%i", "%u", "%c", "%s", "%S"}) {
    EXPECT_EQ(Narrow(format, 0), "0") << format;
    EXPECT_EQ(Narrow(format, 1234), "1234") << format;
    EXPECT_EQ(Narrow(format, std::uint64_t{18446744073709551615U}), "18446744073709551615") << format;
  }
}

TEST(SimpleBuffer, PrintsNegativeNumbersWithTheirSign) {
  for (const char* format : {"%d", "%i", "%c", "%s", "%S"}) {
    EXPECT_EQ(Narrow(format, -5), "-5") << format;
    EXPECT_EQ(Narrow(format, std::numeric_limits<std::int64_t>::min()), "-9223372036854775808") << format;
  }
}

TEST(SimpleBuffer, DoesNotTurnLargeUnsignedNumbersNegative) {
  EXPECT_EQ(Narrow("%d", std::uint32_t{4294967295U}), "4294967295");
  EXPECT_EQ(Narrow("%d", std::uint64_t{18446744073709551615U}), "18446744073709551615");
}

TEST(SimpleBuffer, PrintsNumbersInTheRequestedBase) {
  EXPECT_EQ(Narrow("%x", 0xBEEF), "beef");
  EXPECT_EQ(Narrow("%X", 0xbeef), "BEEF");
  EXPECT_EQ(Narrow("%o", 8), "10");
  EXPECT_EQ(Narrow("%o", std::uint64_t{18446744073709551615U}), "1777777777777777777777");
}

TEST(SimpleBuffer, PrintsNegativeNumbersInTwosComplementOfTheirOwnSize) {
  EXPECT_EQ(Narrow("%08X", std::int32_t{-2147467261}), "80004003");
  EXPECT_EQ(Narrow("%x", std::int8_t{-1}), "ff");
  EXPECT_EQ(Narrow("%X", std::int16_t{-2}), "FFFE");
  EXPECT_EQ(Narrow("%x", std::int64_t{-1}), "ffffffffffffffff");
  EXPECT_EQ(Narrow("%u", std::int32_t{-1}), "4294967295");
  EXPECT_EQ(Narrow("%o", std::int8_t{-1}), "377");
  EXPECT_EQ(Narrow("%u", std::numeric_limits<std::int64_t>::min()), "9223372036854775808");
}

TEST(SimpleBuffer, PrintsNumbersOfEverySize) {
  EXPECT_EQ(Narrow("%d %d", std::int8_t{65}, std::uint8_t{66}), "65 66");
  EXPECT_EQ(Narrow("%d %d", std::int16_t{-300}, std::uint16_t{300}), "-300 300");
  EXPECT_EQ(Narrow("%d %d", 1L, 2UL), "1 2");
  EXPECT_EQ(Narrow("%d %d", 3LL, 4ULL), "3 4");
  EXPECT_EQ(Narrow("%d%d", true, false), "10");
}

TEST(SimpleBuffer, PrintsEnumerationsAsTheirNumbers) {
  EXPECT_EQ(Narrow("%d %d", eSmall, Scoped::Large), "-2 200");
  EXPECT_EQ(Narrow("%X", eSmall), "FFFFFFFE");
}

TEST(SimpleBuffer, PrintsCharactersAsThemselves) {
  EXPECT_EQ(Narrow("%c%s%S", 'a', 'b', 'c'), "abc");
  EXPECT_EQ(Narrow("%c%s%S", L'a', L'\u00E4', L'\u20AC'), "a\xC3\xA4\xE2\x82\xAC");
  EXPECT_EQ(Wide(L"%c%c", 'a', L'\u20AC'), L"a\u20AC");
}

TEST(SimpleBuffer, PrintsCharactersAsTheirCodesUnderNumberPlaceholders) {
  EXPECT_EQ(Narrow("%d %i %u %x %X %o", 'A', 'B', 'C', 'J', 'J', 'A'), "65 66 67 4a 4A 101");
  EXPECT_EQ(Narrow("%d %X", L'\u20AC', L'\u20AC'), "8364 20AC");
}

TEST(SimpleBuffer, PrintsADoubledPercentSignAsOne) {
  EXPECT_EQ(Narrow("100%%"), "100%");
  EXPECT_EQ(Narrow("%%%d%%", 5), "%5%");
  EXPECT_EQ(Narrow("%%d", 5), "%d");
  EXPECT_EQ(Wide(L"100%%"), L"100%");
}

TEST(SimpleBuffer, IgnoresLengthModifiers) {
  for (const std::string& length : {"h"s, "hh"s, "l"s, "ll"s, "z"s, "t"s, "j"s, "L"s, "hlztjL"s}) {
    EXPECT_EQ(Narrow(("%" + length + "d").c_str(), -1), "-1") << length;
    EXPECT_EQ(Narrow(("%" + length + "x").c_str(), std::int32_t{-1}), "ffffffff") << length;
    EXPECT_EQ(Narrow(("%-4" + length + "u|").c_str(), std::uint64_t{18446744073709551615U}), "18446744073709551615|")
        << length;
    EXPECT_EQ(Narrow(("%" + length + "s").c_str(), "text"), "text") << length;
    EXPECT_EQ(Narrow(("%" + length + "s").c_str(), L"text"), "text") << length;
  }
}

TEST(SimpleBuffer, PadsToTheWidth) {
  EXPECT_EQ(Narrow("%5d|%5s|%5c|", 42, "ab", 'c'), "   42|   ab|    c|");
  EXPECT_EQ(Narrow("%1d|%0d", 42, 42), "42|42");
  EXPECT_EQ(Wide(L"%5d|%-5s|", 42, L"ab"), L"   42|ab   |");
}

TEST(SimpleBuffer, PadsOnTheRightWhenLeftAligned) {
  EXPECT_EQ(Narrow("%-5d|%-5s|%-5c|", 42, "ab", 'c'), "42   |ab   |c    |");
}

TEST(SimpleBuffer, PadsNumbersWithZerosOnRequest) { EXPECT_EQ(Narrow("%05d|%04X", 42, 0xAB), "00042|00AB"); }

TEST(SimpleBuffer, PutsTheSignBeforeTheZeros) { EXPECT_EQ(Narrow("%05d", -42), "-0042"); }

TEST(SimpleBuffer, PadsTheCodeOfACharacterWithZeros) { EXPECT_EQ(Narrow("%04X", 'A'), "0041"); }

TEST(SimpleBuffer, NeverPadsTextOrOnTheRightWithZeros) {
  EXPECT_EQ(Narrow("%-05d|%0-5d|", 42, 42), "42   |42   |");
  EXPECT_EQ(Narrow("%05s", "ab"), "   ab");
  EXPECT_EQ(Narrow("%05s", "-1"), "   -1");
}

TEST(SimpleBuffer, CountsWidthsInUnicodeCharacters) {
  EXPECT_EQ(Narrow("%3s", "\xC3\xA4"), "  \xC3\xA4");
  EXPECT_EQ(Narrow("%-3s|", "\xE2\x82\xAC"), "\xE2\x82\xAC  |");
  EXPECT_EQ(Narrow("%2s", L"\U0001F50C"), " \xF0\x9F\x94\x8C");
  EXPECT_EQ(Wide(L"%2s", L"\U0001F50C"), L" \U0001F50C");
}

TEST(SimpleBuffer, LimitsWidthsToOneThousand) {
  EXPECT_EQ(Narrow("%999d", 1), std::string(998, ' ') + "1");
  EXPECT_EQ(Narrow("%1000d", 1), std::string(999, ' ') + "1");
  for (const char* format : {"%1001d", "%5000d", "%4294967297d", "%18446744073709551617d",
                             "%99999999999999999999999999999999999999999999d"}) {
    EXPECT_EQ(Narrow(format, 1), std::string(999, ' ') + "1") << format;
  }
}

TEST(SimpleBuffer, DoesNotShortenTextToTheWidth) {
  const std::string text(3000, 't');
  EXPECT_EQ(Narrow("%2000s", text), text);
  EXPECT_EQ(Narrow("%1s", "text"), "text");
}

TEST(SimpleBuffer, PrintsPlaceholdersWithoutAnArgumentUnchanged) {
  EXPECT_EQ(Narrow("%d"), "%d");
  EXPECT_EQ(Narrow("%s and %-08lX", "one"), "one and %-08lX");
  EXPECT_EQ(Wide(L"%d %s", 1), L"1 %s");
}

TEST(SimpleBuffer, PrintsUnknownPlaceholdersUnchanged) {
  for (const std::string& format : {"%q"s, "%"s, "%5"s, "%-"s, "%l"s, "%.3s"s, "%*d"s, "%n"s, "%f"s, "%p"s, "%+d"s,
                                    "% d"s, "%#x"s, "%1$s"s, "%I64u"s, "%\xC3\xA4"s}) {
    EXPECT_EQ(Narrow(format.c_str(), 7), format);
    EXPECT_EQ(Narrow((format + ", %d").c_str(), 7), format + ", 7");
  }
}

TEST(SimpleBuffer, IgnoresSurplusArguments) { EXPECT_EQ(Narrow("%d", 1, "two", L"three"), "1"); }

TEST(SimpleBuffer, TreatsPlaceholdersInAnArgumentAsText) {
  EXPECT_EQ(Narrow("%s %s", "%s%d%%%n", "end"), "%s%d%%%n end");
  EXPECT_EQ(Wide(L"%s %s", L"%s%d%%%n", "end"), L"%s%d%%%n end");
}

TEST(SimpleBuffer, AcceptsItsOwnContentAsArgument) {
  CSimpleBuffer buffer;
  buffer.Printf("%s", std::string(50, 'n'));
  EXPECT_EQ(buffer.Printf("%s<%s>", buffer.get(), buffer.get() + 48), std::string(50, 'n') + "<nn>");
  buffer.Printf(L"%s", std::wstring(50, L'w'));
  EXPECT_EQ(buffer.Printf(L"%s<%s>", buffer.getWide(), buffer.getWide() + 48), std::wstring(50, L'w') + L"<ww>");
}

TEST(SimpleBuffer, AcceptsItsOwnContentAsFormat) {
  CSimpleBuffer buffer;
  buffer.Printf("%s", "%d of %d, in a text that needs memory of its own");
  EXPECT_STREQ(buffer.Printf(buffer.get(), 1, 2), "1 of 2, in a text that needs memory of its own");
}

TEST(SimpleBuffer, ConvertsItsContentBetweenNarrowAndWide) {
  CSimpleBuffer buffer;
  buffer.Printf("\xC3\xA4");
  buffer.Printf(L"<%s>", buffer.get());
  EXPECT_STREQ(buffer.Printf("[%s]", buffer.getWide()), "[<\xC3\xA4>]");
}

/// Random text from the given characters.
std::string RandomText(std::mt19937_64& generator, std::string_view characters, size_t maxLength) {
  std::string text(testsupport::RandomBelow(generator, maxLength + 1), ' ');
  for (char& c : text) c = characters[testsupport::RandomBelow(generator, characters.size())];
  return text;
}

TEST(SimpleBuffer, ChangesNothingButDoubledPercentSignsWithoutArguments) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 20'000; ++i) {
    const std::string format = RandomText(generator, "%%%%-0179hlzdxXsS n.*", 20);
    std::string expected;
    for (size_t at = 0; at < format.size(); ++at) {
      expected += format[at];
      if (format.compare(at, 2, "%%") == 0) ++at;
    }
    ASSERT_EQ(Narrow(format.c_str()), expected);
  }
}

TEST(SimpleBuffer, SurvivesAnyFormatWithAnyArguments) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 20'000; ++i) {
    const std::string format = RandomText(generator, "%%%%-0179hlzdxXocsS n.*\xC3\xA4\xFF", 20);
    const std::string text = RandomText(generator, "%-0ds\xC3\xA4\xFF", 5);
    CSimpleBuffer buffer;
    const std::string narrow = buffer.Printf(format.c_str(), -1, text, nullptr, L'\u20AC', text.c_str());
    const std::wstring wideFormat(format.begin(), format.end());
    const std::wstring wide = buffer.Printf(wideFormat.c_str(), text, L"w", -1, 'c', nullptr);
    // The output contains nothing that neither the format nor the widths account for.
    ASSERT_LE(narrow.size(), format.size() + 5 * 3000);
    ASSERT_LE(wide.size(), format.size() + 5 * 1000);
  }
}

TEST(SimpleBuffer, PrintsNumbersAsTheCLibraryDoes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 20'000; ++i) {
    const auto number = static_cast<std::int32_t>(generator() >> testsupport::RandomBelow(generator, 64));
    const std::string flags = RandomText(generator, "-0", 2);
    const std::string width = std::to_string(testsupport::RandomBelow(generator, 30));
    const char conversion = "diuxXo"[testsupport::RandomBelow(generator, 6)];
    const std::string format = "<%" + flags + width + conversion + ">";
    std::array<char, 64> expected{};
    std::snprintf(expected.data(), expected.size(), format.c_str(), number);
    ASSERT_STREQ(Narrow(format.c_str(), number).c_str(), expected.data()) << format << " of " << number;
  }
}

}  // namespace
