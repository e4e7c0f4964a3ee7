// The trees of files, compared with those that libxml2 builds itself.
#include "EncodedXml.h"
#include "RandomXml.h"
#include "libxml2/Errors.h"
#include "libxml2/XmlParser.h"
#include "libxml2/XmlText.h"
#include "support/Random.h"
#include "support/TempDir.h"
#include "xmlfile/Places.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <string_view>

namespace {

using libxml2::QualifiedName;
using libxml2::View;
using testsupport::CRandomXml;
using testsupport::EForm;
using testsupport::kForms;
using testsupport::RandomBelow;
using testsupport::TempDir;

using Generator = std::mt19937_64;

/// The text in quotes, with its line ends and quotes escaped.
std::string Quoted(std::string_view text) {
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\n' || c == '\r' || c == '\'') quoted += '\\';
    quoted += c == '\n' ? 'n' : c == '\r' ? 'r' : c;
  }
  return quoted + "'";
}

/// How many levels up the namespace is declared, and its URI.
std::string NamespaceText(const xmlNode& element, const xmlNs* ns) {
  if (ns == nullptr) return "none";
  int distance = 0;
  for (const xmlNode* node = &element; node->type == XML_ELEMENT_NODE; node = node->parent, ++distance) {
    for (const xmlNs* declared = node->nsDef; declared != nullptr; declared = declared->next) {
      if (declared == ns) return std::to_string(distance).append(" ").append(View(ns->href));
    }
  }
  return std::string("undeclared ").append(View(ns->href));
}

std::string ElementText(const xmlNode& element) {
  std::string text = QualifiedName(element.ns, element.name) + " in " + NamespaceText(element, element.ns);
  for (const xmlNs* ns = element.nsDef; ns != nullptr; ns = ns->next) {
    text.append(" xmlns:").append(View(ns->prefix)).append("=").append(Quoted(View(ns->href)));
  }
  for (const xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
    text.append(" ").append(QualifiedName(attribute->ns, attribute->name)).append("=");
    for (const xmlNode* value = attribute->children; value != nullptr; value = value->next) {
      text += Quoted(View(value->content));
    }
    text.append(" in ").append(NamespaceText(element, attribute->ns));
  }
  return text;
}

/// The nodes below a document or an element, one per line.
void AppendNodes(const xmlNode* first, std::string indent, std::string& text) {
  indent += ' ';
  for (const xmlNode* node = first; node != nullptr; node = node->next) {
    text.append(indent).append(std::to_string(node->type)).append(" ");
    if (node->type == XML_ELEMENT_NODE) {
      text.append(ElementText(*node)).append("\n");
      AppendNodes(node->children, indent, text);
    } else {
      text.append(View(node->name)).append(Quoted(View(node->content))).append("\n");
    }
  }
}

std::string TreeText(const xmlDoc& document) {
  std::string text;
  AppendNodes(document.children, {}, text);
  return text;
}

void IgnoreError(void*, libxml2::ErrorPointer) {}

/// The tree that libxml2 builds; "not well-formed" when it builds none.
std::string ReferenceTree(const std::filesystem::path& path) {
  xmlSetStructuredErrorFunc(nullptr, IgnoreError);
  const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
      xmlReadFile(path.c_str(), nullptr, XML_PARSE_NONET | XML_PARSE_NOENT | XML_PARSE_HUGE), &xmlFreeDoc);
  xmlSetStructuredErrorFunc(nullptr, nullptr);
  return document != nullptr ? TreeText(*document) : "not well-formed";
}

/// The tree of the same file here; the first reason when there is none.
std::string Tree(const std::filesystem::path& path) {
  xmlfile::CProblems problems;
  const auto tree = libxml2::ParseXmlFile(path, problems);
  return tree != nullptr ? TreeText(*tree->Document()) : problems.Take().at(0).reason;
}

testing::AssertionResult IsTreeOfReference(const TempDir& dir, std::string_view bytes) {
  const std::filesystem::path path = dir.Write("x.xml", bytes);
  const std::string tree = Tree(path);
  const std::string reference = ReferenceTree(path);
  if (tree == reference) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "the tree\n" << tree << "is not\n" << reference << "of\n" << bytes;
}

