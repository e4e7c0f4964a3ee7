// What the numbers of fields amount to.
#include "File.h"
#include "Guard.h"
#include "Text.h"
#include "Utf8.h"

#include <VIFPositions.h>
#include <analysis/Edition.h>
#include <analysis/FieldMeaning.h>
#include <analysis/PowerProfile.h>
#include <analysis/Vocabulary.h>

#include <optional>
#include <utility>
#include <vector>

namespace vifc {

namespace {

using vifanalysis::NameMatch;
using vifanalysis::PdoContext;
using vifanalysis::Quantity;

const CVIFField& FieldAt(const vif_file* file, std::size_t position) {
  const std::vector<CVIFField>& fields = Usable(file).content.file.Fields();
  Require(position < fields.size(), "there is no field at that position");
  return fields[position];
}

/// What the unit of a field's number depends on.
PdoContext ContextOf(const vif_file& file, const CVIFField& field) {
  const CVendorInfoFile& vif = file.content.file;
  const vifanalysis::Edition edition = vifanalysis::EditionNamedBy(vif.Fields()).value_or(vifanalysis::Edition{});
  if (!field.HasIndex(eVifLocSrcPdo) && !field.HasIndex(eVifLocSnkPdo)) return {{}, {}, {}, edition};
  std::vector<const CVIFField*> pdo;
  for (const std::size_t position : FindVifFields(vif, nullptr, field.Indexes())) {
    pdo.push_back(&vif.Fields()[position]);
  }
  return vifanalysis::DescribePdo(pdo, edition).context;
}

std::optional<Quantity> QuantityOf(const vif_file& file, const CVIFField& field) {
  if (!field.IsNumeric() || field.GetULongNumericValue() == CVIFField::VIF_VALUE_UNSET_64) return std::nullopt;
  const NameMatch match = vifanalysis::FindField(field.Name());
  if (match.field == nullptr) return std::nullopt;
  return vifanalysis::QuantityOf(*match.field, field.GetULongNumericValue(), ContextOf(file, field));
}

/// The symbol, which is a literal and so ends with a NUL.
const char* SymbolOf(vifanalysis::Unit unit) {
  const std::string_view symbol = vifanalysis::UnitSymbol(unit);
  return symbol.empty() ? "" : symbol.data();
}

}  // namespace

}  // namespace vifc

vif_status vif_file_quantity(const vif_file* file, size_t position, vif_quantity* quantity, vif_error** error) {
  return vifc::Guarded(error, [&] {
    const CVIFField& field = vifc::FieldAt(file, position);
    const std::optional<vifc::Quantity> found = vifc::QuantityOf(*file, field);
    if (!found) throw vifc::CFailure(VIF_ERROR_NOT_FOUND, std::string("no amount is known of ") + field.Name());
    const vif_quantity filled = {0, found->amount, vifc::SymbolOf(found->unit)};
    vifc::Require(vifc::HandOut(filled, quantity) == VIF_OK, "the quantity is NULL, or its size is too small");
  });
}

vif_status vif_file_meaning(const vif_file* file, size_t position, vif_text** meaning, int32_t* uncertain,
                            vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(meaning != nullptr, "there is nowhere to put the meaning");
    *meaning = nullptr;
    const CVIFField& field = vifc::FieldAt(file, position);
    vifanalysis::FieldMeaning found = vifanalysis::MeaningOf(field, vifc::ContextOf(*file, field));
    vifc::MakeUtf8(found.text);
    *meaning = new vif_text(std::move(found.text));
    if (uncertain != nullptr) *uncertain = found.isUncertain ? 1 : 0;
  });
}
