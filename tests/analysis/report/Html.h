// What tests look for in a page.
#pragma once

#include "Example.h"

#include <analysis/Report.h>

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis::reporttest {

inline std::vector<CVIFField> FieldsOf(const CExample& example) {
  std::vector<CVIFField> fields;
  for (const FoundField& found : example.Fields()) fields.push_back(found.field);
  return fields;
}

/// The page about an example.
inline std::string PageOf(const CExample& example, const std::vector<Finding>& findings = {}) {
  const std::vector<CVIFField> fields = FieldsOf(example);
  return MakeReport({"example.txt", fields, findings});
}

/// Where a text begins in a page.
inline std::vector<std::size_t> AllMatches(std::string_view page, std::string_view text) {
  std::vector<std::size_t> matches;
  for (std::size_t at = page.find(text); at != std::string_view::npos; at = page.find(text, at + 1)) {
    matches.push_back(at);
  }
  return matches;
}

/// What stands between the first occurrence of a text and the end that follows it; empty where there is none.
inline std::string Between(const std::string& page, const std::string& begin, const std::string& end) {
  const std::size_t first = page.find(begin);
  if (first == std::string::npos) return {};
  const std::size_t from = first + begin.size();
  return page.substr(from, page.find(end, from) - from);
}

/// The values of all attributes that a text begins.
inline std::vector<std::string> ValuesAfter(const std::string& page, std::string_view begin) {
  std::vector<std::string> values;
  for (const std::size_t at : AllMatches(page, begin)) {
    const std::size_t from = at + begin.size();
    values.push_back(page.substr(from, page.find('"', from) - from));
  }
  return values;
}

/// The links into the page that lead to no element.
inline std::vector<std::string> BrokenLinks(const std::string& page) {
  const std::vector<std::string> ids = ValuesAfter(page, " id=\"");
  const std::set<std::string> known(ids.begin(), ids.end());
  std::vector<std::string> links = ValuesAfter(page, " href=\"#");
  std::erase_if(links, [&](const std::string& link) { return known.contains(link); });
  return links;
}

/// The ids that several elements have.
inline std::vector<std::string> RepeatedIds(const std::string& page) {
  std::set<std::string> known;
  std::vector<std::string> repeated;
  for (const std::string& id : ValuesAfter(page, " id=\"")) {
    if (!known.insert(id).second) repeated.push_back(id);
  }
  return repeated;
}

}  // namespace vifanalysis::reporttest
