#include "files/Sentence.h"
#include "rules/RuleFunctions.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

/// A field that follows from another one.
struct Consequence {
  std::string_view field;
  bool isEqual;  ///< whether the two must be equal; otherwise the field may be NO where the other one is YES
};

/// A field and what follows from it. The name of the second consequence may be empty.
struct Cause {
  std::string_view field;
  std::array<Consequence, 2> consequences;
};

constexpr Cause kCauses[] = {
    {"Type_C_Can_Act_As_Host", {{{"Data_Capable_As_USB_Host_SOP", true}, {"Host_Supports_USB_Data", false}}}},
    {"Type_C_Can_Act_As_Device", {{{"Data_Capable_As_USB_Device_SOP", true}, {"Device_Supports_USB_Data", false}}}},
    {"Type_C_Port_On_Hub", {{{"Is_DFP_On_Hub", false}}}},
};

bool Contradicts(const CComponentView& component, const Consequence& consequence, std::string_view cause) {
  if (component.IsYes(consequence.field)) return component.IsNo(cause);
  return consequence.isEqual && component.IsNo(consequence.field) && component.IsYes(cause);
}

/// Where several fields agree, the one that they contradict is more likely to be wrong.
void CheckCause(const CComponentView& component, const Cause& cause, CReporter& reporter) {
  std::vector<std::string_view> names;
  for (const Consequence& consequence : cause.consequences) {
    if (Contradicts(component, consequence, cause.field)) names.push_back(consequence.field);
  }
  if (names.empty()) return;
  const FoundField& blamed = *component.Find(names.size() == 1 ? names.front() : cause.field);
  const bool isYes = component.IsYes(cause.field);
  reporter.Add(blamed, Listed(names) + (names.size() == 1 ? " is " : " are ") + (isYes ? "NO" : "YES") + ", but " +
                           std::string(cause.field) + (isYes ? " is YES" : " is NO"));
}

}  // namespace

void CheckDataRoleContradiction(const CComponentView& component, CReporter& reporter) {
  for (const Cause& cause : kCauses) CheckCause(component, cause, reporter);
}

}  // namespace vifanalysis
