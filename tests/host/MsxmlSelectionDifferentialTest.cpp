// Paths of child steps, which are evaluated by walking the children, compared with the same paths written with explicit
// axes, which libxml2 evaluates.
#include "msxml/ComTypes.h"
#include "support/Random.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace {

using testsupport::CTextDocument;
using testsupport::NodeName;
using testsupport::PlaceOf;
using testsupport::RandomBelow;
using testsupport::Select;
using testsupport::SetSelectionNamespaces;

using Generator = std::mt19937_64;

constexpr std::array kNames = {"A", "B", "p:A", "p:B", "q:A", "q:B", "r:A"};  // r is bound to p's namespace too

/// An element with other elements in it, and texts and comments between them.
void AppendElement(Generator& generator, int depth, std::string& xml) {
  const std::string name = kNames[RandomBelow(generator, kNames.size())];
  const bool hasDefault = RandomBelow(generator, 4) == 0;
  xml += '<' + name + (hasDefault ? " xmlns='urn:p'>" : ">");
  const std::size_t count = depth > 0 ? RandomBelow(generator, 6) : 0;
  for (std::size_t i = 0; i < count; ++i) {
    switch (RandomBelow(generator, 6)) {
      case 0: xml += "\n"; break;
      case 1: xml += "<!--c-->text"; break;
      default: AppendElement(generator, depth - 1, xml);
    }
  }
  xml += "</" + name + '>';
}

std::string RandomDocument(Generator& generator, int depth = 3) {
  std::string xml = "<p:A xmlns:p='urn:p' xmlns:q='urn:q' xmlns:r='urn:p'>";
  for (int i = 0; i < 6; ++i) AppendElement(generator, depth, xml);
  return xml + "</p:A>";
}

struct Paths {
  std::wstring plain;
  std::wstring explicitAxes;
};

/// \param mostSteps with more than four, libxml2 evaluates both spellings
template <std::size_t count>
Paths RandomPaths(Generator& generator, const std::array<const wchar_t*, count>& steps, std::size_t mostSteps) {
  Paths paths;
  const std::size_t stepCount = 1 + RandomBelow(generator, mostSteps);
  for (std::size_t i = 0; i < stepCount; ++i) {
    const std::wstring step = steps[RandomBelow(generator, steps.size())];
    const wchar_t* separator = i != 0 ? L"/" : L"";
    paths.plain += separator + step;
    paths.explicitAxes += std::wstring(separator) + L"child::" + step;
  }
  return paths;
}

constexpr std::array kSteps = {L"x:*", L"y:*", L"x:A", L"x:B", L"y:A", L"y:B", L"x:C"};

/// Steps with which even long paths find something.
constexpr std::array kMixedSteps = {L"x:*", L"x:*", L"x:*", L"*", L"*", L"*", L"x:A", L"x:B", L"y:*", L"A"};

/// The nodes that a path finds, as names with places.
std::vector<std::string> Found(const CTextDocument& document, IXMLDOMNode& from, const std::wstring& path) {
  std::vector<std::string> found;
  for (const DOMNodePtr& node : Select(from, path)) found.push_back(NodeName(*node) + " " + PlaceOf(document, *node));
  return found;
}

TEST(MsxmlSelectionDifferentialTest, ChildStepsFindWhatExplicitAxesFind) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  std::size_t foundCount = 0;
  for (int i = 0; i < 100; ++i) {
    const std::string xml = RandomDocument(generator);
    CTextDocument document(xml);
    ASSERT_TRUE(document.IsLoaded()) << xml;
    ASSERT_EQ(SetSelectionNamespaces(document.Document(), L"xmlns:x='urn:p' xmlns:y='urn:q'"), S_OK);
    std::vector<DOMNodePtr> starts = Select(document.Document(), L"/ | //*[*]");
    for (int j = 0; j < 60; ++j) {
      IXMLDOMNode& from = *starts[RandomBelow(generator, starts.size())];
      const Paths paths = RandomPaths(generator, kSteps, 3);
      const std::vector<std::string> plain = Found(document, from, paths.plain);
      ASSERT_EQ(plain, Found(document, from, paths.explicitAxes)) << Utf16ToUtf8(paths.plain) << " in\n" << xml;
      foundCount += plain.size();
    }
  }
  EXPECT_GT(foundCount, 1000U);
}

/// A generated document with two prefixes for its expressions, and the nodes to query.
class CAskedDocument {
 public:
  CAskedDocument(Generator& generator, int depth) : m_document(RandomDocument(generator, depth)) {
    testsupport::Require(SetSelectionNamespaces(m_document.Document(), L"xmlns:x='urn:p' xmlns:y='urn:q'"));
    m_starts = Select(m_document.Document(), L"/ | //*[*]");
  }

  CTextDocument& Document() { return m_document; }

  IXMLDOMNode& Any(Generator& generator) const { return *m_starts[RandomBelow(generator, m_starts.size())]; }

  std::vector<std::string> Found(IXMLDOMNode& from, const std::wstring& path) const {
    return ::Found(m_document, from, path);
  }

 private:
  CTextDocument m_document;
  std::vector<DOMNodePtr> m_starts;
};

