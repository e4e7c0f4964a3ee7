#include "FieldIndex.h"

#include "SpellingMatch.h"
#include "ValueTables.h"

#include <algorithm>
#include <bit>
#include <initializer_list>
#include <tuple>
#include <utility>

namespace vifanalysis {

namespace {

using FieldTable = std::pair<std::span<const FieldRow>, FieldStanding>;

std::array<FieldTable, 16> FieldTables() {
  using enum FieldStanding;
  return {{{HeaderFields(), Defined},
           {PortFields(), Defined},
           {TypeCFields(), Defined},
           {Usb4Fields(), Defined},
           {DataFields(), Defined},
           {PowerFields(), Defined},
           {IdentityFields(), Defined},
           {CableFields(), Defined},
           {RouterFields(), Defined},
           {PdoFields(), Defined},
           {SvidFields(), Defined},
           {RetiredFields(), Defined},
           {NewerFields(), Newer},
           {OlderFields(), Older},
           {XmlStructureFields(), XmlStructure},
           {OptionalContentFields(), OptionalContent}}};
}

/// The group and those around it, outermost first.
std::array<EVifLocation, 3> LocationsOf(EVifLocation group) {
  std::array<EVifLocation, 3> locations{};
  std::size_t depth = 0;
  for (EVifLocation at = group; at != eVifLocUnset; at = GetVifLocParent(at)) locations[depth++] = at;
  std::reverse(locations.begin(), locations.begin() + static_cast<std::ptrdiff_t>(depth));
  return locations;
}

NameKind KindOf(FieldStanding standing) noexcept {
  switch (standing) {
    case FieldStanding::Defined: break;
    case FieldStanding::Newer: return NameKind::NewerField;
    case FieldStanding::Older: return NameKind::OlderField;
    case FieldStanding::XmlStructure: return NameKind::XmlStructure;
    case FieldStanding::OptionalContent: return NameKind::OptionalContent;
  }
  return NameKind::Canonical;
}

NameKind KindOf(const FieldInfo& field, const FieldSpelling* row, SpellingFit fit) noexcept {
  const NameKind kind = row != nullptr ? row->kind : KindOf(field.standing);
  if (fit == SpellingFit::Exact) return kind;
  // Of an older name or a mistake, the letter case is the least important thing to say.
  const bool tellsMore = row != nullptr && (kind == NameKind::OlderField || kind == NameKind::Mistake);
  return tellsMore ? kind : NameKind::LetterCase;
}

}  // namespace

CFieldIndex::CFieldIndex() {
  AddFields();
  AddGroups();
  AddEntries();
  for (const auto values :
       {PortValues(), DataValues(), PowerValues(), IdentityValues(), OtherValues(), BooleanValues()}) {
    Attach(values, &FieldInfo::values);
  }
  Attach(Units(), &FieldInfo::units);
  Attach(Spellings(), &FieldInfo::spellings);
}

void CFieldIndex::AddFields() {
  const std::array<FieldTable, 16> tables = FieldTables();
  // Reserved in full, because fields point into the names, and entries at the fields.
  std::size_t count = 0;
  std::size_t size = 0;
  for (const auto& [rows, standing] : tables) {
    count += rows.size();
    for (const FieldRow& row : rows) size += row.spelling.size();
  }
  m_fields.reserve(count);
  m_names.reserve(size);
  for (const auto& [rows, standing] : tables) AddTable(rows, standing);
}

void CFieldIndex::AddTable(std::span<const FieldRow> rows, FieldStanding standing) {
  for (const FieldRow& row : rows) {
    FieldInfo& field = m_fields.emplace_back();
    field.spelling = field.name = row.spelling;
    if (row.spelling.find(kIndexMark) != std::string_view::npos) {
      const std::size_t begin = m_names.size();
      m_names += WithDigits(row.spelling, {});
      field.name = std::string_view(m_names).substr(begin);
    }
    field.locations = LocationsOf(row.group);
    field.standing = standing;
    field.type = row.type;
    field.declares = row.declares;
    field.note = row.note;
    field.confidence = row.confidence;
    field.sources = row.sources;
    field.files = row.files;
    field.seen = row.seen;
    field.listedIn3_12 = row.listed == Listed::In3_12 || row.listed == Listed::InBoth;
    field.listedIn3_18 = row.listed == Listed::In3_18 || row.listed == Listed::InBoth;
    field.goneBy = row.goneBy;
  }
}

void CFieldIndex::AddGroups() {
  std::vector<EVifLocation> order;
  for (const FieldInfo& field : m_fields) {
    if (std::find(order.begin(), order.end(), field.Group()) == order.end()) order.push_back(field.Group());
  }
  m_fieldsByGroup.reserve(m_fields.size());
  for (const EVifLocation location : order) {
    const std::size_t begin = m_fieldsByGroup.size();
    for (const FieldInfo& field : m_fields) {
      if (field.Group() == location) m_fieldsByGroup.push_back(&field);
    }
    m_groups.push_back({location, std::span(m_fieldsByGroup).subspan(begin)});
  }
}

void CFieldIndex::AddEntries() {
  m_slots.resize(std::bit_ceil(2 * (m_fields.size() + Spellings().size() + 1)));
  for (const FieldInfo& field : m_fields) AddEntry(field, nullptr);
  for (const FieldSpelling& row : Spellings()) {
    if (const FieldInfo* const field = FieldOfRow(row.field)) AddEntry(*field, &row);
  }
}

void CFieldIndex::AddEntry(const FieldInfo& field, const FieldSpelling* row) {
  Entry entry{0, &field, row};
  entry.hash = HashOfName(entry.Spelling());
  std::size_t slot = entry.hash & (m_slots.size() - 1);
  while (m_slots[slot].field != nullptr) slot = (slot + 1) & (m_slots.size() - 1);
  m_slots[slot] = entry;
}

/// Hands each field its rows, which stand together.
template <typename Row>
void CFieldIndex::Attach(std::span<const Row> rows, std::span<const Row> FieldInfo::*member) {
  while (!rows.empty()) {
    const std::string_view name = rows.front().field;
    const auto end = std::find_if(rows.begin(), rows.end(), [name](const Row& row) { return row.field != name; });
    const auto count = static_cast<std::size_t>(end - rows.begin());
    if (FieldInfo* const field = FieldOfRow(name)) field->*member = rows.first(count);
    rows = rows.subspan(count);
  }
}

/// The field of a row; null for a row without one, which is left out, and which the tests report.
FieldInfo* CFieldIndex::FieldOfRow(std::string_view canonicalName) {
  const FieldInfo* const field = FindWritten(canonicalName).field;
  return field != nullptr ? &m_fields[static_cast<std::size_t>(field - m_fields.data())] : nullptr;
}

NameMatch CFieldIndex::Find(std::string_view name) const noexcept {
  const NameMatch match = FindWritten(name);
  return match.field == nullptr && name.starts_with('$') ? FindWithDollarSign(name) : match;
}

NameMatch CFieldIndex::FindWritten(std::string_view name) const noexcept {
  NameMatch best;
  SpellingFit bestFit = SpellingFit::No;
  const std::uint32_t hash = HashOfName(name);
  for (std::size_t slot = hash & (m_slots.size() - 1); m_slots[slot].field != nullptr;
       slot = (slot + 1) & (m_slots.size() - 1)) {
    const Entry& entry = m_slots[slot];
    NameMatch match{NameKind::Unknown, entry.field, nullptr, entry.row, {}};
    const SpellingFit fit =
        entry.hash == hash ? FitSpelling(name, entry.Spelling(), match.indexDigits) : SpellingFit::No;
    if (fit == SpellingFit::No) continue;
    // The fields' own names come first, because they were added first.
    if (fit > bestFit) {
      match.kind = KindOf(*entry.field, entry.row, fit);
      best = match;
      bestFit = fit;
    } else if (fit == bestFit && best.spelling != nullptr && best.spelling->spelling == entry.Spelling()) {
      best.otherField = entry.field;
    }
  }
  return best;
}

NameMatch CFieldIndex::FindWithDollarSign(std::string_view name) const noexcept {
  NameMatch match = FindWritten(name.substr(1));
  if (match.kind == NameKind::Canonical) match.kind = NameKind::TextForm;
  const bool isOwnName = match.field != nullptr && match.spelling == nullptr;
  if (!isOwnName || match.field->type != FieldType::Text || match.field->standing != FieldStanding::Defined) return {};
  return match;
}

const CFieldIndex& FieldIndex() {
  static const CFieldIndex index;
  return index;
}

namespace {

// Builds the index while the library is loaded, so that no lookup has to. Where there is no memory for that, loading
// fails.
// NOLINTNEXTLINE(cert-err58-cpp)
[[maybe_unused]] const CFieldIndex& builtAtLoad = FieldIndex();

}  // namespace

}  // namespace vifanalysis
