// Finds nodes by XPath.
#pragma once

#include "libxml2/XmlTree.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace libxml2 {

/// The prefixes that XPath expressions use, each with its namespace. There are so few that a linear search is fastest.
using Prefixes = std::vector<std::pair<std::string, std::string>>;

/// Parses declarations of the form xmlns:prefix='URI' (or with double quotes), separated by white space; nothing if the
/// text is malformed.
std::optional<Prefixes> ParsePrefixes(std::string_view declarations);

/// A path of child steps such as `p:A/p:B` or `p:*`, as nearly all are. It is evaluated by walking the children alone.
class CChildPath {
 public:
  /// Parses an expression.
  /// \param prefixes must outlive the path
  /// \return nothing when the expression is not such a path, has more steps than the library's own paths, or has a name
  ///   that is not plain
  static std::optional<CChildPath> Parse(std::string_view xpath, const Prefixes& prefixes);

  /// Adds the elements that it finds from an element or the document, in document order.
  void Select(const xmlNode& from, std::vector<xmlNode*>& nodes) const;

 private:
  /// An element name, empty for any, in a namespace.
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

/// Finds the elements, attributes and the document that any expression selects from a node, in document order.
/// \param nodes receives them; what it already contains stays, whatever the outcome
Outcome SelectByXPath(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes);

}  // namespace libxml2
