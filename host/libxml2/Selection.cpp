#include "libxml2/Selection.h"

#include "libxml2/Errors.h"
#include "libxml2/XmlText.h"

#include <libxml/tree.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace libxml2 {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";
constexpr std::string_view kDeclarationStart = "xmlns:";

bool IsName(const std::string& text) { return xmlValidateNCName(Xml(text.c_str()), 0) == 0; }

/// Only ASCII letters, digits and underscores, which are all that the format's names contain; libxml2 handles the rest.
bool IsPlainName(std::string_view text) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";
  return !text.empty() && letters.find(text.front()) != std::string_view::npos &&
         text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_0123456789") ==
             std::string_view::npos;
}

template <typename Pairs>
auto FindPrefix(Pairs& prefixes, std::string_view prefix) {
  return std::find_if(prefixes.begin(), prefixes.end(), [&](const auto& pair) { return pair.first == prefix; });
}

void NoteMemory(void* hasRunOut, ErrorPointer error) {
  if (error->code == XML_ERR_NO_MEMORY) *static_cast<bool*>(hasRunOut) = true;
}

bool IsSelectable(const xmlNode& node) {
  return node.type == XML_ELEMENT_NODE || node.type == XML_ATTRIBUTE_NODE || node.type == XML_DOCUMENT_NODE;
}

}  // namespace

std::optional<Prefixes> ParsePrefixes(std::string_view declarations) {
  Prefixes prefixes;
  for (;;) {
    const std::size_t start = declarations.find_first_not_of(kWhiteSpace);
    if (start == std::string_view::npos) return prefixes;
    // There must be white space between two declarations.
    if (!prefixes.empty() && start == 0) return std::nullopt;
    declarations.remove_prefix(start);
    if (!declarations.starts_with(kDeclarationStart)) return std::nullopt;
    declarations.remove_prefix(kDeclarationStart.size());
    const std::size_t equals = declarations.find('=');
    if (equals == std::string_view::npos || equals + 1 == declarations.size()) return std::nullopt;
    const char quote = declarations[equals + 1];
    if (quote != '\'' && quote != '"') return std::nullopt;
    const std::size_t close = declarations.find(quote, equals + 2);
    if (close == std::string_view::npos) return std::nullopt;
    const std::string prefix(declarations.substr(0, equals));
    if (!IsName(prefix)) return std::nullopt;
    std::string uri(declarations.substr(equals + 2, close - equals - 2));
    if (const auto known = FindPrefix(prefixes, prefix); known != prefixes.end()) {
      known->second = std::move(uri);
    } else {
      prefixes.emplace_back(prefix, std::move(uri));
    }
    declarations.remove_prefix(close + 1);
  }
}

std::optional<CChildPath> CChildPath::Parse(std::string_view xpath, const Prefixes& prefixes) {
  if (xpath.empty()) return std::nullopt;
  CChildPath path;
  while (!xpath.empty()) {
    std::optional<Step> step = TakeStep(xpath, prefixes);
    if (!step || path.m_count == path.m_steps.size()) return std::nullopt;
    path.m_steps[path.m_count++] = std::move(*step);
  }
  return path;
}

/// Removes the first step of the path and returns it; nothing if it is not a child step with a known prefix.
std::optional<CChildPath::Step> CChildPath::TakeStep(std::string_view& path, const Prefixes& prefixes) {
  const std::size_t end = std::min(path.find('/'), path.size());
  const std::string_view step = path.substr(0, end);
  const std::size_t colon = step.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto prefix = FindPrefix(prefixes, step.substr(0, colon));
  const std::string_view name = step.substr(colon + 1);
  if (prefix == prefixes.end() || (name != "*" && !IsPlainName(name))) return std::nullopt;
  if (end + 1 == path.size()) return std::nullopt;  // nothing after the slash
  path.remove_prefix(std::min(end + 1, path.size()));
  return Step{prefix->second, name == "*" ? std::string() : std::string(name)};
}

void CChildPath::Select(const xmlNode& from, std::vector<xmlNode*>& nodes) const {
  if (from.type == XML_ELEMENT_NODE || from.type == XML_DOCUMENT_NODE) SelectFrom(from, 0, nodes);
}

void CChildPath::SelectFrom(const xmlNode& parent, std::size_t depth, std::vector<xmlNode*>& nodes) const {
  const Step& step = m_steps[depth];
  const xmlNs* fitting = nullptr;  // usually the same for all children
  for (xmlNode* child = parent.children; child != nullptr; child = child->next) {
    if (child->type != XML_ELEMENT_NODE || child->ns == nullptr) continue;
    if (child->ns != fitting && View(child->ns->href) != step.uri) continue;
    fitting = child->ns;
    if (!step.name.empty() && View(child->name) != step.name) continue;
    if (depth + 1 == m_count) {
      nodes.push_back(child);
    } else {
      SelectFrom(*child, depth + 1, nodes);
    }
  }
}

Outcome SelectByXPath(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes) {
  bool hasRunOut = false;
  const CThreadErrors otherErrors(NoteMemory, &hasRunOut);
  const std::unique_ptr<xmlXPathContext, Freeing<xmlXPathFreeContext>> context(xmlXPathNewContext(from->doc));
  if (context == nullptr) return Outcome::OutOfMemory;
  if (xmlXPathSetContextNode(from, context.get()) != 0) return Outcome::BadExpression;
#if LIBXML_VERSION >= 21300
  xmlXPathSetErrorHandler(context.get(), NoteMemory, &hasRunOut);
#else
  context->error = NoteMemory;
  context->userData = &hasRunOut;
#endif
  for (const auto& [prefix, uri] : prefixes) {
    if (xmlXPathRegisterNs(context.get(), Xml(prefix.c_str()), Xml(uri.c_str())) != 0) return Outcome::OutOfMemory;
  }
  const std::string expression(xpath);
  const std::unique_ptr<xmlXPathObject, Freeing<xmlXPathFreeObject>> result(
      xmlXPathEvalExpression(Xml(expression.c_str()), context.get()));
  if (hasRunOut) return Outcome::OutOfMemory;
  if (result == nullptr || result->type != XPATH_NODESET) return Outcome::BadExpression;
  const int count = xmlXPathNodeSetGetLength(result->nodesetval);
  for (int i = 0; i < count; ++i) {
    xmlNode* node = xmlXPathNodeSetItem(result->nodesetval, i);
    if (IsSelectable(*node)) nodes.push_back(node);
  }
  return Outcome::Found;
}

}  // namespace libxml2
