// The reasons why a document is not valid, as texts for people.
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDoc.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace std::literals;
using testing::IsEmpty;
using testing::Not;

std::vector<DOMDocProblem> ProblemsOf(const std::string& document) {
  const testsupport::TempDir dir;
  CDOMDoc doc({});
  EXPECT_FALSE(doc.ValidateDoc(dir.Write("x.xml", document)));
  EXPECT_THAT(doc.Problems(), Not(IsEmpty()));  // or loops over them would test nothing
  return doc.Problems();
}

TEST(DomDocReasonsTest, AreValidUtf8WhateverTheFileHolds) {
  for (const DOMDocProblem& problem : ProblemsOf("<\xFE\xFEVV")) {
    EXPECT_EQ(problem.reason, Utf16ToUtf8(Utf8ToUtf16(problem.reason)));
  }
}

TEST(DomDocReasonsTest, AreCutWhereTheyQuoteALongText) {
  const std::vector<DOMDocProblem> problems = ProblemsOf("<a><" + std::string(100'000, 'b') + "></c></a>");
  ASSERT_THAT(problems, Not(IsEmpty()));
  for (const DOMDocProblem& problem : problems) {
    EXPECT_LT(problem.reason.size(), 1100u);
    EXPECT_LT(problem.element.size(), 1100u);
  }
}

TEST(DomDocReasonsTest, AreCutBetweenCharacters) {
  for (const std::string character : {"\u00E4", "\u3042"}) {
    for (std::size_t cut = 1; cut < character.size(); ++cut) {
      const std::string before(1000 - cut, 'b');
      EXPECT_EQ(ProblemsOf("<" + before + character + "c></a>").at(0).element, before + "...");
    }
  }
}

TEST(DomDocReasonsTest, AreOnOneLine) {
  for (const DOMDocProblem& problem : ProblemsOf("<a b='\n\n' b='\n'>\n</c>")) {
    EXPECT_EQ(problem.reason.find_first_of("\r\n\t"), std::string::npos);
  }
}

/// UTF-16 with an unpaired surrogate.
const std::string kHalfAPair = "\xFF\xFE<\0a\0>\0\x3D\xD8x\0<\0/\0a\0>\0"s;

TEST(DomDocReasonsTest, ReportTextThatCannotBeDecoded) {
  const std::string reason = ProblemsOf(kHalfAPair).at(0).reason;
#ifdef _WIN32  // MSXML has its own words
  EXPECT_THAT(reason, Not(IsEmpty()));
#else  // libxml2 changed its words in 2.14
  EXPECT_THAT(reason, testing::AnyOf(testing::HasSubstr("input conversion failed"),
                                     testing::HasSubstr("Invalid bytes in character encoding")));
#endif
}

#ifndef _WIN32  // MSXML gives the first one only
TEST(DomDocReasonsTest, NameEnclosingElementsWithTheirUndeclaredPrefix) {
  const std::vector<DOMDocProblem> problems = ProblemsOf("<p:a><q:b/></p:a>");
  ASSERT_EQ(problems.size(), 2U);
  EXPECT_EQ(problems[1].element, "p:a");
}
#endif

TEST(DomDocReasonsTest, NameAnElementThatDoesNotEnd) {
  const DOMDocProblem problem = ProblemsOf("<a>\n<b>\n").at(0);
  EXPECT_EQ(problem.line, 3U);
  EXPECT_EQ(problem.element, "b");
}

TEST(DomDocReasonsTest, NameAnElementThatEndsAsAnother) {
  const DOMDocProblem problem = ProblemsOf("<a>\n<b></a>").at(0);
  EXPECT_EQ(problem.line, 2U);
  EXPECT_EQ(problem.element, "b");
}

TEST(DomDocReasonsTest, LocateAnEndTagWithoutAStartTag) { EXPECT_EQ(ProblemsOf("<a/>\n</b>").at(0).line, 2U); }

TEST(DomDocReasonsTest, AreNotWrittenToStandardError) {
  testing::internal::CaptureStderr();
  ProblemsOf(kHalfAPair);
  ProblemsOf("<a");
  ProblemsOf("<a xmlns='relative uri'></b>");
  ProblemsOf("<!DOCTYPE a><a/>");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
