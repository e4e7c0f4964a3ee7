#include <analysis/Differences.h>

#include <algorithm>
#include <map>
#include <string_view>
#include <tuple>

namespace vifanalysis {

namespace {

/// What distinguishes findings.
using Key = std::tuple<std::string_view, std::string_view, std::string_view>;

bool IsPath(std::string_view element) { return element.find('/') != std::string_view::npos; }

bool HasPaths(const std::vector<Finding>& findings) {
  return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) { return IsPath(finding.element); });
}

/// The name of the field: that of a text file without a dollar sign, or the last one of a path without its number.
std::string_view NameIn(std::string_view element) {
  element.remove_prefix(element.find_last_of("/:") + 1);  // after npos that is 0
  element = element.substr(0, element.find('['));
  return element.starts_with('$') ? element.substr(1) : element;
}

Key KeyOf(const Finding& finding, bool byName) {
  return {finding.code, byName ? NameIn(finding.element) : std::string_view(finding.element), finding.message};
}

/// The findings of the one list that the other does not have.
std::vector<Finding> OnlyIn(const std::vector<Finding>& findings, const std::vector<Finding>& others, bool byName) {
  std::map<Key, std::size_t> known;
  for (const Finding& other : others) ++known[KeyOf(other, byName)];
  std::vector<Finding> only;
  for (const Finding& finding : findings) {
    const auto found = known.find(KeyOf(finding, byName));
    if (found == known.end() || found->second == 0) {
      only.push_back(finding);
    } else {
      --found->second;
    }
  }
  return only;
}

}  // namespace

FindingChanges CompareFindings(const std::vector<Finding>& before, const std::vector<Finding>& after) {
  const bool byName = HasPaths(before) != HasPaths(after);
  return {OnlyIn(before, after, byName), OnlyIn(after, before, byName)};
}

}  // namespace vifanalysis