TEST(MsxmlSelectionDifferentialTest, LongPathsAndNamesWithoutPrefixesFindWhatExplicitAxesFind) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  std::array<std::size_t, 7> foundCounts{};  // indexed by the number of steps
  for (int i = 0; i < 80; ++i) {
    const CAskedDocument document(generator, 6);
    for (int j = 0; j < 120; ++j) {
      IXMLDOMNode& from = document.Any(generator);
      const Paths paths = RandomPaths(generator, kMixedSteps, 6);
      const std::vector<std::string> plain = document.Found(from, paths.plain);
      ASSERT_EQ(plain, document.Found(from, paths.explicitAxes)) << Utf16ToUtf8(paths.plain);
      ASSERT_EQ(plain, document.Found(from, L"./" + paths.plain)) << Utf16ToUtf8(paths.plain);
      foundCounts[1 + static_cast<std::size_t>(std::count(paths.plain.begin(), paths.plain.end(), L'/'))] +=
          plain.size();
    }
  }
  for (std::size_t steps = 1; steps < foundCounts.size(); ++steps) EXPECT_GT(foundCounts[steps], 0U) << steps;
}

TEST(MsxmlSelectionDifferentialTest, SingleNodeOfAPathIsTheFirstOfItsList) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  for (int i = 0; i < 30; ++i) {
    CAskedDocument document(generator, 3);
    for (int j = 0; j < 30; ++j) {
      IXMLDOMNode& from = document.Any(generator);
      const Paths paths = RandomPaths(generator, kSteps, 3);
      const std::vector<DOMNodePtr> all = Select(from, paths.explicitAxes);
      const DOMNodePtr first = testsupport::SelectOne(from, paths.plain);
      ASSERT_EQ(first == nullptr, all.empty()) << Utf16ToUtf8(paths.plain);
      if (first == nullptr) continue;
      ASSERT_EQ(PlaceOf(document.Document(), *first), PlaceOf(document.Document(), *all.front()));
    }
  }
}

TEST(MsxmlSelectionDifferentialTest, AlternatingPathsFindWhatExplicitAxesFind) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  for (int i = 0; i < 40; ++i) {
    const CAskedDocument document(generator, 4);
    const std::array turns = {RandomPaths(generator, kSteps, 4), RandomPaths(generator, kSteps, 4),
                              RandomPaths(generator, kMixedSteps, 6)};
    for (int j = 0; j < 60; ++j) {
      IXMLDOMNode& from = document.Any(generator);
      const Paths& paths = turns[RandomBelow(generator, turns.size())];
      const std::vector<std::string> plain = document.Found(from, paths.plain);
      ASSERT_EQ(plain, document.Found(from, paths.plain)) << Utf16ToUtf8(paths.plain);
      if (RandomBelow(generator, 2) == 0) continue;  // so that the same path sometimes repeats with no other in between
      ASSERT_EQ(plain, document.Found(from, paths.explicitAxes)) << Utf16ToUtf8(paths.plain);
    }
  }
}

TEST(MsxmlSelectionDifferentialTest, FailingPathsDoNotSpoilLaterOnes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  const CAskedDocument document(generator, 4);
  for (const wchar_t* bad : {L"", L"/x:*/", L"x:*/", L"x:*//", L"z:A", L"x:A/z:A", L"x:", L"x:*[", L"x:A x:B", L"1"}) {
    for (int i = 0; i < 20; ++i) {
      IXMLDOMNode& from = document.Any(generator);
      const std::vector<std::string> before = document.Found(from, L"x:*/x:*");
      EXPECT_THROW(Select(from, bad), _com_error) << Utf16ToUtf8(bad);
      ASSERT_EQ(document.Found(from, L"x:*/x:*"), before) << Utf16ToUtf8(bad);
      ASSERT_EQ(document.Found(from, L"child::x:*/child::x:*"), before) << Utf16ToUtf8(bad);
    }
  }
}

TEST(MsxmlSelectionDifferentialTest, PathsUseTheCurrentPrefixes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  for (int i = 0; i < 30; ++i) {
    CAskedDocument document(generator, 3);
    IXMLDOMDocument2& asked = document.Document().Document();
    for (const wchar_t* namespaces : {L"xmlns:x='urn:q' xmlns:y='urn:p'", L"xmlns:x='urn:p' xmlns:y='urn:p'",
                                      L"xmlns:x='urn:none' xmlns:y='urn:q'", L"xmlns:x='urn:p' xmlns:y='urn:q'"}) {
      const Paths paths = RandomPaths(generator, kSteps, 4);
      document.Found(asked, paths.plain);  // a result that must not be returned below
      ASSERT_EQ(SetSelectionNamespaces(asked, namespaces), S_OK);
      ASSERT_EQ(document.Found(asked, paths.plain), document.Found(asked, paths.explicitAxes))
          << Utf16ToUtf8(paths.plain);
    }
  }
}

TEST(MsxmlSelectionDifferentialTest, NodesKeepThePrefixesThatTheyWereSelectedWith) {
#ifdef _WIN32
  GTEST_SKIP() << "MSXML asks the document for them each time";
#else
  SCOPED_TRACE(testsupport::SeedMessage());
  Generator generator = testsupport::SeededGenerator();
  for (int i = 0; i < 30; ++i) {
    CAskedDocument document(generator, 3);
    for (int j = 0; j < 10; ++j) {
      IXMLDOMNode& node = document.Any(generator);
      const Paths paths = RandomPaths(generator, kSteps, 3);
      const std::vector<std::string> before = document.Found(node, paths.plain);
      ASSERT_EQ(SetSelectionNamespaces(document.Document().Document(), L"xmlns:x='urn:q' xmlns:y='urn:p'"), S_OK);
      document.Found(document.Document().Document(), paths.plain);
      ASSERT_EQ(document.Found(node, paths.plain), before) << Utf16ToUtf8(paths.plain);
      ASSERT_EQ(document.Found(node, paths.explicitAxes), before) << Utf16ToUtf8(paths.plain);
    }
  }
#endif
}

}  // namespace
