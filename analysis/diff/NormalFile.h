// A file's fields under one spelling, so that fields that mean the same are equal.
#pragma once

#include "files/FoundField.h"
#include "rules/VifView.h"

#include <VIFField.h>
#include <analysis/Edition.h>

#include <cstddef>
#include <span>

namespace vifanalysis {

/// The fields as groups, with canonical names, numbers in decimal and texts as values, each where the XML form has it.
/// A description that only repeats the value is empty. It borrows the list.
class CNormalFile {
 public:
  explicit CNormalFile(std::span<const CVIFField> declared);

  const CVifView& View() const { return m_view; }

  /// The edition of the format; unknown when the file names none.
  Edition GetEdition() const { return m_view.GetEdition().value_or(Edition{}); }

  /// Where the field is in the list.
  std::size_t PositionOf(const FoundField& field) const { return static_cast<std::size_t>(&field - m_fields.data()); }

  /// The field as it was declared.
  const CVIFField& Declared(const FoundField& field) const { return m_declared[PositionOf(field)]; }

 private:
  std::span<const CVIFField> m_declared;
  FoundFields m_fields;  // in the same order
  CVifView m_view;
};

}  // namespace vifanalysis
