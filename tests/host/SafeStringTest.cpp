#include "BaseUtilities/SafeString.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace {

using namespace std::string_literals;

static_assert(std::is_nothrow_default_constructible_v<CSafeString>);
static_assert(std::is_nothrow_move_constructible_v<CSafeString>);
static_assert(std::is_nothrow_move_assignable_v<CSafeString>);
static_assert(std::is_convertible_v<const char*, CSafeString>);
static_assert(std::is_convertible_v<std::string, CSafeString>);
static_assert(std::is_convertible_v<const std::string&, CSafeString>);
static_assert(std::is_nothrow_constructible_v<CSafeString, std::string&&>);

// Too long for the small-string buffer, so that moving the string moves its memory.
const std::string kLongText(1000, 'x');

TEST(SafeString, IsEmptyByDefault) { EXPECT_STREQ(CSafeString().get(), ""); }

TEST(SafeString, CopiesTheTextItIsConstructedFrom) {
  char text[] = "narrow";
  const CSafeString made(text);
  text[0] = 'h';
  EXPECT_STREQ(made.get(), "narrow");
}

TEST(SafeString, TreatsNullAsTheEmptyString) { EXPECT_STREQ(CSafeString(nullptr).get(), ""); }

TEST(SafeString, IsConstructedFromAStandardString) {
  EXPECT_STREQ(CSafeString("standard"s).get(), "standard");
  EXPECT_STREQ(CSafeString(""s).get(), "");
  EXPECT_EQ(CSafeString(kLongText).get(), kLongText);
}

TEST(SafeString, DropsTextAfterAnEmbeddedNul) {
  const CSafeString fromStandard("kept\0dropped"s);
  EXPECT_STREQ(fromStandard.get(), "kept");
  EXPECT_STREQ(CSafeString("kept\0dropped").get(), "kept");
  EXPECT_STREQ(CSafeString("\0dropped"s).get(), "");
}

TEST(SafeString, MovesFromAStandardString) {
  std::string text = kLongText;
  const char* characters = text.data();
  const CSafeString taken(std::move(text));
  EXPECT_EQ(taken.get(), characters);
  EXPECT_EQ(taken.get(), kLongText);
}

TEST(SafeString, LeavesAStandardStringThatItCopiesUnchanged) {
  const std::string text = "kept\0too"s;
  const CSafeString copied(text);
  EXPECT_STREQ(copied.get(), "kept");
  EXPECT_EQ(text, "kept\0too"s);
}

TEST(SafeString, MovedFromStandardStringMayBeUsedAgain) {
  std::string text = kLongText;
  const CSafeString taken(std::move(text));
  text = "again";
  EXPECT_EQ(taken.get(), kLongText);
  const CSafeString second(std::move(text));
  EXPECT_STREQ(second.get(), "again");
}

TEST(SafeString, MovesTheSameTextThatItWouldCopy) {
  for (std::size_t length = 0; length < 100; ++length) {
    for (std::size_t nul = 0; nul <= length; ++nul) {
      std::string text(length, 'x');
      if (nul < length) text[nul] = '\0';
      const CSafeString copied(text);
      const CSafeString taken(std::move(text));
      ASSERT_STREQ(taken.get(), copied.get());
      ASSERT_EQ(std::string_view(taken.get()).size(), nul);
    }
  }
}

TEST(SafeString, KeepsBytesThatAreNotUtf8) { EXPECT_STREQ(CSafeString("\xFF\x80"s).get(), "\xFF\x80"); }

TEST(SafeString, ReturnsTheSameTextUntilItIsChanged) {
  const CSafeString text(kLongText);
  const char* before = text.get();
  EXPECT_EQ(text.get(), before);
}

TEST(SafeString, CopiesAreIndependent) {
  CSafeString original("first");
  const CSafeString constructed(original);
  CSafeString assigned;
  assigned = original;
  original = "other";
  EXPECT_STREQ(constructed.get(), "first");
  EXPECT_STREQ(assigned.get(), "first");
}

TEST(SafeString, MovingLeavesTheSourceEmpty) {
  for (const std::string& text : {"short"s, kLongText}) {
    CSafeString source(text);
    CSafeString constructed(std::move(source));
    EXPECT_EQ(constructed.get(), text);
    EXPECT_STREQ(source.get(), "");

    CSafeString assigned("other");
    assigned = std::move(constructed);
    EXPECT_EQ(assigned.get(), text);
    EXPECT_STREQ(constructed.get(), "");
  }
}

TEST(SafeString, MovedFromStringMayBeUsedAgain) {
  CSafeString source(kLongText);
  const CSafeString target(std::move(source));
  source = "again";
  EXPECT_STREQ(source.get(), "again");
  EXPECT_EQ(target.get(), kLongText);
}

TEST(SafeString, AssigningItToItselfChangesNothing) {
  for (const std::string& text : {"short"s, kLongText}) {
    CSafeString string(text);
    CSafeString& same = string;
    string = same;
    EXPECT_EQ(string.get(), text);
    string = std::move(same);
    EXPECT_EQ(string.get(), text);
  }
}

TEST(SafeString, MayBeAssignedItsOwnText) {
  CSafeString string("prefix and rest");
  string = string.get() + 7;
  EXPECT_STREQ(string.get(), "and rest");
}

}  // namespace
