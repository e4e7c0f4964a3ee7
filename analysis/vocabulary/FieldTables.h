// The facts about each field, as plain data. Together the tables have the order of the field definition table, followed
// by the fields that are not in it.
#pragma once

#include <analysis/Vocabulary.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace vifanalysis {

/// Which public lists of fields have the field: that of edition 3.12, that of 3.18.
enum class Listed : std::uint8_t { InNone, In3_12, In3_18, InBoth };

/// One field. `FieldInfo` explains the members.
struct FieldRow {
  std::string_view spelling;
  EVifLocation group;
  FieldType type;
  EditionRange seen;
  std::uint32_t files;
  Listed listed;
  Confidence confidence;
  std::string_view sources;
  std::string_view declares;
  // Rows leave it out, which g++ warns about where there is no initializer.
  // NOLINTNEXTLINE(readability-redundant-member-init)
  std::string_view note{};
  Edition goneBy{};
};

std::span<const FieldRow> HeaderFields();
std::span<const FieldRow> PortFields();
std::span<const FieldRow> TypeCFields();
std::span<const FieldRow> Usb4Fields();
std::span<const FieldRow> DataFields();
std::span<const FieldRow> PowerFields();
std::span<const FieldRow> IdentityFields();
std::span<const FieldRow> CableFields();
std::span<const FieldRow> RouterFields();
std::span<const FieldRow> PdoFields();
std::span<const FieldRow> SvidFields();
std::span<const FieldRow> RetiredFields();
std::span<const FieldRow> NewerFields();
std::span<const FieldRow> OlderFields();
std::span<const FieldRow> XmlStructureFields();
std::span<const FieldRow> OptionalContentFields();

}  // namespace vifanalysis
