// Splitting a line and recognising the two forms of a declaration.
#include "LineGrammar.h"

#include "CustomCtype.h"
#include "GrammarValues.h"
#include "support/Latin1Locale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <locale>
#include <optional>
#include <string>
#include <string_view>

namespace vif {

namespace {

using namespace std::literals;
using testing::Optional;

SplitLine Split(std::string_view line) { return SplitContentAndComment(line); }

std::optional<Declaration> Parse(std::string_view content) { return CLineGrammar().Parse(content); }

Declaration Text(std::string_view name, std::string_view value) { return {true, name, value}; }
Declaration Number(std::string_view name, std::string_view value) { return {false, name, value}; }

// Trimming.

TEST(TrimBlanksTest, RemovesSpaceTabCrAndLfFromBothEnds) { EXPECT_EQ(TrimBlanks(" \t\r\na b\r\n\t "), "a b"); }

TEST(TrimBlanksTest, KeepsBlanksWithinTheLine) { EXPECT_EQ(TrimBlanks("a \t\r\n b"), "a \t\r\n b"); }

TEST(TrimBlanksTest, KeepsOtherWhiteSpaceAndNul) { EXPECT_EQ(TrimBlanks("\v\fa\0"sv), "\v\fa\0"sv); }

TEST(TrimBlanksTest, ReturnsNothingForBlanks) {
  EXPECT_EQ(TrimBlanks(""), "");
  EXPECT_EQ(TrimBlanks(" "), "");
  EXPECT_EQ(TrimBlanks(" \t\r\n"), "");
}

// Splitting.

TEST(SplitLineTest, BlankLineIsEmpty) {
  EXPECT_EQ(Split(""), (SplitLine{"", ""}));
  EXPECT_EQ(Split(" \t\r\n "), (SplitLine{"", ""}));
}

TEST(SplitLineTest, LineThatStartsWithASemicolonIsEmpty) {
  EXPECT_EQ(Split(";"), (SplitLine{"", ""}));
  EXPECT_EQ(Split("; USB_VID: 5"), (SplitLine{"", ""}));
  EXPECT_EQ(Split(" \t\r\n;; \"a\" ; b"), (SplitLine{"", ""}));
}

TEST(SplitLineTest, WithoutASemicolonTheTrimmedLineIsTheContent) {
  EXPECT_EQ(Split(" \tA: 5\r\n"), (SplitLine{"A: 5", ""}));
  EXPECT_EQ(Split("$A: \"x\""), (SplitLine{"$A: \"x\"", ""}));
}

TEST(SplitLineTest, OtherWhiteSpaceIsNotABlank) { EXPECT_EQ(Split("\vA: 5\f"), (SplitLine{"\vA: 5\f", ""})); }

TEST(SplitLineTest, WithoutQuotesTheFirstSemicolonOpensTheComment) {
  EXPECT_EQ(Split("A: 5;five"), (SplitLine{"A: 5", "five"}));
  EXPECT_EQ(Split("A: 5 ; five ; or so"), (SplitLine{"A: 5", "five ; or so"}));
}

TEST(SplitLineTest, BlanksBeforeTheCommentAreRemoved) {
  EXPECT_EQ(Split("A: 5 \t\r\n;five"), (SplitLine{"A: 5", "five"}));
}

TEST(SplitLineTest, BlanksAndSemicolonsThatOpenTheCommentAreRemoved) {
  EXPECT_EQ(Split("A: 5; ;\t;\r\n; five;; \t"), (SplitLine{"A: 5", "five;;"}));
}

TEST(SplitLineTest, CommentOfBlanksAndSemicolonsIsEmpty) {
  EXPECT_EQ(Split("A: 5 ;"), (SplitLine{"A: 5", ""}));
  EXPECT_EQ(Split("A: 5 ; ;; \t;"), (SplitLine{"A: 5", ""}));
}

TEST(SplitLineTest, SemicolonBeforeTheFirstQuoteOpensTheComment) {
  EXPECT_EQ(Split("A: 5 ; \"five\""), (SplitLine{"A: 5", "\"five\""}));
  EXPECT_EQ(Split("A: 5;\"a;b\""), (SplitLine{"A: 5", "\"a;b\""}));
}

TEST(SplitLineTest, SemicolonApartFromTheClosingQuoteOpensTheComment) {
  EXPECT_EQ(Split("$A: \"x\" ; maker"), (SplitLine{"$A: \"x\"", "maker"}));
  EXPECT_EQ(Split("$A: \"x\" \t;;maker"), (SplitLine{"$A: \"x\"", "maker"}));
  EXPECT_EQ(Split("$A: \"x\"y;maker"), (SplitLine{"$A: \"x\"y", "maker"}));
}

TEST(SplitLineTest, SemicolonsWithinTheQuotesBelongToTheContent) {
  EXPECT_EQ(Split("$A: \"x; y\""), (SplitLine{"$A: \"x; y\"", ""}));
  EXPECT_EQ(Split("$A: \";;;\""), (SplitLine{"$A: \";;;\"", ""}));
}

TEST(SplitLineTest, AfterQuotedSemicolonsTheCommentBeginsRightAfterTheClosingQuote) {
  EXPECT_EQ(Split("$A: \"x; y\" ; maker"), (SplitLine{"$A: \"x; y\"", "maker"}));
  EXPECT_EQ(Split("$A: \"x; y\" maker"), (SplitLine{"$A: \"x; y\"", "maker"}));
  EXPECT_EQ(Split("$A: \"x;;y;\"maker"), (SplitLine{"$A: \"x;;y;\"", "maker"}));
}

TEST(SplitLineTest, SemicolonRightAfterTheClosingQuoteStaysInTheContent) {
  EXPECT_EQ(Split("$A: \"x\"; maker"), (SplitLine{"$A: \"x\";", "maker"}));
  EXPECT_EQ(Split("$A: \"x\";;;maker"), (SplitLine{"$A: \"x\";;;", "maker"}));
  EXPECT_EQ(Split("$A: \"x;y\"; maker"), (SplitLine{"$A: \"x;y\";", "maker"}));
  EXPECT_EQ(Split("$A: \"x\";"), (SplitLine{"$A: \"x\";", ""}));
}

TEST(SplitLineTest, OnlyOneSemicolonRunIsKeptAfterTheClosingQuote) {
  EXPECT_EQ(Split("$A: \"x\"; ; maker"), (SplitLine{"$A: \"x\";", "maker"}));
}

TEST(SplitLineTest, QuotesWithinTheCommentCountAsQuotes) {
  EXPECT_EQ(Split("$A: \"x\" ; \"maker\""), (SplitLine{"$A: \"x\" ; \"maker\"", ""}));
  EXPECT_EQ(Split("$A: \"x\" ; the \"maker\" of it"), (SplitLine{"$A: \"x\" ; the \"maker\"", "of it"}));
}

TEST(SplitLineTest, SingleQuoteIsBothTheFirstAndTheLast) {
  EXPECT_EQ(Split("$A: \"x ; y"), (SplitLine{"$A: \"x", "y"}));
  EXPECT_EQ(Split("$A: \"; y"), (SplitLine{"$A: \";", "y"}));
  EXPECT_EQ(Split("$A; x\" y"), (SplitLine{"$A", "x\" y"}));
}

TEST(SplitLineTest, QuoteAtTheStartOfTheLineCounts) {
  EXPECT_EQ(Split("\"a;b\" c"), (SplitLine{"\"a;b\"", "c"}));
  EXPECT_EQ(Split("\";"), (SplitLine{"\";", ""}));
}

TEST(SplitLineTest, NulIsACharacterLikeAnyOther) {
  EXPECT_EQ(Split("A: 5\0 ; a\0b"sv), (SplitLine{"A: 5\0"sv, "a\0b"sv}));
  EXPECT_EQ(Split("\0"sv), (SplitLine{"\0"sv, ""}));
}

TEST(SplitLineTest, CrWithinTheLineStays) { EXPECT_EQ(Split("A:\r5;a\rb\r"), (SplitLine{"A:\r5", "a\rb"})); }

// String declarations.

TEST(StringDeclarationTest, HasNameWithMarkAndValueWithoutQuotes) {
  EXPECT_THAT(Parse("$Vendor_Name: \"Acme\""), Optional(Text("$Vendor_Name", "Acme")));
}

TEST(StringDeclarationTest, AllowsWhiteSpaceAroundTheColon) {
  EXPECT_THAT(Parse("$A:\"x\""), Optional(Text("$A", "x")));
  EXPECT_THAT(Parse("$A \t\r\n\v\f: \t\r\n\v\f\"x\""), Optional(Text("$A", "x")));
}

TEST(StringDeclarationTest, ValueMayBeEmpty) { EXPECT_THAT(Parse("$A: \"\""), Optional(Text("$A", ""))); }

TEST(StringDeclarationTest, ValueGoesToTheLastQuote) {
  EXPECT_THAT(Parse("$A: \"x\"y\"z\""), Optional(Text("$A", "x\"y\"z")));
  EXPECT_THAT(Parse("$A: \"\"\""), Optional(Text("$A", "\"")));
  EXPECT_THAT(Parse("$A: \"x\":\"y\""), Optional(Text("$A", "x\":\"y")));
}

TEST(StringDeclarationTest, ValueKeepsBlanksSemicolonsAndOtherBytes) {
  EXPECT_THAT(Parse("$A: \" x;\t\v\xC3\xA4\xFF \""), Optional(Text("$A", " x;\t\v\xC3\xA4\xFF ")));
}

TEST(StringDeclarationTest, ValueHasNoLineBreak) {
  EXPECT_EQ(Parse("$A: \"x\ry\""), std::nullopt);
  EXPECT_EQ(Parse("$A: \"x\ny\""), std::nullopt);
}

TEST(StringDeclarationTest, NeedsBothQuotes) {
  EXPECT_EQ(Parse("$A: x"), std::nullopt);
  EXPECT_EQ(Parse("$A: \""), std::nullopt);
  EXPECT_EQ(Parse("$A: \"x"), std::nullopt);
  EXPECT_EQ(Parse("$A: x\""), std::nullopt);
  EXPECT_EQ(Parse("$A:"), std::nullopt);
}

TEST(StringDeclarationTest, MustEndWithTheQuote) {
  EXPECT_EQ(Parse("$A: \"x\" "), std::nullopt);
  EXPECT_EQ(Parse("$A: \"x\";"), std::nullopt);
  EXPECT_EQ(Parse("$A: \"x\" y"), std::nullopt);
}

TEST(StringDeclarationTest, NeedsAName) {
  EXPECT_EQ(Parse("$"), std::nullopt);
  EXPECT_EQ(Parse("$: \"x\""), std::nullopt);
  EXPECT_EQ(Parse("$ A: \"x\""), std::nullopt);
}

TEST(StringDeclarationTest, NeedsAColon) {
  EXPECT_EQ(Parse("$A"), std::nullopt);
  EXPECT_EQ(Parse("$A \"x\""), std::nullopt);
  EXPECT_EQ(Parse("$A = \"x\""), std::nullopt);
  EXPECT_EQ(Parse("$A:: \"x\""), std::nullopt);
}

TEST(StringDeclarationTest, HasNoNumber) {
  EXPECT_EQ(Parse("$A: 5"), std::nullopt);
  EXPECT_EQ(Parse("$A: YES"), std::nullopt);
}

TEST(StringDeclarationTest, NameStartsWithOneMark) {
  EXPECT_EQ(Parse("$$A: \"x\""), std::nullopt);
  EXPECT_EQ(Parse("$A$: \"x\""), std::nullopt);
}

// Numeric declarations.

TEST(NumericDeclarationTest, HasADecimalNumber) {
  EXPECT_THAT(Parse("USB_VID: 5"), Optional(Number("USB_VID", "5")));
  EXPECT_THAT(Parse("A: 0012345678901234567890123"), Optional(Number("A", "0012345678901234567890123")));
}

TEST(NumericDeclarationTest, HasAHexadecimalNumberWithEitherX) {
  EXPECT_THAT(Parse("A: 0x1aF"), Optional(Number("A", "0x1aF")));
  EXPECT_THAT(Parse("A: 0X1aF"), Optional(Number("A", "0X1aF")));
}

TEST(NumericDeclarationTest, HasYesOrNoInAnyLetterCase) {
  for (const std::string_view word : {"YES", "yes", "Yes", "yES", "NO", "no", "No", "nO"}) {
    EXPECT_THAT(Parse("A: " + std::string(word)), Optional(Number("A", word)));
  }
}

TEST(NumericDeclarationTest, AllowsWhiteSpaceAroundTheColon) {
  EXPECT_THAT(Parse("A:5"), Optional(Number("A", "5")));
  EXPECT_THAT(Parse("A \t\r\n\v\f: \t\r\n\v\f5"), Optional(Number("A", "5")));
}

TEST(NumericDeclarationTest, NameHasLettersDigitsUnderscoresAndApostrophes) {
  EXPECT_THAT(Parse("Cable_SOP''_Controller: 5"), Optional(Number("Cable_SOP''_Controller", "5")));
  EXPECT_THAT(Parse("0: 5"), Optional(Number("0", "5")));
  EXPECT_THAT(Parse("'_': 5"), Optional(Number("'_'", "5")));
}

TEST(NumericDeclarationTest, NameHasNoOtherCharacter) {
  for (const char c : "-.$\"#/(%\x80\xE4\xFF"sv) {
    EXPECT_EQ(Parse(std::string{'A', c, 'B', ':', '5'}), std::nullopt) << c;
  }
  EXPECT_EQ(Parse("A B: 5"), std::nullopt);
}

TEST(NumericDeclarationTest, NeedsANameAndAColonAndAValue) {
  EXPECT_EQ(Parse(""), std::nullopt);
  EXPECT_EQ(Parse(": 5"), std::nullopt);
  EXPECT_EQ(Parse("A"), std::nullopt);
  EXPECT_EQ(Parse("A "), std::nullopt);
  EXPECT_EQ(Parse("A:"), std::nullopt);
  EXPECT_EQ(Parse("A: "), std::nullopt);
  EXPECT_EQ(Parse("A 5"), std::nullopt);
  EXPECT_EQ(Parse("A = 5"), std::nullopt);
  EXPECT_EQ(Parse("A:: 5"), std::nullopt);
}

TEST(NumericDeclarationTest, HasNoOtherValue) {
  for (const std::string_view value :
       {"-5",   "+5",    "5 V", "5 ",   "5.0", "5V",  "1F",   "0x",    "0xG", "0x1G",  "x5", "00x5",
        "0x 5", "YESNO", "YE",  "YESS", "N",   "NOO", "TRUE", "FALSE", "ON",  "\"5\"", "5;", "5:5"}) {
    EXPECT_EQ(Parse("A: " + std::string(value)), std::nullopt) << value;
  }
}

TEST(NumericDeclarationTest, StartsAtItsFirstCharacter) { EXPECT_EQ(Parse(" A: 5"), std::nullopt); }

// What both have in common.

TEST(LineGrammarTest, NulEndsTheContent) {
  EXPECT_THAT(Parse("A: 5\0 junk"sv), Optional(Number("A", "5")));
  EXPECT_THAT(Parse("$A: \"x\"\0\""sv), Optional(Text("$A", "x")));
}

TEST(LineGrammarTest, NothingAfterANulCounts) {
  EXPECT_EQ(Parse("\0A: 5"sv), std::nullopt);
  EXPECT_EQ(Parse("A\0: 5"sv), std::nullopt);
  EXPECT_EQ(Parse("A: \0005"sv), std::nullopt);
  EXPECT_EQ(Parse("$A: \"x\0y\""sv), std::nullopt);
}

TEST(LineGrammarTest, ResultRefersToTheContent) {
  const std::string content = "$Name: \"value\"";
  const std::optional<Declaration> declaration = Parse(content);
  ASSERT_TRUE(declaration);
  EXPECT_EQ(declaration->name.data(), content.data());
  EXPECT_EQ(declaration->value.data(), content.data() + 8);
}

TEST(LineGrammarTest, GlobalLocaleDecidesWhatALetterIs) {
  testsupport::CustomCtype::Tables tables;
  tables.classes[0xE4] = std::ctype_base::alpha;
  {
    const testsupport::CScopedGlobalLocale locale(LocaleWith(tables));
    EXPECT_THAT(Parse("A\xE4: 5"), Optional(Number("A\xE4", "5")));
  }
  EXPECT_EQ(Parse("A\xE4: 5"), std::nullopt);
}

TEST(LineGrammarTest, LocaleIsTheOneAtItsConstruction) {
  testsupport::CustomCtype::Tables tables;
  tables.classes[0xE4] = std::ctype_base::alpha;
  const CLineGrammar madeBefore;
  const testsupport::CScopedGlobalLocale locale(LocaleWith(tables));
  EXPECT_EQ(madeBefore.Parse("A\xE4: 5"), std::nullopt);
}

}  // namespace

}  // namespace vif
