// The tables of the vocabulary, joined and indexed by name.
#pragma once

#include "FieldTables.h"

#include <analysis/Vocabulary.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

class CFieldIndex {
 public:
  CFieldIndex();

  std::span<const FieldInfo> Fields() const noexcept { return m_fields; }
  std::span<const FieldGroup> Groups() const noexcept { return m_groups; }
  NameMatch Find(std::string_view name) const noexcept;

 private:
  /// One name of a field: its own, or that of the row.
  struct Entry {
    std::uint32_t hash = 0;
    const FieldInfo* field = nullptr;  // null in a slot that is not in use
    const FieldSpelling* row = nullptr;

    std::string_view Spelling() const noexcept { return row != nullptr ? row->spelling : field->spelling; }
  };

  void AddFields();
  void AddTable(std::span<const FieldRow> rows, FieldStanding standing);
  void AddGroups();
  void AddEntries();
  void AddEntry(const FieldInfo& field, const FieldSpelling* row);
  template <typename Row>
  void Attach(std::span<const Row> rows, std::span<const Row> FieldInfo::*member);
  FieldInfo* FieldOfRow(std::string_view canonicalName);
  NameMatch FindWritten(std::string_view name) const noexcept;
  NameMatch FindWithDollarSign(std::string_view name) const noexcept;

  std::string m_names;  // the canonical names of the fields with indexes, one after the other
  std::vector<FieldInfo> m_fields;
  std::vector<const FieldInfo*> m_fieldsByGroup;
  std::vector<FieldGroup> m_groups;
  std::vector<Entry> m_slots;  // open addressing; a power of two, at most half full
};

/// The one index, built while the library is loaded.
const CFieldIndex& FieldIndex();

}  // namespace vifanalysis
