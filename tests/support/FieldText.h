// Fields as short texts that read well in expectations.
#pragma once

#include "VIFField.h"

#include <string>
#include <tuple>
#include <vector>

namespace testsupport {

/// A field as `name=value ; description @6.1 @7.2`: the value in double quotes unless the field is numeric, the
/// description only if there is one, and each slot in use with its location and number, `-` if the group has none.
inline std::string FieldText(const CVIFField& field) {
  std::string text = field.MakeOutputString().get();
  if (*field.Description() != '\0') text += std::string(" ; ") + field.Description();
  for (const auto& [location, number] : field.Indexes()) {
    if (location == eVifLocUnset) continue;
    text += " @" + std::to_string(static_cast<int>(location)) + ".";
    text += number == CVIFField::INDEX_NOT_SPECIFIED ? "-" : std::to_string(number);
  }
  return text;
}

inline std::vector<std::string> FieldTexts(const std::vector<CVIFField>& fields) {
  std::vector<std::string> texts;
  texts.reserve(fields.size());
  for (const CVIFField& field : fields) texts.push_back(FieldText(field));
  return texts;
}

}  // namespace testsupport
