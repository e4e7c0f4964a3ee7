// Loading documents without schemas.
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testsupport::CPlainDocument;
using testsupport::NodeName;
using testsupport::ProblemTexts;
using testsupport::TempDir;
using testsupport::Text;
using testsupport::WidePath;

/// Counts the calls that parse, and can refuse to parse.
class CCountingDocument : public CPlainDocument {
 public:
  bool ParseDoc() override {
    ++parsings;
    return !isRefusing && CDOMDoc::ParseDoc();
  }

  int parsings = 0;
  bool isRefusing = false;
};

TEST(DomDocTest, NewDocumentIsEmptyAndHasNoProblems) {
  const CPlainDocument document;
  EXPECT_TRUE(document.GetRootElement() == nullptr);
  EXPECT_THAT(document.Problems(), IsEmpty());
}

TEST(DomDocTest, WellFormedFileIsValidWithoutSchemas) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_TRUE(document.ValidateDoc(dir.Write("x.xml", "<a/>")));
  EXPECT_THAT(document.Problems(), IsEmpty());
  EXPECT_EQ(NodeName(*document.GetRootElement()), "a");
}

TEST(DomDocTest, NameOfTheFileDoesNotMatter) {
  const TempDir dir;
  CPlainDocument document;
#ifdef _WIN32
  constexpr const char8_t* name = u8"%20 \u00E4 #&.doc";  // file names cannot contain a question mark on Windows
#else
  constexpr const char8_t* name = u8"%20 \u00E4 #?&.doc";
#endif
  EXPECT_TRUE(document.ValidateDoc(dir.Write(name, "<a/>")));
}

TEST(DomDocTest, MalformedFileIsNotValidAndLeavesTheDocumentEmpty) {
  const TempDir dir;
  CPlainDocument document;
  ASSERT_TRUE(document.ValidateDoc(dir.Write("1.xml", "<a/>")));
  EXPECT_FALSE(document.ValidateDoc(dir.Write("2.xml", "<b>")));
  EXPECT_TRUE(document.GetRootElement() == nullptr);
}

TEST(DomDocTest, ProblemSaysWhereAndWhy) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_FALSE(document.ValidateDoc(dir.Write("x.xml", "<a>\n  <b></c>\n</a>")));
  ASSERT_THAT(document.Problems(), SizeIs(1));
  const DOMDocProblem& problem = document.Problems().front();
  EXPECT_EQ(problem.line, 2U);
  EXPECT_GT(problem.column, 0U);
  EXPECT_EQ(problem.element, "b");
  EXPECT_THAT(problem.reason, HasSubstr("b"));
  EXPECT_THAT(problem.reason, HasSubstr("c"));
  EXPECT_EQ(problem.reason.find('\n'), std::string::npos);
}

TEST(DomDocTest, MissingFileIsAProblemWithoutAPlace) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_FALSE(document.ValidateDoc(dir.Path() / "x.xml"));
  EXPECT_THAT(ProblemTexts(document.Problems()),
              ElementsAre("0:0 : The file cannot be opened: No such file or directory."));
}

TEST(DomDocTest, DirectoryIsNotARegularFile) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_FALSE(document.ValidateDoc(dir.Path()));
  EXPECT_THAT(ProblemTexts(document.Problems()), ElementsAre("0:0 : The file is not a regular file."));
}

TEST(DomDocTest, ProblemsAreThoseOfTheLastFile) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_FALSE(document.ValidateDoc(dir.Write("1.xml", "<a>")));
  EXPECT_THAT(document.Problems(), SizeIs(1));
  EXPECT_TRUE(document.ValidateDoc(dir.Write("2.xml", "<a/>")));
  EXPECT_THAT(document.Problems(), IsEmpty());
}

