#include "BaseUtilities/StringConvert.h"

#include "support/Latin1Locale.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using namespace std::string_literals;

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;

bool IsSurrogate(char32_t codePoint) { return codePoint >= 0xD800 && codePoint <= 0xDFFF; }

/// The platform's wide text of the code points.
std::wstring Wide(std::u32string_view codePoints) {
  std::wstring text;
  for (const char32_t codePoint : codePoints) {
    if (sizeof(wchar_t) == 2 && codePoint > 0xFFFF) {
      text += static_cast<wchar_t>(0xD7C0 + (codePoint >> 10));
      text += static_cast<wchar_t>(0xDC00 + (codePoint & 0x3FF));
    } else {
      text += static_cast<wchar_t>(codePoint);
    }
  }
  return text;
}

/// That many replacement characters.
std::u32string Replacements(size_t count) { return std::u32string(count, kReplacement); }

/// One row of the Unicode standard's table of well-formed byte sequences: the range of each byte.
struct WellFormedRow {
  size_t length;
  std::array<std::array<std::uint8_t, 2>, 4> ranges;
};

constexpr WellFormedRow kWellFormed[] = {
    {1, {{{0x00, 0x7F}}}},
    {2, {{{0xC2, 0xDF}, {0x80, 0xBF}}}},
    {3, {{{0xE0, 0xE0}, {0xA0, 0xBF}, {0x80, 0xBF}}}},
    {3, {{{0xE1, 0xEC}, {0x80, 0xBF}, {0x80, 0xBF}}}},
    {3, {{{0xED, 0xED}, {0x80, 0x9F}, {0x80, 0xBF}}}},
    {3, {{{0xEE, 0xEF}, {0x80, 0xBF}, {0x80, 0xBF}}}},
    {4, {{{0xF0, 0xF0}, {0x90, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}}},
    {4, {{{0xF1, 0xF3}, {0x80, 0xBF}, {0x80, 0xBF}, {0x80, 0xBF}}}},
    {4, {{{0xF4, 0xF4}, {0x80, 0x8F}, {0x80, 0xBF}, {0x80, 0xBF}}}},
};

/// How many bytes at the start of the text match the row.
size_t MatchingBytes(std::string_view text, const WellFormedRow& row) {
  size_t i = 0;
  while (i < row.length && i < text.size() && static_cast<std::uint8_t>(text[i]) >= row.ranges[i][0] &&
         static_cast<std::uint8_t>(text[i]) <= row.ranges[i][1]) {
    ++i;
  }
  return i;
}

char32_t Value(std::string_view sequence) {
  constexpr std::uint8_t leadBits[] = {0x7F, 0x1F, 0x0F, 0x07};
  char32_t value = static_cast<std::uint8_t>(sequence[0]) & leadBits[sequence.size() - 1];
  for (const char c : sequence.substr(1)) value = value * 64 + (static_cast<std::uint8_t>(c) - 0x80U);
  return value;
}

/// Decodes by the definition: the longest beginning of a well-formed sequence that is not complete becomes one
/// replacement character, and so does each byte that can start none.
std::u32string DecodeByDefinition(std::string_view text) {
  std::u32string decoded;
  while (!text.empty()) {
    size_t longest = 1;
    char32_t codePoint = kReplacement;
    for (const WellFormedRow& row : kWellFormed) {
      const size_t matching = MatchingBytes(text, row);
      longest = std::max(longest, matching);
      if (matching == row.length) codePoint = Value(text.substr(0, matching));
    }
    decoded += codePoint;
    text.remove_prefix(longest);
  }
  return decoded;
}

std::string Encode(char32_t codePoint) {
  const auto tail = [&](unsigned shift) { return static_cast<char>(0x80 + (codePoint >> shift) % 64); };
  if (codePoint < 0x80) return {static_cast<char>(codePoint)};
  if (codePoint < 0x800) return {static_cast<char>(0xC0 + (codePoint >> 6)), tail(0)};
  if (codePoint < 0x10000) return {static_cast<char>(0xE0 + (codePoint >> 12)), tail(6), tail(0)};
  return {static_cast<char>(0xF0 + (codePoint >> 18)), tail(12), tail(6), tail(0)};
}

std::string Hex(std::string_view bytes) {
  std::string text;
  for (const char c : bytes) {
    text += "0123456789ABCDEF"[static_cast<std::uint8_t>(c) / 16];
    text += "0123456789ABCDEF"[static_cast<std::uint8_t>(c) % 16];
    text += ' ';
  }
  return text;
}

TEST(Utf8ToUtf16, TurnsAsciiIntoItsWideForm) {
  EXPECT_EQ(Utf8ToUtf16("Src_PDO_Voltage2"), L"Src_PDO_Voltage2");
  EXPECT_EQ(Utf8ToUtf16(""), L"");
}

TEST(Utf16ToUtf8, TurnsAsciiIntoItsNarrowForm) {
  EXPECT_EQ(Utf16ToUtf8(L"Src_PDO_Voltage2"), "Src_PDO_Voltage2");
  EXPECT_EQ(Utf16ToUtf8(L""), "");
}

TEST(StringConvert, KeepsEmbeddedNuls) {
  EXPECT_EQ(Utf8ToUtf16("a\0b\0"s), L"a\0b\0"s);
  EXPECT_EQ(Utf16ToUtf8(L"a\0b\0"s), "a\0b\0"s);
}

TEST(StringConvert, ConvertsSequencesOfEveryLength) {
  const std::string utf8 = "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x8C";
  const std::wstring wide = Wide(U"A\u00E4\u20AC\U0001F50C");
  EXPECT_EQ(Utf8ToUtf16(utf8), wide);
  EXPECT_EQ(Utf16ToUtf8(wide), utf8);
}

TEST(StringConvert, ConvertsTheFirstAndLastCodePointOfEveryLength) {
  const std::string utf8 = "\0\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"s;
  const std::u32string codePoints = {0, 0x7F, 0x80, 0x7FF, 0x800, 0xFFFF, 0x10000, 0x10FFFF};
  EXPECT_EQ(Utf8ToUtf16(utf8), Wide(codePoints));
  EXPECT_EQ(Utf16ToUtf8(Wide(codePoints)), utf8);
}

TEST(StringConvert, ConvertsEveryCodePointBothWays) {
  for (char32_t codePoint = 0; codePoint <= kLastCodePoint; ++codePoint) {
    if (IsSurrogate(codePoint)) continue;
    const std::string utf8 = Encode(codePoint);
    const std::wstring wide = Wide({&codePoint, 1});
    if (Utf16ToUtf8(wide) != utf8 || Utf8ToUtf16(utf8) != wide) {
      FAIL() << "U+" << std::hex << static_cast<std::uint32_t>(codePoint);
    }
  }
}

TEST(StringConvert, RoundTripsAllCodePointsInOneText) {
  std::u32string codePoints;
  for (char32_t codePoint = 0; codePoint <= kLastCodePoint; ++codePoint) {
    if (!IsSurrogate(codePoint)) codePoints += codePoint;
  }
  const std::wstring wide = Wide(codePoints);
  EXPECT_TRUE(Utf8ToUtf16(Utf16ToUtf8(wide)) == wide);
}

TEST(Utf8ToUtf16, ReplacesALoneContinuationByte) {
  for (char32_t byte = 0x80; byte <= 0xBF; ++byte) {
    EXPECT_EQ(Utf8ToUtf16(std::string{'a', static_cast<char>(byte), 'z'}), L"a\uFFFDz");
  }
  EXPECT_EQ(Utf8ToUtf16("\x80\x80\xBF"), Wide(Replacements(3)));
  EXPECT_EQ(Utf8ToUtf16("\xC3\xA4\xA4"), L"\u00E4\uFFFD");
}

TEST(Utf8ToUtf16, ReplacesAByteThatCanStartNothing) {
  for (const int byte : {0xC0, 0xC1, 0xF5, 0xF8, 0xFC, 0xFE, 0xFF}) {
    EXPECT_EQ(Utf8ToUtf16(std::string{'a', static_cast<char>(byte), 'z'}), L"a\uFFFDz") << byte;
  }
}

TEST(Utf8ToUtf16, ReplacesEachByteOfAnOverlongForm) {
  EXPECT_EQ(Utf8ToUtf16("\xC0\x80"), Wide(Replacements(2)));
  EXPECT_EQ(Utf8ToUtf16("\xC1\xBF"), Wide(Replacements(2)));
  EXPECT_EQ(Utf8ToUtf16("\xE0\x80\x80"), Wide(Replacements(3)));
  EXPECT_EQ(Utf8ToUtf16("\xE0\x9F\xBF"), Wide(Replacements(3)));
  EXPECT_EQ(Utf8ToUtf16("\xF0\x80\x80\x80"), Wide(Replacements(4)));
  EXPECT_EQ(Utf8ToUtf16("\xF0\x8F\xBF\xBF"), Wide(Replacements(4)));
  EXPECT_EQ(Utf8ToUtf16("\xC0\xAF\xE0\x80\xBF\xF0\x81\x82\x41"), Wide(Replacements(8) + U"A"));
}

TEST(Utf8ToUtf16, ReplacesEachByteOfASurrogate) {
  EXPECT_EQ(Utf8ToUtf16("\xED\xA0\x80"), Wide(Replacements(3)));
  EXPECT_EQ(Utf8ToUtf16("\xED\xBF\xBF"), Wide(Replacements(3)));
  EXPECT_EQ(Utf8ToUtf16("\xED\xA0\x80\xED\xBF\xBF\xED\xAF\x41"), Wide(Replacements(8) + U"A"));
  EXPECT_EQ(Utf8ToUtf16("\xED\x9F\xBF\xEE\x80\x80"), L"\uD7FF\uE000");
}

TEST(Utf8ToUtf16, ReplacesEachByteOfAValueBeyondTheLastCodePoint) {
  EXPECT_EQ(Utf8ToUtf16("\xF4\x90\x80\x80"), Wide(Replacements(4)));
  EXPECT_EQ(Utf8ToUtf16("\xF7\xBF\xBF\xBF"), Wide(Replacements(4)));
  EXPECT_EQ(Utf8ToUtf16("\xF8\x88\x80\x80\x80"), Wide(Replacements(5)));
  EXPECT_EQ(Utf8ToUtf16("\xF4\x91\x92\x93\xFF\x41\x80\xBF\x42"), Wide(Replacements(5) + U"A" + Replacements(2) + U"B"));
}

TEST(Utf8ToUtf16, ReplacesATruncatedSequenceAsOne) {
  EXPECT_EQ(Utf8ToUtf16("\xC3"), L"\uFFFD");
  EXPECT_EQ(Utf8ToUtf16("\xE2\x82"), L"\uFFFD");
  EXPECT_EQ(Utf8ToUtf16("\xF0\x9F\x94"), L"\uFFFD");
  EXPECT_EQ(Utf8ToUtf16("\xE2\x82z"), L"\uFFFDz");
  EXPECT_EQ(Utf8ToUtf16("\xF0\x9F\x94\xC3\xA4"), L"\uFFFD\u00E4");
  EXPECT_EQ(Utf8ToUtf16("\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41"), Wide(Replacements(4) + U"A"));
}

TEST(Utf8ToUtf16, DoesNotReadPastTheGivenText) {
  EXPECT_EQ(Utf8ToUtf16(std::string_view("\xE2\x82\xAC", 2)), L"\uFFFD");
  EXPECT_EQ(Utf8ToUtf16(std::string_view("ab", 1)), L"a");
}

TEST(Utf8ToUtf16, AgreesWithTheDefinitionOnEveryOneAndTwoBytes) {
  for (int first = 0; first < 256; ++first) {
    for (int second = -1; second < 256; ++second) {
      std::string text(1, static_cast<char>(first));
      if (second >= 0) text += static_cast<char>(second);
      ASSERT_EQ(Utf8ToUtf16(text), Wide(DecodeByDefinition(text))) << Hex(text);
    }
  }
}

TEST(Utf8ToUtf16, AgreesWithTheDefinitionAtTheEdgesOfEveryRange) {
  constexpr std::uint8_t edges[] = {0x00, 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF,
                                    0xE0, 0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF};
  std::string text(4, '\0');
  for (const std::uint8_t first : edges) {
    text[0] = static_cast<char>(first);
    for (const std::uint8_t second : edges) {
      text[1] = static_cast<char>(second);
      for (const std::uint8_t third : edges) {
        text[2] = static_cast<char>(third);
        for (const std::uint8_t fourth : edges) {
          text[3] = static_cast<char>(fourth);
          if (Utf8ToUtf16(text) != Wide(DecodeByDefinition(text))) FAIL() << Hex(text);
        }
      }
    }
  }
}

TEST(Utf8ToUtf16, AgreesWithTheDefinitionOnRandomBytes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 50'000; ++i) {
    std::string text;
    const size_t length = testsupport::RandomBelow(generator, 40);
    // Half the bytes are continuations, so that sequences get far enough to fail late.
    while (text.size() < length) {
      const size_t byte = testsupport::RandomBelow(generator, 512);
      text += static_cast<char>(byte < 256 ? byte : 0x80 + byte % 64);
    }
    ASSERT_EQ(Utf8ToUtf16(text), Wide(DecodeByDefinition(text))) << Hex(text);
  }
}

