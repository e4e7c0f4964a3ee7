// Finds nodes by XPath.
#pragma once

#include "msxml/XmlTree.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace msxml {

/// The prefixes that XPath expressions use, each with its namespace.
/// So few that looking at one after the other is the fastest way to find one.
using Prefixes = std::vector<std::pair<std::string, std::string>>;

/// Takes declarations of the form xmlns:prefix='URI' (or with double quotes) apart, with white space between them;
/// nothing when the text has another form.
std::optional<Prefixes> ParsePrefixes(std::string_view declarations);

/// A path of child steps such as `p:A/p:B` or `p:*`, as nearly all are. It is answered from the children alone.
class CChildPath {
 public:
  /// Takes an expression apart.
  /// \param prefixes must live as long as the path
  /// \return nothing when it is not such a path, has more steps than the library's own, or has a name that is not plain
  static std::optional<CChildPath> Parse(std::string_view xpath, const Prefixes& prefixes);

  /// Adds what it finds from an element or the document to the list, in document order.
  void Select(const xmlNode& from, std::vector<xmlNode*>& nodes) const;

 private:
  /// An element's name, or any when it is empty, in a namespace.
  struct Step {
    std::string_view uri;
    std::string name;
  };

  static std::optional<Step> TakeStep(std::string_view& path, const Prefixes& prefixes);
  void SelectFrom(const xmlNode& parent, std::size_t depth, std::vector<xmlNode*>& nodes) const;

  std::array<Step, 4> m_steps;
  std::size_t m_count = 0;
};

enum class Outcome { Found, BadExpression, OutOfMemory };

/// Puts the elements, attributes and the document that any expression finds from a node into a list, in document order.
/// \param nodes is added to; whatever the outcome, what was in it stays
Outcome SelectByXPath(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes);

}  // namespace msxml
