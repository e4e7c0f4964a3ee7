// File names as text, and the reverse.
#include "BaseUtilities/PathText.h"

#include "BaseUtilities/StringConvert.h"
#include "BaseUtilities/SystemText.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

namespace {

constexpr const char* kUtf8 =
    "Gr\xC3\xB6\xC3\x9F"
    "e \xE9\x9B\xBB \xF0\x9F\x94\x8C.txt";

TEST(PathText, Utf8NamesRoundTrip) {
  const std::filesystem::path path = PathFromUtf8(kUtf8);
  EXPECT_EQ(path, std::filesystem::path(u8"Gr\u00F6\u00DFe \u96FB \U0001F50C.txt"));
  EXPECT_EQ(PathToUtf8(path), kUtf8);
}

TEST(PathText, WideTextIsThatOfTheName) { EXPECT_EQ(PathToWide(PathFromUtf8(kUtf8)), Utf8ToUtf16(kUtf8)); }

TEST(PathText, SystemNamesRoundTrip) {
  EXPECT_EQ(PathFromSystem("a b.txt"), std::filesystem::path("a b.txt"));
  EXPECT_EQ(PathToSystem("a b.txt"), "a b.txt");
}

TEST(PathText, EmptyNamesAreEmptyPaths) {
  EXPECT_TRUE(PathFromUtf8("").empty());
  EXPECT_TRUE(PathFromSystem("").empty());
  EXPECT_TRUE(PathFromLosslessWide(L"").empty());
  EXPECT_EQ(PathToUtf8({}), "");
  EXPECT_EQ(PathToSystem({}), "");
  EXPECT_EQ(PathToWide({}), L"");
  EXPECT_EQ(PathToLosslessWide({}), L"");
}

TEST(SystemText, IsAsciiIfTheTextIs) { EXPECT_EQ(WideToSystem(L"VIF_App 1"), "VIF_App 1"); }

#ifdef _WIN32

TEST(PathText, NameThatIsNotUtf8BecomesAPathWithReplacementCharacters) {
  EXPECT_EQ(PathFromUtf8("a\xFF.txt"), std::filesystem::path(L"a\uFFFD.txt"));
}

#else

TEST(PathText, NameThatIsNotUtf8KeepsItsBytes) {
  const std::string name = "a\xFF\xC3.txt";
  EXPECT_EQ(PathFromUtf8(name).native(), name);
  EXPECT_EQ(PathFromSystem(name).native(), name);
  EXPECT_EQ(PathToUtf8(name), name);
  EXPECT_EQ(PathToSystem(name), name);
}

TEST(PathText, NameThatIsNotUtf8IsReadWithReplacementCharacters) {
  EXPECT_EQ(PathToWide("a\xFF\xC3.txt"), L"a\uFFFD\uFFFD.txt");
}

TEST(PathText, LosslessWideTextKeepsEveryByte) {
  EXPECT_EQ(PathToLosslessWide("a\xFF\xC3\xB6.txt"), L"a\xDCFF\u00F6.txt");
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 1000; ++i) {
    std::string name(1 + testsupport::RandomBelow(generator, 12), '\0');
    for (char& c : name) c = static_cast<char>(1 + testsupport::RandomBelow(generator, 255));
    EXPECT_EQ(PathFromLosslessWide(PathToLosslessWide(name)).native(), name);
  }
}

TEST(SystemText, IsUtf8) { EXPECT_EQ(WideToSystem(Utf8ToUtf16(kUtf8)), kUtf8); }

#endif

}  // namespace
