#include "VifGroups.h"

#include <string_view>

namespace suite {

namespace {

NumberFound None(const char* name, const char* why, bool isMissing = false) {
  return {std::nullopt, isMissing, std::string(name) + ' ' + why};
}

}  // namespace

Groups SplitByGroup(const Fields& fields, EVifLocation location) {
  Groups groups;
  for (const CVIFField& field : fields) {
    if (field.HasIndex(location)) groups[field.Index(location)].push_back(field);
  }
  return groups;
}

Groups Components(const CVendorInfoFile& vif) {
  const VifFieldList fields = vif.GetFields();  // in a variable: it owns what is split
  return SplitByGroup(*fields, eVifLocComponent);
}

Groups Routers(const CVendorInfoFile& vif) {
  const VifFieldList fields = vif.GetRouter(CVIFField::INDEX_NOT_SPECIFIED);
  return SplitByGroup(*fields, eVifLocRouter);
}

std::string GroupText(const char* kind, VifIndexNumber number) {
  return std::string(kind) +
         (number == CVIFField::INDEX_NOT_SPECIFIED ? " without a number" : ' ' + std::to_string(number));
}

NumberFound FindNumber(const Fields& fields, const char* name) {
  const CVIFField* found = nullptr;
  for (const CVIFField& field : fields) {
    if (std::string_view(field.Name()) != name) continue;
    if (found != nullptr) return None(name, "is declared more than once");
    found = &field;
  }
  if (found == nullptr) return None(name, "is missing", true);
  // A number of more than 64 bits, or none at all, is "unset".
  if (!found->IsNumeric() || found->GetULongNumericValue() == CVIFField::VIF_VALUE_UNSET_64) {
    return None(name, "is no number");
  }
  return {found->GetULongNumericValue(), false, {}};
}

}  // namespace suite
