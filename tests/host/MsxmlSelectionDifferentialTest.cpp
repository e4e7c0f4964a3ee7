// Paths of child steps, which are answered from the children, held against the same paths written with explicit axes,
// which libxml2 answers.
#include "support/Random.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <array>
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

constexpr std::array kNames = {"A", "B", "p:A", "p:B", "q:A", "q:B", "r:A"};  // r is p's namespace too

/// An element with others in it, and texts and comments between them.
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

std::string RandomDocument(Generator& generator) {
  std::string xml = "<p:A xmlns:p='urn:p' xmlns:q='urn:q' xmlns:r='urn:p'>";
  for (int i = 0; i < 6; ++i) AppendElement(generator, 3, xml);
  return xml + "</p:A>";
}

struct Paths {
  std::wstring plain;
  std::wstring explicitAxes;
};

Paths RandomPaths(Generator& generator) {
  constexpr std::array steps = {L"x:*", L"y:*", L"x:A", L"x:B", L"y:A", L"y:B", L"x:C"};
  Paths paths;
  const std::size_t count = 1 + RandomBelow(generator, 3);
  for (std::size_t i = 0; i < count; ++i) {
    const std::wstring step = steps[RandomBelow(generator, steps.size())];
    const wchar_t* separator = i != 0 ? L"/" : L"";
    paths.plain += separator + step;
    paths.explicitAxes += std::wstring(separator) + L"child::" + step;
  }
  return paths;
}

/// What a path finds, as names with places.
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
      const Paths paths = RandomPaths(generator);
      const std::vector<std::string> plain = Found(document, from, paths.plain);
      ASSERT_EQ(plain, Found(document, from, paths.explicitAxes)) << Utf16ToUtf8(paths.plain) << " in\n" << xml;
      foundCount += plain.size();
    }
  }
  EXPECT_GT(foundCount, 1000U);
}

}  // namespace
