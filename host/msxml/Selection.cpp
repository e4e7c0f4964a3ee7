#include "msxml/Selection.h"

#include "msxml/ThreadErrors.h"
#include "msxml/XmlText.h"

#include <libxml/parserInternals.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

#include <algorithm>
#include <memory>
#include <new>

namespace msxml {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";
constexpr std::string_view kDeclarationStart = "xmlns:";

bool IsName(const std::string& text) { return xmlValidateNCName(Xml(text.c_str()), 0) == 0; }

/// One step of a path: an element's name, or any for `*`, in a namespace.
struct ChildStep {
  std::string_view uri;
  std::string_view name;  // empty stands for any

  bool Fits(const xmlNode& node) const {
    return node.type == XML_ELEMENT_NODE && node.ns != nullptr && View(node.ns->href) == uri &&
           (name.empty() || View(node.name) == name);
  }
};

/// Only ASCII letters, digits and underscores, which is what the format's names are made of; others are left to
/// libxml2.
bool IsPlainName(std::string_view text) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";
  return !text.empty() && letters.find(text.front()) != std::string_view::npos &&
         text.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_0123456789") ==
             std::string_view::npos;
}

/// Takes the first step off the path; nothing when it is no child step with a known prefix.
std::optional<ChildStep> TakeStep(std::string_view& path, const Prefixes& prefixes) {
  const std::size_t end = std::min(path.find('/'), path.size());
  const std::string_view step = path.substr(0, end);
  const std::size_t colon = step.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto prefix = prefixes.find(step.substr(0, colon));
  const std::string_view name = step.substr(colon + 1);
  if (prefix == prefixes.end() || (name != "*" && !IsPlainName(name))) return std::nullopt;
  if (end + 1 == path.size()) return std::nullopt;  // a slash with nothing behind it
  path.remove_prefix(std::min(end + 1, path.size()));
  return ChildStep{prefix->second, name == "*" ? std::string_view() : name};
}

void SelectChildren(const xmlNode& parent, const ChildStep& step, std::vector<xmlNode*>& nodes) {
  for (xmlNode* child = parent.children; child != nullptr; child = child->next) {
    if (step.Fits(*child)) nodes.push_back(child);
  }
}

/// Answers a path of child steps. Returns false, with nothing selected, when the path is something else.
bool SelectByChildSteps(const xmlNode& from, std::string_view path, const Prefixes& prefixes,
                        std::vector<xmlNode*>& nodes) {
  if (path.empty() || (from.type != XML_ELEMENT_NODE && from.type != XML_DOCUMENT_NODE)) return false;
  std::vector<ChildStep> steps;
  while (!path.empty()) {
    const std::optional<ChildStep> step = TakeStep(path, prefixes);
    if (!step) return false;
    steps.push_back(*step);
  }
  std::vector<xmlNode*> parents;
  std::vector<xmlNode*> children;
  SelectChildren(from, steps.front(), children);
  for (std::size_t i = 1; i < steps.size(); ++i) {
    parents.swap(children);
    children.clear();
    for (const xmlNode* parent : parents) SelectChildren(*parent, steps[i], children);
  }
  nodes.insert(nodes.end(), children.begin(), children.end());
  return true;
}

struct FreeXPathContext {
  void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
};
struct FreeXPathObject {
  void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
};

void IgnoreError(void*, xmlErrorPtr) {}

bool IsSelectable(const xmlNode& node) {
  return node.type == XML_ELEMENT_NODE || node.type == XML_ATTRIBUTE_NODE || node.type == XML_DOCUMENT_NODE;
}

}  // namespace

std::optional<Prefixes> ParsePrefixes(std::string_view declarations) {
  Prefixes prefixes;
  for (;;) {
    const std::size_t start = declarations.find_first_not_of(kWhiteSpace);
    if (start == std::string_view::npos) return prefixes;
    // Between two declarations there must be white space.
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
    prefixes.insert_or_assign(prefix, std::string(declarations.substr(equals + 2, close - equals - 2)));
    declarations.remove_prefix(close + 1);
  }
}

Outcome SelectNodes(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes) {
  if (SelectByChildSteps(*from, xpath, prefixes, nodes)) return Outcome::Found;
  return SelectByXPath(from, xpath, prefixes, nodes);
}

Outcome SelectByXPath(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes) {
  const std::unique_ptr<xmlXPathContext, FreeXPathContext> context(xmlXPathNewContext(from->doc));
  if (context == nullptr) return Outcome::OutOfMemory;
  context->node = from;
  context->error = IgnoreError;
  const CThreadErrors otherErrors(IgnoreError, nullptr);
  for (const auto& [prefix, uri] : prefixes) {
    if (xmlXPathRegisterNs(context.get(), Xml(prefix.c_str()), Xml(uri.c_str())) != 0) return Outcome::OutOfMemory;
  }
  const std::string expression(xpath);
  const std::unique_ptr<xmlXPathObject, FreeXPathObject> result(
      xmlXPathEvalExpression(Xml(expression.c_str()), context.get()));
  if (result == nullptr) {
    return context->lastError.code == XML_ERR_NO_MEMORY ? Outcome::OutOfMemory : Outcome::BadExpression;
  }
  if (result->type != XPATH_NODESET) return Outcome::BadExpression;
  const int count = xmlXPathNodeSetGetLength(result->nodesetval);
  for (int i = 0; i < count; ++i) {
    xmlNode* node = xmlXPathNodeSetItem(result->nodesetval, i);
    if (IsSelectable(*node)) nodes.push_back(node);
  }
  return Outcome::Found;
}

}  // namespace msxml
