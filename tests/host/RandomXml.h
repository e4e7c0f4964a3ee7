// Well-formed XML documents with everything that a parser can meet without a document type.
#pragma once

#include "support/Random.h"

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

/// Writes one document, in UTF-8.
class CRandomXml {
 public:
  explicit CRandomXml(std::mt19937_64& generator) : m_generator(generator) {}

  /// \param declaration the XML declaration, or empty
  std::string Document(std::string_view declaration) {
    m_xml = declaration;
    m_prefixes = {"", "xml"};
    AppendAround();
    AppendElement(5);
    AppendAround();
    return m_xml;
  }

 private:
  static constexpr std::array kNames = {"a", "bb", "c-1.x", "\u00E4\u96FB"};
  static constexpr std::array kPrefixes = {"p", "q", "r"};
  static constexpr std::array kUris = {"urn:1", "urn:2", "http://example.com/?a&amp;b"};
  static constexpr std::array kValues = {"",      "x",         " a\tb\r\n c ", "&lt;&#10;&apos;>", "\u20AC\"\U0001F600",
                                         "&#x9;", "a=b&quot;", "&#x1F600;"};
  static constexpr std::array kTexts = {"x",           " ",  "\n  ", "\r\n",  "\u00E4\U0001F600", "&amp;", "&#65;",
                                        "&lt;a b='1'", "]]", "a>b",  "&#13;", "&#x1F600;&gt;"};
  static constexpr std::array kAsides = {"<!--c-->", "<!---->",    "<!-- <a b='\n'> -->",
                                         "<?p?>",    "<?p data?>", "<?p-1  a='>' ?\?>"};
  static constexpr std::array kSections = {"<![CDATA[]]>", "<![CDATA[ \r\n]]>", "<![CDATA[<a b='1'>&amp;]] >]]>",
                                           "<![CDATA[\u20AC]]]]>"};

  std::size_t Below(std::size_t bound) { return RandomBelow(m_generator, bound); }

  template <std::size_t count>
  const char* Any(const std::array<const char*, count>& texts) {
    return texts[Below(count)];
  }

  /// What may precede and follow the root.
  void AppendAround() {
    for (std::size_t i = Below(4); i > 0; --i) m_xml.append(Any(kAsides)).append(Below(2) == 0 ? "\n" : "");
  }

  void AppendElement(int depth) {
    const std::vector<std::string> outerPrefixes = m_prefixes;
    const std::string attributes = Declarations() + Attributes();
    std::string name = m_prefixes[Below(m_prefixes.size())];
    if (name == "xml") name.clear();
    if (!name.empty()) name += ':';
    name += Any(kNames);
    m_xml.append("<").append(name).append(attributes);
    const std::size_t count = depth > 0 ? Below(10) : Below(2);
    if (count == 0 && Below(2) == 0) {
      m_xml += "/>";
    } else {
      m_xml += '>';
      for (std::size_t i = 0; i < count; ++i) AppendContent(depth);
      m_xml.append("</").append(name).append(">");
    }
    m_prefixes = outerPrefixes;
  }

  std::string Declarations() {
    std::string text;
    if (Below(4) == 0) text.append(" xmlns='").append(Below(3) == 0 ? "" : Any(kUris)).append("'");
    for (const std::string prefix : kPrefixes) {
      if (Below(5) != 0) continue;
      text.append(" xmlns:").append(prefix).append("=\"").append(Any(kUris)).append("\"");
      m_prefixes.push_back(prefix);
    }
    return text;
  }

  /// All have different local names, so that none clash even if two prefixes share a namespace.
  std::string Attributes() {
    std::string text;
    for (std::size_t i = Below(4); i > 0; --i) {
      std::string prefix = m_prefixes[Below(m_prefixes.size())];
      if (!prefix.empty()) prefix += ':';
      const std::string value = Any(kValues);
      const char* quote = value.find('"') != std::string::npos ? "'" : "\"";
      text.append("\n ").append(prefix).append("n").append(std::to_string(i)).append("=").append(quote);
      text.append(value).append(quote);
    }
    if (Below(10) == 0) text += Below(2) == 0 ? " xml:space='preserve'" : " xml:space='default'";
    if (Below(10) == 0) text += " xml:lang='de'";
    return text;
  }

  void AppendContent(int depth) {
    switch (Below(10)) {
      case 0:
      case 1:
      case 2: m_xml += Any(kTexts); break;
      case 3: m_xml += Any(kAsides); break;
      case 4: m_xml += Any(kSections); break;
      case 5: AppendLongText(); break;
      default:
        if (depth > 0) AppendElement(depth - 1);
    }
  }

  /// Occasionally, a text that the parser delivers in many pieces.
  void AppendLongText() {
    switch (Below(12)) {
      case 0: m_xml.append(3900 + Below(300), 'x'); break;
      case 1:
        for (std::size_t i = Below(900); i > 0; --i) m_xml += Any(kTexts);
        break;
      default: m_xml += Any(kTexts);
    }
  }

  std::mt19937_64& m_generator;
  std::string m_xml;
  std::vector<std::string> m_prefixes;  // in scope at the current position; empty stands for no prefix
};

}  // namespace testsupport
