#include "msxml6/ElementPlaces.h"

#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDocReasons.h"
#include "msxml6/DocumentLoader.h"
#include "msxml6/ElementMark.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace msxml6 {

namespace {

/// Empty when the node is not an element.
DOMElementPtr AsElement(IXMLDOMNode& node) {
  DOMElementPtr element;
  static_cast<void>(node.QueryInterface(IID_IXMLDOMElement, reinterpret_cast<void**>(element.Receive())));
  return element;
}

using Step = HRESULT (STDMETHODCALLTYPE IXMLDOMNode::*)(IXMLDOMNode**);

DOMNodePtr Take(IXMLDOMNode& node, Step step) {
  DOMNodePtr next;
  RequireSuccess((node.*step)(next.Receive()), node, IID_IXMLDOMNode);
  return next;
}

/// The first element among a node and its following siblings; empty if none.
DOMElementPtr ElementFrom(DOMNodePtr node) {
  while (node) {
    if (DOMElementPtr element = AsElement(*node)) return element;
    node = Take(*node, &IXMLDOMNode::get_nextSibling);
  }
  return nullptr;
}

DOMElementPtr ElementBehind(IXMLDOMElement& element) {
  return ElementFrom(Take(element, &IXMLDOMNode::get_nextSibling));
}

DOMElementPtr ElementAround(IXMLDOMElement& element) {
  const DOMNodePtr parent = Take(element, &IXMLDOMNode::get_parentNode);
  return parent ? AsElement(*parent) : nullptr;
}

/// The element itself, or the one that an attribute belongs to; empty for anything else.
DOMElementPtr ElementOf(IXMLDOMNode& node) {
  DOMNodeType type = NODE_INVALID;
  RequireSuccess(node.get_nodeType(&type), node, IID_IXMLDOMNode);
  if (type != NODE_ATTRIBUTE) return AsElement(node);
  DOMNodePtr around;
  RequireSuccess(node.selectSingleNode(CBstr(L"..").get(), around.Receive()), node, IID_IXMLDOMNode);
  return around ? AsElement(*around) : nullptr;
}

std::wstring BaseName(IXMLDOMElement& element) {
  CBstr name;
  RequireSuccess(element.get_baseName(name.Receive()), element, IID_IXMLDOMNode);
  return std::wstring(name.View());
}

/// The namespace and the local name.
std::pair<std::wstring, std::wstring> FullName(IXMLDOMElement& element) {
  CBstr uri;
  RequireSuccess(element.get_namespaceURI(uri.Receive()), element, IID_IXMLDOMNode);
  return {std::wstring(uri.View()), BaseName(element)};
}

}  // namespace

CElementPlaces::CElementPlaces(IXMLDOMDocument2& document, std::vector<Tag> tags)
    : m_document(document), m_tags(std::move(tags)), m_numbers(m_tags.size()), m_hasNumbers(m_tags.size()) {}

const Tag* CElementPlaces::Find(IXMLDOMNode& node) {
  const DOMElementPtr element = ElementOf(node);
  return element && GoTo(element) ? &m_tags[m_way.back().tag] : nullptr;
}

std::string CElementPlaces::PathOf(IXMLDOMNode& node) {
  const DOMElementPtr element = AsElement(node);
  if (!element || !GoTo(element)) return {};
  std::string path;
  for (std::size_t depth = 0; depth < m_way.size(); ++depth) {
    NumberNamesakes(depth);
    if (depth != 0) path += '/';
    path += PathStep(Utf16ToUtf8(BaseName(*m_way[depth].element)), m_numbers[m_way[depth].tag]);
  }
  return path;
}

bool CElementPlaces::GoTo(const DOMElementPtr& element) {
  std::vector<DOMElementPtr> way;
  for (DOMElementPtr around = element; around; around = ElementAround(*around)) way.push_back(around);
  std::reverse(way.begin(), way.end());
  std::size_t depth = std::min(way.size(), m_way.size());
  // If both ways contain an element, they contain the same ancestors too.
  while (depth > 0 && !CElementMark(*way[depth - 1]).IsOn(*m_way[depth - 1].element)) --depth;
  for (; depth < way.size(); ++depth) {
    if (!GoTo(depth, *way[depth])) return false;
  }
  m_way.resize(way.size());
  return true;
}

bool CElementPlaces::GoTo(std::size_t depth, IXMLDOMElement& element) {
  CElementMark mark(element);
  std::optional<Place> found;
  if (depth < m_way.size()) {
    found = Search(m_way[depth], mark);
    m_way.resize(depth);
  }
  if (!found) found = Search(FirstOf(depth), mark);
  if (found) m_way.push_back(std::move(*found));
  return m_way.size() > depth;
}

CElementPlaces::Place CElementPlaces::FirstOf(std::size_t depth) const {
  if (depth != 0) {
    const Place& around = m_way[depth - 1];
    return {ElementFrom(Take(*around.element, &IXMLDOMNode::get_firstChild)), m_tags[around.tag].firstChild};
  }
  Place root{nullptr, m_tags[Tag::kNone].firstChild};
  RequireSuccess(m_document.get_documentElement(root.element.Receive()), m_document, IID_IXMLDOMDocument2);
  return root;
}

std::optional<CElementPlaces::Place> CElementPlaces::Search(Place from, CElementMark& mark) const {
  while (from.element && from.tag != Tag::kNone) {
    if (mark.IsOn(*from.element)) return from;
    from = {ElementBehind(*from.element), m_tags[from.tag].nextSibling};
  }
  return std::nullopt;
}

void CElementPlaces::NumberNamesakes(std::size_t depth) {
  const std::uint32_t around = depth != 0 ? m_way[depth - 1].tag : Tag::kNone;
  if (m_hasNumbers[around]) return;
  struct Namesakes {
    std::uint32_t first;
    std::uint32_t count;
  };
  std::map<std::pair<std::wstring, std::wstring>, Namesakes> namesakes;
  for (Place place = FirstOf(depth); place.element && place.tag != Tag::kNone;
       place = {ElementBehind(*place.element), m_tags[place.tag].nextSibling}) {
    const auto [entry, isFirst] = namesakes.try_emplace(FullName(*place.element), Namesakes{place.tag, 1});
    if (isFirst) continue;
    m_numbers[entry->second.first] = 1;
    m_numbers[place.tag] = ++entry->second.count;
  }
  m_hasNumbers[around] = true;
}

}  // namespace msxml6
