#include "FieldResolver.h"

#include "BaseUtilities/StringConvert.h"
#include "Errors.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>

namespace vif {

namespace {

/// The number at the start of the captured text; unspecified if there is none or it has more than 64 bits.
std::uint64_t CapturedNumber(std::string_view digits) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return error == std::errc() ? number : CVIFField::INDEX_NOT_SPECIFIED;
}

/// The number that goes with a location. `capture` returns the text of capture group 1 or 2.
template <typename Capture>
std::uint64_t LocationNumber(EVifLocation location, std::uint32_t component, const Capture& capture) {
  switch (location) {
    case eVifLocUnset: break;
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct: return 0;
    case eVifLocComponent: return component;
    // The first capture group always numbers the outer group of the file and the second the inner one.
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

/// The known fields by the patterns of their built-in definitions.
using FieldsByPattern = std::unordered_map<const void*, const KnownField*>;

FieldsByPattern BuiltInPatterns() {
  FieldsByPattern fields;
  const std::vector<VifFieldDef>& table = VifFieldDefs::GetVifFieldDefs();
  for (size_t i = 0; i < table.size(); ++i) {
    const void* pattern = IdentityOf(table[i].pattern);
    if (pattern != nullptr) fields[pattern] = &KnownFields()[i];
  }
  return fields;
}

/// The known field whose built-in pattern the definition uses; null if the pattern is the caller's own.
const KnownField* FieldWithPatternOf(const VifFieldDef& definition) {
  static const FieldsByPattern fields = BuiltInPatterns();
  const auto found = fields.find(IdentityOf(definition.pattern));
  return found != fields.end() ? found->second : nullptr;
}

size_t NumberOf(const KnownField& field) { return static_cast<size_t>(&field - KnownFields().data()); }

}  // namespace

CFieldResolver::CFieldResolver(const std::vector<VifFieldDef>* table, std::uint32_t component)
    : m_ownTable(table != &VifFieldDefs::GetVifFieldDefs() ? table : nullptr), m_component(component) {
  if (m_ownTable == nullptr) return;
  m_positions.assign(KnownFields().size(), m_ownTable->size());
  for (size_t position = 0; position < m_ownTable->size(); ++position) {
    const VifFieldDef& definition = (*m_ownTable)[position];
    if (const KnownField* field = FieldWithPatternOf(definition); field != nullptr) {
      m_positions[NumberOf(*field)] = std::min(m_positions[NumberOf(*field)], position);
    } else {
      m_ownPatterns.push_back({position, ShapeOf(definition.pattern)});
    }
  }
}

void CFieldResolver::Resolve(std::string_view name, ResolvedName& result) const {
  result.name = name;
  result.slots.fill(CVIFField::UNSPECIFIED_INDEX);
  result.isKnown = false;
  const KnownFieldMatch known = BuiltInFieldIndex().Find(name);
  if (m_ownTable == nullptr) {
    ResolveBuiltIn(known, result);
  } else {
    ResolveByTable(name, known, result);
  }
}

bool CFieldResolver::Knows(std::string_view name) const {
  const KnownFieldMatch known = BuiltInFieldIndex().Find(name);
  if (m_ownTable == nullptr) return known.field != nullptr;
  const size_t position = PositionOf(known);
  GuardedMatch<wchar_t> match;
  return FindOwnPattern(Utf8ToUtf16(name), position, match) != nullptr || position < m_ownTable->size();
}

void CFieldResolver::ResolveBuiltIn(const KnownFieldMatch& known, ResolvedName& result) const {
  if (known.field == nullptr) return;
  result.isKnown = true;
  result.name = known.canonicalName;
  FillSlots(
      known.field->locations, m_component, [&](size_t group) { return known.indexDigits[group - 1]; }, result);
}

void CFieldResolver::ResolveByTable(std::string_view name, const KnownFieldMatch& known, ResolvedName& result) const {
  const size_t position = PositionOf(known);
  const std::wstring wideName = Utf8ToUtf16(name);
  GuardedMatch<wchar_t> match;
  const VifFieldDef* definition = FindOwnPattern(wideName, position, match);
  const bool hasOwnPattern = definition != nullptr;
  if (!hasOwnPattern) {
    if (position == m_ownTable->size()) return;
    definition = &(*m_ownTable)[position];
  }
  result.isKnown = true;
  result.name = definition->name != nullptr ? Utf16ToUtf8(definition->name) : std::string();
  std::string captured;
  const auto capture = [&](size_t group) -> std::string_view {
    if (!hasOwnPattern) return known.indexDigits[group - 1];
    // A capture group that took no part in the match, or does not exist, is empty and stands at the end of the name.
    const wchar_t* const begin = match[group].first.Position();
    captured = Utf16ToUtf8({begin, static_cast<size_t>(match[group].second.Position() - begin)});
    return captured;
  };
  FillSlots(definition->locations, m_component, capture, result);
}

size_t CFieldResolver::PositionOf(const KnownFieldMatch& known) const {
  return known.field != nullptr ? m_positions[NumberOf(*known.field)] : m_ownTable->size();
}

const VifFieldDef* CFieldResolver::FindOwnPattern(std::wstring_view name, size_t end,
                                                  GuardedMatch<wchar_t>& match) const {
  const std::uintptr_t lowestFrame = LowestFrame();
  for (const OwnPattern& own : m_ownPatterns) {
    if (own.position >= end) break;
    const VifFieldDef& definition = (*m_ownTable)[own.position];
    if (CGuardedMatcher(own.shape).Match(name, match, definition.pattern, lowestFrame)) return &definition;
  }
  return nullptr;
}

}  // namespace vif