TEST(StringConvert, ConvertsACharacterAtEveryPlaceInAsciiOfEveryLength) {
  for (const char32_t codePoint : {U'\0', U'\x7F', U'\x80', U'\u00E4', U'\u20AC', U'\uFFFF', U'\U0001F50C'}) {
    for (size_t length = 1; length <= 70; ++length) {
      for (size_t place = 0; place < length; ++place) {
        std::u32string codePoints(length, U'a');
        codePoints[place] = codePoint;
        const std::string utf8 = std::string(place, 'a') + Encode(codePoint) + std::string(length - place - 1, 'a');
        ASSERT_EQ(Utf8ToUtf16(utf8), Wide(codePoints)) << Hex(utf8);
        ASSERT_EQ(Utf16ToUtf8(Wide(codePoints)), utf8) << Hex(utf8);
      }
    }
  }
}

TEST(StringConvert, ConvertsRandomTextsCharacterByCharacter) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 20'000; ++i) {
    const size_t length = testsupport::RandomBelow(generator, 71);
    const size_t asciiIn100 = testsupport::RandomBelow(generator, 101);
    std::u32string codePoints;
    std::string utf8;
    while (codePoints.size() < length) {
      const bool isAscii = testsupport::RandomBelow(generator, 100) < asciiIn100;
      const auto codePoint = static_cast<char32_t>(testsupport::RandomBelow(generator, isAscii ? 0x80 : 0x11'0000));
      if (IsSurrogate(codePoint)) continue;
      codePoints += codePoint;
      utf8 += Encode(codePoint);
    }
    ASSERT_EQ(Utf8ToUtf16(utf8), Wide(codePoints)) << Hex(utf8);
    ASSERT_EQ(Utf16ToUtf8(Wide(codePoints)), utf8) << Hex(utf8);
  }
}

