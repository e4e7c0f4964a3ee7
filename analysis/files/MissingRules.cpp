#include <analysis/FieldText.h>
#include "FormRules.h"
#include "KnownNames.h"
#include "Sentence.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace vifanalysis {

namespace {

/// The known names of elements that have a text and no value, or that may have either.
constexpr std::string_view kTextNames[] = {"VIF_Specification",
                                           "VIF_Producer",
                                           "Description",
                                           "Vendor_Name",
                                           "Model_Part_Number",
                                           "Product_Revision",
                                           "TID",
                                           "Port_Label",
                                           "Port_Source_Power_Gang",
                                           "Product_VID",
                                           "Type_C_To_Plug_Receptacle",
                                           "Retimer_Type",
                                           "Src_PDO_PDP_Rating",
                                           "Active_Cable_USB2_Hub_Hops_Supported",
                                           "Active_Cable_Optically_Isololated",
                                           "Active_Cable_Operating_Temp_Support",
                                           "Active_Cable_Shutdown_Temp_Support",
                                           "OptionalContent"};

bool HasText(std::string_view name) {
  return std::find(std::begin(kTextNames), std::end(kTextNames), name) != std::end(kTextNames);
}

}  // namespace

void FindMissingValues(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const CVIFField& field = found.field;
    if (field.IsNumeric() || HasText(field.Name()) || FindDefined(field.Name()) == nullptr) continue;
    findings.push_back(
        About(found, code::kNoValue, NameAndPlace(field) + " has no number: the attribute 'value' is missing"));
  }
}

void FindNothing(const FoundFields& fields, Findings& findings) {
  const bool hasError = std::any_of(findings.begin(), findings.end(),
                                    [](const Finding& finding) { return finding.severity == Severity::Error; });
  if (fields.empty() && !hasError)
    findings.push_back(FindingAt(code::kNothingRead, 0, 0, {}, "the file yields no field"));
}

}  // namespace vifanalysis
