// XML documents made from texts, and calls on them that read well in expectations.
#pragma once

#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDoc.h"
#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"
#include "support/TempDir.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

/// A document without schemas that lets its interface be used.
class CPlainDocument : public CDOMDoc {
 public:
  CPlainDocument() : CDOMDoc({}) {}

  using CDOMDoc::Document;
};

/// Such a document, loaded from a text.
class CTextDocument : public CPlainDocument {
 public:
  explicit CTextDocument(std::string_view xml) : m_isLoaded(ValidateDoc(m_dir.Write("document.xml", xml))) {}

  bool IsLoaded() const { return m_isLoaded; }

  /// \throws _com_error when the text was not loaded
  IXMLDOMElement& Root() {
    if (m_root == nullptr) m_root = GetRootElement();
    return *m_root;
  }

 private:
  TempDir m_dir;
  bool m_isLoaded;
  DOMElementPtr m_root;
};

/// The path of that name, which is UTF-8 on every system.
inline std::filesystem::path Utf8Path(std::string_view name) { return std::u8string(name.begin(), name.end()); }

/// A path as the wide text that `CanLoadDoc` and the list of schemas take.
inline std::wstring WidePath(const std::filesystem::path& path) {
#ifdef _WIN32
  return path.native();
#else
  return Utf8ToUtf16(path.native());
#endif
}

// The calls throw `_com_error` when they fail.

inline void Require(HRESULT result) {
  if (FAILED(result)) _com_issue_error(result);
}

inline std::string Text(IXMLDOMNode& node) {
  CBstr text;
  Require(node.get_text(text.Receive()));
  return Utf16ToUtf8(text.View());
}

inline std::string NodeName(IXMLDOMNode& node) {
  CBstr name;
  Require(node.get_nodeName(name.Receive()));
  return Utf16ToUtf8(name.View());
}

/// Empty when nothing is found.
inline DOMNodePtr SelectOne(IXMLDOMNode& node, std::wstring_view xpath) {
  DOMNodePtr found;
  Require(node.selectSingleNode(CBstr(xpath).get(), found.Receive()));
  return found;
}

inline std::vector<DOMNodePtr> Select(IXMLDOMNode& node, std::wstring_view xpath) {
  DOMNodeListPtr list;
  Require(node.selectNodes(CBstr(xpath).get(), list.Receive()));
  LONG length = 0;
  Require(list->get_length(&length));
  std::vector<DOMNodePtr> nodes(static_cast<std::size_t>(length));
  for (LONG i = 0; i < length; ++i) Require(list->get_item(i, nodes[static_cast<std::size_t>(i)].Receive()));
  return nodes;
}

inline std::vector<std::string> Texts(const std::vector<DOMNodePtr>& nodes) {
  std::vector<std::string> texts;
  texts.reserve(nodes.size());
  for (const DOMNodePtr& node : nodes) texts.push_back(Text(*node));
  return texts;
}

inline std::vector<std::string> NodeNames(const std::vector<DOMNodePtr>& nodes) {
  std::vector<std::string> names;
  names.reserve(nodes.size());
  for (const DOMNodePtr& node : nodes) names.push_back(NodeName(*node));
  return names;
}

inline HRESULT SetSelectionNamespaces(IXMLDOMDocument2& document, std::wstring_view declarations) {
  const CVariant value{CBstr(declarations)};
  return document.setProperty(CBstr(L"SelectionNamespaces").get(), value.get());
}

/// The value of "SelectionNamespaces".
inline std::wstring SelectionNamespaces(IXMLDOMDocument2& document) {
  CVariant value;
  Require(document.getProperty(CBstr(L"SelectionNamespaces").get(), value.Receive()));
  return std::wstring(value.Text());
}

/// Where a node stands, as "line:column"; "nowhere" when that is not known.
inline std::string PlaceOf(const CDOMDoc& document, IXMLDOMNode& node) {
  std::size_t line = 0;
  std::size_t column = 0;
  if (!document.Locate(node, line, column)) return "nowhere";
  return std::to_string(line) + ":" + std::to_string(column);
}

/// The problems as "line:column element: reason".
inline std::vector<std::string> ProblemTexts(const std::vector<DOMDocProblem>& problems) {
  std::vector<std::string> texts;
  texts.reserve(problems.size());
  for (const DOMDocProblem& problem : problems) {
    texts.push_back(std::to_string(problem.line) + ":" + std::to_string(problem.column) + " " + problem.element + ": " +
                    problem.reason);
  }
  return texts;
}

}  // namespace testsupport
