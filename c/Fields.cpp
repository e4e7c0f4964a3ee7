// The fields of a file.
#include "File.h"
#include "Guard.h"
#include "Indexes.h"

size_t vif_file_field_count(const vif_file* file) {
  return vifc::IsUsable(file) ? file->content.file.Fields().size() : 0;
}

vif_status vif_file_field(const vif_file* file, size_t position, vif_field* field) {
  if (const vif_status status = vifc::StatusOf(file); status != VIF_OK) return status;
  const vifc::FileContent& content = file->content;
  if (position >= content.file.Fields().size()) return VIF_ERROR_ARGUMENT;
  const CVIFField& held = content.file.Fields()[position];
  vif_field filled = {};
  filled.name = held.Name();
  filled.value = held.Value();
  filled.description = held.Description();
  if (!content.repaired.empty()) {
    if (const auto found = content.repaired.find(position); found != content.repaired.end()) {
      filled.name = found->second.name.c_str();
      filled.value = found->second.value.c_str();
      filled.description = found->second.description.c_str();
    }
  }
  filled.is_numeric = held.IsNumeric() ? 1 : 0;
  filled.number = held.IsNumeric() ? held.GetULongNumericValue() : VIF_NO_NUMBER;
  filled.index_count = vifc::CopySlots(held.Indexes(), filled.indexes);
  return vifc::HandOut(filled, field);
}