TEST(DomDocTest, LongReasonsAreCut) {
  const TempDir dir;
  CPlainDocument document;
  const std::string name(100'000, 'x');
  EXPECT_FALSE(document.ValidateDoc(dir.Write("x.xml", "<" + name + "></y>")));
  ASSERT_THAT(document.Problems(), SizeIs(1));
  EXPECT_LT(document.Problems().front().element.size(), 2000U);
  EXPECT_LT(document.Problems().front().reason.size(), 2000U);
}

// Parsing.

TEST(DomDocTest, ParsingWithoutAFileLeavesTheDocumentEmpty) {
  CPlainDocument document;
  EXPECT_FALSE(document.ParseDoc());
  EXPECT_TRUE(document.GetRootElement() == nullptr);
  EXPECT_THAT(document.Problems(), SizeIs(1));
}

TEST(DomDocTest, ParsingReadsTheLastFileAgain) {
  const TempDir dir;
  CPlainDocument document;
  ASSERT_TRUE(document.ValidateDoc(dir.Write("x.xml", "<a>1</a>")));
  dir.Write("x.xml", "<a>2</a>");
  EXPECT_TRUE(document.ParseDoc());
  EXPECT_EQ(Text(*document.GetRootElement()), "2");
  dir.Write("x.xml", "<a>");
  EXPECT_FALSE(document.ParseDoc());
  EXPECT_TRUE(document.GetRootElement() == nullptr);
  EXPECT_THAT(document.Problems(), SizeIs(1));
}

TEST(DomDocTest, ValidationParsesOnceThroughTheDerivedClass) {
  const TempDir dir;
  CCountingDocument document;
  EXPECT_TRUE(document.ValidateDoc(dir.Write("x.xml", "<a/>")));
  EXPECT_EQ(document.parsings, 1);
}

TEST(DomDocTest, WhatTheDerivedClassRefusesToParseIsNotValid) {
  const TempDir dir;
  CCountingDocument document;
  document.isRefusing = true;
  EXPECT_FALSE(document.ValidateDoc(dir.Write("x.xml", "<a/>")));
}

// Trying.

TEST(DomDocTest, TryingTellsWhetherAFileIsWellFormed) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_TRUE(document.CanLoadDoc(WidePath(dir.Write("1.xml", "<a/>")), L"", false));
  EXPECT_THAT(document.Problems(), IsEmpty());
  EXPECT_FALSE(document.CanLoadDoc(WidePath(dir.Write("2.xml", "<a>")), L"", false));
  EXPECT_THAT(document.Problems(), SizeIs(1));
  EXPECT_FALSE(document.CanLoadDoc(WidePath(dir.Path() / "3.xml"), L"", false));
  EXPECT_THAT(document.Problems(), SizeIs(1));
}

TEST(DomDocTest, TryingAsksForALocalRootName) {
  const TempDir dir;
  CPlainDocument document;
  const std::wstring file = WidePath(dir.Write("x.xml", "\n<p:a xmlns:p='urn:p'/>"));
  EXPECT_TRUE(document.CanLoadDoc(file, L"a", false));
  EXPECT_FALSE(document.CanLoadDoc(file, L"b", false));
  EXPECT_THAT(ProblemTexts(document.Problems()),
              ElementsAre("2:1 a: The root element is 'a' in the namespace 'urn:p', not 'b'."));
  EXPECT_FALSE(document.CanLoadDoc(file, L"p:a", false));
  EXPECT_FALSE(document.CanLoadDoc(file, L"A", false));
}

TEST(DomDocTest, TryingLeavesTheDocumentAsItWas) {
  const TempDir dir;
  CPlainDocument document;
  ASSERT_TRUE(document.ValidateDoc(dir.Write("1.xml", "<a><b/></a>")));
  const DOMElementPtr root = document.GetRootElement();
  EXPECT_TRUE(document.CanLoadDoc(WidePath(dir.Write("2.xml", "<c/>")), L"", true));
  EXPECT_FALSE(document.CanLoadDoc(WidePath(dir.Write("3.xml", "<c>")), L"", true));
  EXPECT_EQ(NodeName(*document.GetRootElement()), "a");
  EXPECT_EQ(testsupport::PlaceOf(document, *root), "1:1");
  EXPECT_EQ(document.PathOf(*testsupport::SelectOne(*root, L"b")), "a/b");
  EXPECT_TRUE(document.ParseDoc());
  EXPECT_EQ(NodeName(*document.GetRootElement()), "a");
}

TEST(DomDocTest, TryingAcceptsNamesOfAnyLetters) {
  const TempDir dir;
  CPlainDocument document;
  EXPECT_TRUE(document.CanLoadDoc(WidePath(dir.Write(u8"\u00E4 \U0001F600.xml", "<\u00E4/>")), L"\u00E4", true));
}

}  // namespace
