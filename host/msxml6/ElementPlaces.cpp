#include "msxml6/ElementPlaces.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml6/DocumentLoader.h"

#include <cstddef>
#include <cstdint>
#include <tuple>

namespace msxml6 {

namespace {

/// A path names each element for people, and a file may have it in all its paths.
constexpr std::size_t kLongestName = 100;

DOMNodeType TypeOf(IXMLDOMNode& node) {
  DOMNodeType type = NODE_INVALID;
  Require(node.get_nodeType(&type), node, IID_IXMLDOMNode);
  return type;
}

bool IsElement(IXMLDOMNode& node) { return TypeOf(node) == NODE_ELEMENT; }

DOMNodePtr Parent(IXMLDOMNode& node) {
  DOMNodePtr parent;
  Require(node.get_parentNode(parent.Receive()), node, IID_IXMLDOMNode);
  return parent;
}

using Step = HRESULT (STDMETHODCALLTYPE IXMLDOMNode::*)(IXMLDOMNode**);

/// The next element in a direction among those beside this one; empty when there is none.
DOMNodePtr NextElement(IXMLDOMNode& node, Step step) {
  DOMNodePtr next;
  Require((node.*step)(next.Receive()), node, IID_IXMLDOMNode);
  while (next && !IsElement(*next)) {
    DOMNodePtr further;
    Require(((*next).*step)(further.Receive()), *next, IID_IXMLDOMNode);
    next = std::move(further);
  }
  return next;
}

DOMNodePtr ElementBefore(IXMLDOMNode& node) { return NextElement(node, &IXMLDOMNode::get_previousSibling); }
DOMNodePtr ElementBehind(IXMLDOMNode& node) { return NextElement(node, &IXMLDOMNode::get_nextSibling); }

/// The numbers of an element and those around it, each among its siblings, from the innermost one on.
std::vector<std::size_t> NumbersOf(IXMLDOMNode& element) {
  std::vector<std::size_t> numbers;
  DOMNodePtr current(&element);
  while (current && IsElement(*current)) {
    std::size_t number = 0;
    for (DOMNodePtr before = ElementBefore(*current); before; before = ElementBefore(*before)) ++number;
    numbers.push_back(number);
    current = Parent(*current);
  }
  return numbers;
}

/// The element that an attribute belongs to; empty when it belongs to none.
DOMNodePtr ElementOf(IXMLDOMNode& attribute) {
  DOMNodePtr element;
  Require(attribute.selectSingleNode(CBstr(L"..").get(), element.Receive()), attribute, IID_IXMLDOMNode);
  return element;
}

std::string BaseName(IXMLDOMNode& node) {
  CBstr name;
  Require(node.get_baseName(name.Receive()), node, IID_IXMLDOMNode);
  return Utf16ToUtf8(name.View());
}

/// The name with its namespace.
std::pair<std::string, std::string> FullName(IXMLDOMNode& node) {
  CBstr uri;
  Require(node.get_namespaceURI(uri.Receive()), node, IID_IXMLDOMNode);
  return {Utf16ToUtf8(uri.View()), BaseName(node)};
}

/// The element's number among its siblings of the same name, from 1; 0 when there is no other.
std::size_t NumberAmongNamesakes(IXMLDOMNode& element) {
  const auto name = FullName(element);
  std::size_t number = 1;
  for (DOMNodePtr before = ElementBefore(element); before; before = ElementBefore(*before)) {
    if (FullName(*before) == name) ++number;
  }
  if (number > 1) return number;
  for (DOMNodePtr behind = ElementBehind(element); behind; behind = ElementBehind(*behind)) {
    if (FullName(*behind) == name) return 1;
  }
  return 0;
}

std::string StepText(IXMLDOMNode& element) {
  const std::string name = BaseName(element);
  std::string step = Utf16ToUtf8(Utf8ToUtf16(std::string_view(name).substr(0, kLongestName)));
  if (name.size() > kLongestName) step += "...";
  if (const std::size_t number = NumberAmongNamesakes(element); number != 0) step += '[' + std::to_string(number) + ']';
  return step;
}

}  // namespace

const Tag* FindTag(IXMLDOMNode& node, const std::vector<Tag>& tags) {
  DOMNodePtr element(&node);
  if (TypeOf(node) == NODE_ATTRIBUTE) element = ElementOf(node);
  if (!element || !IsElement(*element) || tags.empty()) return nullptr;
  const std::vector<std::size_t> numbers = NumbersOf(*element);
  std::uint32_t tag = Tag::kNone;
  for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
    tag = tags[tag].firstChild;
    for (std::size_t i = 0; i < *number && tag != Tag::kNone; ++i) tag = tags[tag].nextSibling;
    if (tag == Tag::kNone) return nullptr;
  }
  return &tags[tag];
}

std::string PathOfElement(IXMLDOMNode& node) {
  std::string path;
  DOMNodePtr current(&node);
  while (current && IsElement(*current)) {
    path = path.empty() ? StepText(*current) : StepText(*current) + '/' + path;
    current = Parent(*current);
  }
  return path;
}

}  // namespace msxml6