TEST(Utf8ToUtf16, ReplacesAByteAtEveryPlaceInAsciiOfEveryLength) {
  for (size_t length = 1; length <= 70; ++length) {
    for (size_t place = 0; place < length; ++place) {
      std::string text(length, 'a');
      text[place] = '\x80';
      std::wstring expected(length, L'a');
      expected[place] = L'\uFFFD';
      ASSERT_EQ(Utf8ToUtf16(text), expected) << place << " of " << length;
    }
  }
}

TEST(Utf16ToUtf8, ReplacesASurrogateAtEveryPlaceInAsciiOfEveryLength) {
  for (size_t length = 1; length <= 70; ++length) {
    for (size_t place = 0; place < length; ++place) {
      std::wstring text(length, L'a');
      text[place] = static_cast<wchar_t>(0xDC41);  // its low byte is a letter
      const std::string expected = std::string(place, 'a') + "\xEF\xBF\xBD" + std::string(length - place - 1, 'a');
      ASSERT_EQ(Utf16ToUtf8(text), expected) << place << " of " << length;
    }
  }
}

TEST(Utf16ToUtf8, ReplacesASurrogateWithoutItsPartner) {
  for (char32_t unit = 0xD800; unit <= 0xDFFF; ++unit) {
    const std::wstring text = {L'a', static_cast<wchar_t>(unit), L'z'};
    ASSERT_EQ(Utf16ToUtf8(text), "a\xEF\xBF\xBDz") << static_cast<std::uint32_t>(unit);
  }
  const std::wstring lowThenHigh = {static_cast<wchar_t>(0xDC00), static_cast<wchar_t>(0xD800)};
  EXPECT_EQ(Utf16ToUtf8(lowThenHigh), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf16ToUtf8, ReplacesAValueBeyondTheLastCodePoint) {
  if constexpr (sizeof(wchar_t) > 2) {
    for (const std::uint32_t value : {0x110000U, 0x7FFFFFFFU, 0x80000041U, 0xFFFFFFFFU}) {
      const std::wstring text = {L'a', static_cast<wchar_t>(value), L'z'};
      EXPECT_EQ(Utf16ToUtf8(text), "a\xEF\xBF\xBDz") << value;
    }
  } else {
    GTEST_SKIP() << "UTF-16 cannot express such a value.";
  }
}

TEST(Utf16ToUtf8, JoinsASurrogatePairWhereWideTextIsUtf16) {
  const std::wstring pair = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDD0C)};
  const std::string expected = sizeof(wchar_t) == 2 ? "\xF0\x9F\x94\x8C" : "\xEF\xBF\xBD\xEF\xBF\xBD";
  EXPECT_EQ(Utf16ToUtf8(pair), expected);
}