/// An XML declaration that suits the form, or nothing where it is optional.
std::string Declaration(Generator& generator, EForm form) {
  if (form == EForm::Latin1) return "<?xml version='1.0' encoding='ISO-8859-1'?>";
  if (RandomBelow(generator, 2) == 0) return {};
  const bool isUtf8 = form == EForm::Utf8 || form == EForm::Utf8WithMark;
  return std::string("<?xml version='1.0' encoding='").append(isUtf8 ? "UTF-8" : "UTF-16").append("'?>\n");
}

/// A generated document as the bytes of a file, in any form.
std::string RandomFile(Generator& generator) {
  const EForm form = kForms[RandomBelow(generator, kForms.size())];
  return Encode(CRandomXml(generator).Document(Declaration(generator, form)), form);
}

class XmlTreeDifferentialTest : public testing::Test {
 protected:
  /// The tree of a generated file; null when it is refused.
  std::shared_ptr<const libxml2::CXmlTree> RandomTree() {
    xmlfile::CProblems problems;
    return libxml2::ParseXmlFile(m_dir.Write("x.xml", RandomFile(m_generator)), problems);
  }

  testing::ScopedTrace m_trace{__FILE__, __LINE__, testsupport::SeedMessage()};
  Generator m_generator = testsupport::SeededGenerator();
  TempDir m_dir;
};

TEST_F(XmlTreeDifferentialTest, TreesAreThoseOfTheReference) {
  std::size_t length = 0;
  for (int i = 0; i < 300; ++i) {
    const std::string bytes = RandomFile(m_generator);
    ASSERT_TRUE(IsTreeOfReference(m_dir, bytes));
    length += bytes.size();
  }
  EXPECT_GT(length, 1'000'000U);
}

TEST_F(XmlTreeDifferentialTest, GeneratedFilesAreWellFormed) {
  for (int i = 0; i < 50; ++i) {
    const std::filesystem::path path = m_dir.Write("x.xml", RandomFile(m_generator));
    ASSERT_NE(ReferenceTree(path), "not well-formed");
  }
}

TEST_F(XmlTreeDifferentialTest, TextsOfEveryLengthAreWhole) {
  for (const std::size_t around : {std::size_t{100}, std::size_t{400}, std::size_t{4000}, std::size_t{8000}}) {
    for (std::size_t length = around - 50; length < around + 50; ++length) {
      const std::string text(length, 'x');
      ASSERT_TRUE(IsTreeOfReference(m_dir, "<a>" + text + "<b>\u00E4" + text + "</b>" + text + "&#228;</a>")) << length;
    }
  }
}

TEST_F(XmlTreeDifferentialTest, TextsInManyPiecesAreWhole) {
  for (int i = 0; i < 60; ++i) {
    std::string xml = "<a>";
    for (std::size_t count = RandomBelow(m_generator, 3000); count > 0; --count) {
      xml.append(RandomBelow(m_generator, 8), 'x');
      xml += RandomBelow(m_generator, 2) == 0 ? "&lt;" : "&#x1F600;";
    }
    ASSERT_TRUE(IsTreeOfReference(m_dir, xml + "</a>"));
  }
}

TEST_F(XmlTreeDifferentialTest, AdjacentSectionsAreThoseOfTheReference) {
  for (int i = 0; i < 200; ++i) {
    std::string xml = "<a>";
    for (std::size_t count = RandomBelow(m_generator, 12); count > 0; --count) {
      constexpr const char* pieces[] = {"<![CDATA[", "<![CDATA[", "x", " ", "<!--c-->", "<?p?>", "<b/>"};
      const std::string piece = pieces[RandomBelow(m_generator, std::size(pieces))];
      xml += piece;
      if (piece == "<![CDATA[") xml.append(RandomBelow(m_generator, 700), 'y').append("]]>");
    }
    ASSERT_TRUE(IsTreeOfReference(m_dir, xml + "</a>"));
  }
}

