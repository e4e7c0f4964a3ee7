#include <analysis/FieldMeaning.h>
#include <analysis/FieldText.h>

#include <optional>

namespace vifanalysis {

namespace {

/// The field that the name means, if it has the same numbers as the field of that name; else null.
const FieldInfo* FieldWithSameNumbers(std::string_view name) {
  const NameMatch match = FindField(name);
  switch (match.kind) {
    case NameKind::Canonical:
    case NameKind::LetterCase:
    case NameKind::OtherSpelling:
    case NameKind::NewerField:
    case NameKind::Mistake:
    case NameKind::OptionalContent: return match.field;
    case NameKind::OlderField: return match.spelling == nullptr ? match.field : nullptr;
    case NameKind::Unknown:
    case NameKind::TextForm:
    case NameKind::XmlStructure: break;
  }
  return nullptr;
}

}  // namespace

FieldMeaning MeaningOf(const CVIFField& field, const PdoContext& context) {
  const FieldInfo* info = FieldWithSameNumbers(field.Name());
  if (info == nullptr || !HasNumber(field)) return {};
  const std::uint64_t number = field.GetULongNumericValue();
  if (const FieldValue* value = FindValue(*info, number)) {
    return {std::string(ValueText(*info, number, context.edition)), value->confidence == Confidence::Low};
  }
  const FieldUnit* unit = FindUnit(*info, context);
  if (unit == nullptr || UnitSymbol(unit->unit).empty()) return {};
  const std::optional<Quantity> quantity = QuantityOf(*info, number, context);
  if (!quantity) return {};
  return {QuantityText(*quantity), unit->confidence == Confidence::Low};
}

}  // namespace vifanalysis
