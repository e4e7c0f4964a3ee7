#include "ElementMutator.h"

#include <cstddef>
#include <vector>

namespace fuzz {

namespace {

struct OpenTag {
  std::size_t begin;
  std::string_view name;
};

std::string_view TagName(std::string_view tag) { return tag.substr(0, tag.find_first_of(" \t\r\n/>")); }

/// The elements of a text, each from the `<` of its start tag to the `>` of its end tag.
std::vector<std::string_view> FindElements(std::string_view text) {
  std::vector<std::string_view> elements;
  std::vector<OpenTag> open;
  std::size_t end = 0;
  for (std::size_t begin = text.find('<'); begin != std::string_view::npos; begin = text.find('<', end)) {
    end = text.find('>', begin);
    if (end == std::string_view::npos) break;
    const std::string_view tag = text.substr(begin + 1, end++ - begin - 1);
    if (tag.empty() || tag.front() == '?' || tag.front() == '!') continue;
    if (tag.ends_with('/')) {
      elements.push_back(text.substr(begin, end - begin));
    } else if (tag.front() != '/') {
      open.push_back({begin, TagName(tag)});
    } else if (!open.empty() && open.back().name == TagName(tag.substr(1))) {
      elements.push_back(text.substr(open.back().begin, end - open.back().begin));
      open.pop_back();
    }
  }
  return elements;
}

}  // namespace

std::string MutateElements(std::string_view text, std::minstd_rand& random) {
  enum Change { eInsert, eAppend, eReplace, eRemove };
  const std::vector<std::string_view> elements = FindElements(text);
  if (elements.empty()) return std::string(text);
  const auto any = [&] { return elements[std::uniform_int_distribution<std::size_t>(0, elements.size() - 1)(random)]; };
  const int change = std::uniform_int_distribution<int>(eInsert, eRemove)(random);
  const std::string_view place = any();
  const auto begin = static_cast<std::size_t>(place.data() - text.data());
  const std::size_t from = change == eAppend ? begin + place.size() : begin;
  const std::size_t to = change == eInsert ? begin : begin + place.size();
  std::string result(text.substr(0, from));
  if (change != eRemove) result += any();
  return result += text.substr(to);
}

}  // namespace fuzz
