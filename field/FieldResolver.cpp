#include "FieldResolver.h"

#include "BaseUtilities/StringConvert.h"
#include "Errors.h"
#include "GuardedRegex.h"
#include "KnownFieldIndex.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace vif {

namespace {

/// The number at the start of the captured text; unspecified when there is none or it has more than 64 bits.
std::uint64_t CapturedNumber(std::string_view digits) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return error == std::errc() ? number : CVIFField::INDEX_NOT_SPECIFIED;
}

/// The number that goes with a location. `capture` gives the text of capture group 1 or 2.
template <typename Capture>
std::uint64_t LocationNumber(EVifLocation location, std::uint32_t component, const Capture& capture) {
  switch (location) {
    case eVifLocUnset: break;
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct: return 0;
    case eVifLocComponent: return component;
    // The first group always feeds the outer group of the file and the second the inner one.
    case eVifLocRouter:
    case eVifLocSrcPdo:
    case eVifLocSnkPdo:
    case eVifLocSopSvid:
    case eVifLocCableSvid: return CapturedNumber(capture(1));
    case eVifLocRouterPcie:
    case eVifLocSopSvidMode:
    case eVifLocCableSvidMode: return CapturedNumber(capture(2));
  }
  ThrowRunTimeError("Internal error - Unknown EVifLocation: %d", location);
}

template <typename Capture>
void FillSlots(const std::array<EVifLocation, CVIFField::MAX_INDEX_DEPTH>& locations, std::uint32_t component,
               const Capture& capture, ResolvedName& result) {
  size_t slot = 0;
  for (const EVifLocation location : locations) {
    if (location == eVifLocUnset) continue;
    result.slots[slot++] = {location, LocationNumber(location, component, capture)};
  }
}

/// The first definition whose pattern fits the whole name, with the captures in `match`; null when there is none.
const VifFieldDef* FindDefinition(const std::vector<VifFieldDef>& table, std::wstring_view name,
                                  GuardedMatch<wchar_t>& match) {
  const auto found = std::find_if(table.begin(), table.end(), [&](const VifFieldDef& definition) {
    return GuardedRegexMatch(name, match, definition.pattern);
  });
  return found != table.end() ? &*found : nullptr;
}

}  // namespace

CFieldResolver::CFieldResolver(const std::vector<VifFieldDef>* table, std::uint32_t component)
    : m_ownTable(table != &VifFieldDefs::GetVifFieldDefs() ? table : nullptr), m_component(component) {}

void CFieldResolver::Resolve(std::string_view name, ResolvedName& result) const {
  result.name = name;
  result.slots.fill(CVIFField::UNSPECIFIED_INDEX);
  result.isKnown = false;
  if (m_ownTable == nullptr) {
    ResolveBuiltIn(name, result);
  } else {
    ResolveByPatterns(name, result);
  }
}

bool CFieldResolver::Knows(std::string_view name) const {
  if (m_ownTable == nullptr) return BuiltInFieldIndex().Find(name).field != nullptr;
  GuardedMatch<wchar_t> match;
  return FindDefinition(*m_ownTable, Utf8ToUtf16(name), match) != nullptr;
}

void CFieldResolver::ResolveBuiltIn(std::string_view name, ResolvedName& result) const {
  const KnownFieldMatch match = BuiltInFieldIndex().Find(name);
  if (match.field == nullptr) return;
  result.isKnown = true;
  result.name = match.canonicalName;
  FillSlots(
      match.field->locations, m_component, [&](size_t group) { return match.indexDigits[group - 1]; }, result);
}

void CFieldResolver::ResolveByPatterns(std::string_view name, ResolvedName& result) const {
  const std::wstring wideName = Utf8ToUtf16(name);
  GuardedMatch<wchar_t> match;
  const VifFieldDef* definition = FindDefinition(*m_ownTable, wideName, match);
  if (definition == nullptr) return;
  result.isKnown = true;
  result.name = definition->name != nullptr ? Utf16ToUtf8(definition->name) : std::string();
  std::string captured;
  const auto capture = [&](size_t group) -> std::string_view {
    // A group that took no part, or that there is not, is empty and stands at the end of the name.
    captured = Utf16ToUtf8({match[group].first.Position(), match[group].second.Position()});
    return captured;
  };
  FillSlots(definition->locations, m_component, capture, result);
}

}  // namespace vif
