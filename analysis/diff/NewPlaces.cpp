#include "diff/NewPlaces.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vifanalysis {

namespace {

constexpr const char* kRemoved = " (removed)";

/// The place as `LocationText` has it for a field in it.
std::string ByLocationNames(const GroupPlace& place) { return LocationText(CVIFField(false, "", "", "", place)); }

bool IsInWord(char c) { return IsDigit(c) || (ToLowerAscii(c) >= 'a' && ToLowerAscii(c) <= 'z'); }

/// "Component 1, " at the beginning of a message about a group in that component.
std::string OuterComponent(std::string_view message) {
  constexpr std::string_view word = "Component ";
  const std::size_t comma = message.find(", ");
  if (!message.starts_with(word) || comma == std::string_view::npos) return {};
  const std::string_view number = message.substr(word.size(), comma - word.size());
  const bool isNumber = !number.empty() && std::all_of(number.begin(), number.end(), IsDigit);
  return isNumber ? std::string(message.substr(0, comma + 2)) : std::string();
}

/// Where the first numbers of the text end, as many as a place has at most, the last first. They are only looked for
/// as far as a place may reach, so that long messages do not take long.
std::vector<std::size_t> EndsOfNumbers(std::string_view text) {
  constexpr std::size_t longestPlace = 128;
  text = text.substr(0, longestPlace);
  std::vector<std::size_t> ends;
  for (std::size_t i = 1; i <= text.size() && ends.size() < CVIFField::MAX_INDEX_DEPTH; ++i) {
    if (IsDigit(text[i - 1]) && (i == text.size() || !IsDigit(text[i]))) ends.push_back(i);
  }
  std::reverse(ends.begin(), ends.end());
  return ends;
}

/// The group whose elements have that path without numbers; `eVifLocUnset` if there is none.
EVifLocation KindAt(std::string_view path) {
  for (int value = eVifLocVif; value <= eVifLocCableSvidMode; ++value) {
    const auto kind = static_cast<EVifLocation>(value);
    std::string_view ofKind = GetVifLocInfo(kind).xpath;
    ofKind.remove_suffix(1);  // the blank
    if (path == ofKind) return kind;
  }
  return eVifLocUnset;
}

/// One name of a path, such as "SrcPDO[2]". The first of several may or may not have a number.
struct Step {
  std::string_view name;
  std::uint64_t number = 1;

  explicit Step(std::string_view text) : name(text.substr(0, text.find('['))) {
    if (name.size() != text.size()) std::from_chars(text.data() + name.size() + 1, text.data() + text.size(), number);
  }

  std::string Text() const { return std::string(name) + (number == 1 ? "" : '[' + std::to_string(number) + ']'); }
};

/// Takes the first name of a path.
Step TakeStep(std::string_view& path) {
  const std::string_view text = path.substr(0, path.find('/'));
  path.remove_prefix(std::min(text.size() + 1, path.size()));
  return Step(text);
}

std::size_t DepthOf(EVifLocation kind) {
  const EVifLocation parent = GetVifLocParent(kind);
  return parent == eVifLocUnset ? 0 : 1 + DepthOf(parent);
}

}  // namespace

CNewPlaces::CNewPlaces(const Differences& differences) {
  for (const GroupChange& change : differences.groups) Add(change);
}

void CNewPlaces::Add(const GroupChange& change) {
  if (change.kind == GroupChangeKind::Added) return;
  m_groups.emplace(change.before, &change);
  const bool isRemoved = change.kind == GroupChangeKind::Removed;
  for (std::string (*const text)(const GroupPlace&) :
       {+[](const GroupPlace& place) { return PlaceInWords(place); }, &ByLocationNames}) {
    const std::string before = text(change.before);
    if (!before.empty()) m_texts.emplace(before, isRemoved ? before + kRemoved : text(change.after));
  }
}

std::string CNewPlaces::InMessage(std::string_view message) const {
  const std::string component = OuterComponent(message);
  std::string result;
  bool isWordBegin = true;
  while (!message.empty()) {
    std::string place = isWordBegin ? TakePlace(message, component) : std::string();
    if (place.empty()) {
      place = message.front();
      message.remove_prefix(1);
    }
    result += place;
    isWordBegin = !IsInWord(result.back());
  }
  return result;
}

std::string CNewPlaces::TakePlace(std::string_view& text, const std::string& component) const {
  if (m_texts.empty() || text.front() < 'A' || text.front() > 'Z') return {};
  for (const std::size_t end : EndsOfNumbers(text)) {
    auto found = m_texts.find(text.substr(0, end));
    const bool isWhole = found != m_texts.end();
    // "the same as in SOP SVID 1" means that of the component which the message begins with.
    if (!isWhole && !component.empty()) found = m_texts.find(component + std::string(text.substr(0, end)));
    if (found == m_texts.end()) continue;
    text.remove_prefix(end);
    return isWhole ? found->second : found->second.substr(found->second.find(", ") + 2);
  }
  return {};
}

std::string CNewPlaces::InPath(std::string_view path) const {
  std::string names;
  std::string result;
  GroupPlace place;
  place.fill(CVIFField::UNSPECIFIED_INDEX);
  while (!path.empty()) {
    Step step = TakeStep(path);
    names.append("/").append(step.name);
    const EVifLocation kind = KindAt(names);
    bool isRemoved = false;
    if (kind != eVifLocUnset) {
      const std::uint64_t first = GetVifLocFirstIndex(kind);
      const std::size_t depth = DepthOf(kind);
      place[depth] = {kind, first + step.number - 1};
      const auto found = m_groups.find(place);
      isRemoved = found != m_groups.end() && found->second->kind == GroupChangeKind::Removed;
      if (found != m_groups.end() && !isRemoved) step.number = std::get<1>(found->second->after[depth]) - first + 1;
    }
    result.append("/").append(step.Text()).append(isRemoved ? kRemoved : "");
  }
  return result;
}

}  // namespace vifanalysis
