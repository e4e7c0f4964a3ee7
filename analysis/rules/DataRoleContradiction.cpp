#include "rules/RuleFunctions.h"

#include <string>

namespace vifanalysis {

namespace {

/// A field that follows from another one.
struct Consequence {
  std::string_view field;
  std::string_view cause;
  bool isEqual;  ///< whether the two must be equal; otherwise the field may be NO where the other one is YES
};

constexpr Consequence kConsequences[] = {
    {"Data_Capable_As_USB_Host_SOP", "Type_C_Can_Act_As_Host", true},
    {"Data_Capable_As_USB_Device_SOP", "Type_C_Can_Act_As_Device", true},
    {"Host_Supports_USB_Data", "Type_C_Can_Act_As_Host", false},
    {"Device_Supports_USB_Data", "Type_C_Can_Act_As_Device", false},
    {"Is_DFP_On_Hub", "Type_C_Port_On_Hub", false},
};

}  // namespace

void CheckDataRoleContradiction(const CComponentView& component, CReporter& reporter) {
  for (const Consequence& row : kConsequences) {
    const bool isTooMuch = component.IsYes(row.field) && component.IsNo(row.cause);
    const bool isTooLittle = row.isEqual && component.IsNo(row.field) && component.IsYes(row.cause);
    if (!isTooMuch && !isTooLittle) continue;
    reporter.Add(*component.Find(row.field), std::string(row.field)
                                                 .append(isTooMuch ? " is YES, but " : " is NO, but ")
                                                 .append(row.cause)
                                                 .append(isTooMuch ? " is NO" : " is YES"));
  }
}

}  // namespace vifanalysis