TEST_F(XmlTreeDifferentialTest, NamespacesOfDeepElementsAreThoseInForce) {
  constexpr const char* declarations[] = {
      "", "", " xmlns=''", " xmlns='urn:1'", " xmlns:p='urn:1'", " xmlns:p='urn:2'"};
  for (int i = 0; i < 60; ++i) {
    std::string open = "<p:a xmlns:p='urn:1'>";
    std::string close = "</p:a>";
    for (int depth = 2; depth <= 200; ++depth) {
      const std::string name = RandomBelow(m_generator, 2) == 0 ? "p:a" : "a";
      const char* attribute = RandomBelow(m_generator, 3) == 0 ? " p:b='1'" : "";
      open.append("<").append(name).append(declarations[RandomBelow(m_generator, std::size(declarations))]);
      open.append(attribute).append(">");
      close = "</" + name + ">" + close;
    }
    ASSERT_TRUE(IsTreeOfReference(m_dir, open + close));
  }
}

TEST_F(XmlTreeDifferentialTest, OddValuesOfTheXmlAttributesStay) {
  for (const char* attribute : {"xml:space='odd'", "xml:lang='?'", "xml:lang=''", "xml:base='%'", "xml:id='x'",
                                "xml:id=' x  y '", "xml:id='1'", "xml:id=''", "xml:other='1'"}) {
    const std::string xml = std::string("<a><b ").append(attribute).append("/><c ").append(attribute).append("/></a>");
    EXPECT_TRUE(IsTreeOfReference(m_dir, xml));
  }
}

/// The number of nodes whose links are not mutual, or that do not know their document.
std::size_t CountLooseNodes(const xmlNode* parent, const xmlDoc* document) {
  std::size_t count = 0;
  const xmlNode* last = nullptr;
  for (const xmlNode* node = parent->children; node != nullptr; node = node->next) {
    if (node->parent != parent || node->prev != last || node->doc != document) ++count;
    last = node;
    if (node->type != XML_ELEMENT_NODE) continue;
    count += CountLooseNodes(node, document);
    const xmlAttr* before = nullptr;
    for (const xmlAttr* attribute = node->properties; attribute != nullptr; attribute = attribute->next) {
      if (attribute->parent != node || attribute->prev != before || attribute->doc != document) ++count;
      before = attribute;
      count += CountLooseNodes(reinterpret_cast<const xmlNode*>(attribute), document);
    }
  }
  return parent->last == last ? count : count + 1;
}

TEST_F(XmlTreeDifferentialTest, NodesAreLinkedInAllDirections) {
  for (int i = 0; i < 50; ++i) {
    const std::shared_ptr<const libxml2::CXmlTree> tree = RandomTree();
    ASSERT_NE(tree, nullptr);
    const xmlDoc* document = tree->Document();
    ASSERT_EQ(CountLooseNodes(reinterpret_cast<const xmlNode*>(document), document), 0U);
  }
}

/// The number of elements that contain elements, including the document.
std::size_t CountParents(const xmlNode* parent) {
  bool hasElements = false;
  std::size_t count = 0;
  for (const xmlNode* node = parent->children; node != nullptr; node = node->next) {
    if (node->type != XML_ELEMENT_NODE) continue;
    hasElements = true;
    count += CountParents(node);
  }
  return hasElements ? count + 1 : count;
}

TEST_F(XmlTreeDifferentialTest, TagsAreNestedAsTheElementsAre) {
  for (int i = 0; i < 50; ++i) {
    const std::shared_ptr<const libxml2::CXmlTree> tree = RandomTree();
    ASSERT_NE(tree, nullptr);
    std::size_t count = 0;
    for (const xmlfile::Tag& tag : xmlfile::FindTags(tree->File())) {
      if (tag.firstChild != xmlfile::Tag::kNone) ++count;
    }
    ASSERT_EQ(count, CountParents(reinterpret_cast<const xmlNode*>(tree->Document())));
  }
}

}  // namespace
