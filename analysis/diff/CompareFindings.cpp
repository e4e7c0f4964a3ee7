#include "diff/NewPlaces.h"
#include "files/Sentence.h"

#include <analysis/Differences.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <tuple>

namespace vifanalysis {

namespace {

/// What distinguishes findings.
using Key = std::tuple<std::string, std::string, std::string>;
using Keys = std::vector<Key>;

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

/// The message without the element's path, which is compared by itself.
std::string MessageWithoutPath(const Finding& finding) {
  std::string message = StableMessage(finding.code, finding.message);
  if (!IsPath(finding.element)) return message;
  const std::string path = Quoted(finding.element);
  const std::size_t place = message.find(path);
  return place == std::string::npos ? message : message.erase(place, path.size());
}

/// \param byName whether only the name of the element counts, without its path
Keys KeysOf(const std::vector<Finding>& findings, bool byName, const CNewPlaces& places) {
  Keys keys;
  keys.reserve(findings.size());
  for (const Finding& finding : findings) {
    std::string element(byName ? NameIn(finding.element) : finding.element);
    if (IsPath(element)) element = places.InPath(element);
    keys.emplace_back(finding.code, std::move(element), places.InMessage(MessageWithoutPath(finding)));
  }
  return keys;
}

/// The findings of the one list that the other does not have.
std::vector<Finding> OnlyIn(const std::vector<Finding>& findings, const Keys& keys, const Keys& others) {
  std::map<Key, std::size_t> known;
  for (const Key& other : others) ++known[other];
  std::vector<Finding> only;
  for (std::size_t i = 0; i < findings.size(); ++i) {
    const auto found = known.find(keys[i]);
    if (found == known.end() || found->second == 0) {
      only.push_back(findings[i]);
    } else {
      --found->second;
    }
  }
  return only;
}

}  // namespace

FindingChanges CompareFindings(const std::vector<Finding>& before, const std::vector<Finding>& after,
                               const Differences& differences) {
  const bool byName = HasPaths(before) != HasPaths(after);
  const Keys keysBefore = KeysOf(before, byName, CNewPlaces(differences));
  const Keys keysAfter = KeysOf(after, byName, CNewPlaces({}));
  return {OnlyIn(before, keysBefore, keysAfter), OnlyIn(after, keysAfter, keysBefore)};
}

}  // namespace vifanalysis