TEST(StringConvert, MayBeCalledByManyThreadsAtOnce) {
  const std::string utf8 = "A\xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x8C\xFF";
  const std::wstring wide = Wide(U"A\u00E4\u20AC\U0001F50C\uFFFD");
  std::array<bool, 8> isRight{};
  std::vector<std::thread> threads;
  for (bool& result : isRight) {
    threads.emplace_back([&] {
      result = true;
      for (int i = 0; i < 1000; ++i) result = result && Utf8ToUtf16(utf8) == wide;
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const bool result : isRight) EXPECT_TRUE(result);
}

TEST(ToUpper, ChangesTheAsciiLettersAndNothingElse) {
  for (int code = 0; code < 256; ++code) {
    const auto c = static_cast<char>(code);
    std::string text = {'a', c};
    ToUpper(text);
    const bool isLower = std::string_view("abcdefghijklmnopqrstuvwxyz").find(c) != std::string_view::npos;
    EXPECT_EQ(text, (std::string{'A', isLower ? static_cast<char>(c - 32) : c})) << code;
  }
}

TEST(ToLower, ChangesTheAsciiLettersAndNothingElse) {
  for (int code = 0; code < 256; ++code) {
    const auto c = static_cast<char>(code);
    std::string text = {'A', c};
    ToLower(text);
    const bool isUpper = std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZ").find(c) != std::string_view::npos;
    EXPECT_EQ(text, (std::string{'a', isUpper ? static_cast<char>(c + 32) : c})) << code;
  }
}

TEST(LetterCase, OfEmptyTextIsEmpty) {
  std::string text;
  ToUpper(text);
  EXPECT_EQ(text, "");
  ToLower(text);
  EXPECT_EQ(text, "");
}

TEST(LetterCase, ContinuesAfterAnEmbeddedNul) {
  std::string text = "a\0b"s;
  ToUpper(text);
  EXPECT_EQ(text, "A\0B"s);
  ToLower(text);
  EXPECT_EQ(text, "a\0b"s);
}

TEST(LetterCase, IgnoresTheGlobalLocale) {
  const testsupport::CScopedGlobalLocale latin1(testsupport::Latin1Locale());
  std::string text = "\xE9z";
  ToUpper(text);
  EXPECT_EQ(text, "\xE9Z");
  text = "\xC9Z";
  ToLower(text);
  EXPECT_EQ(text, "\xC9z");
}

}  // namespace
