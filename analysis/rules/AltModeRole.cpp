#include "rules/FieldWords.h"
#include "rules/MissingFields.h"
#include "rules/RuleFunctions.h"

#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kAdapter = "Type_C_Is_Alt_Mode_Adapter";
constexpr std::string_view kController = "Type_C_Is_Alt_Mode_Controller";

/// Reports that a role in alternate modes needs what another field denies.
void Report(const CComponentView& component, std::string_view role, std::string_view needed, CReporter& reporter) {
  const FoundField* denied = component.Find(needed);
  if (denied != nullptr && reporter.HasFound("modal-svids", *denied)) return;
  reporter.Add(denied != nullptr ? *denied : *component.Find(role),
               FieldIs(component, role) + ", but " + FieldIs(component, needed));
}

}  // namespace

void CheckAltModeRole(const CComponentView& component, CReporter& reporter) {
  if (component.IsYes(kAdapter)) {
    for (const std::string_view needed : {"Modal_Operation_Supported_SOP", "Responds_To_Discov_SOP_UFP"}) {
      if (component.IsNo(needed) || IsMissing(component, needed)) Report(component, kAdapter, needed, reporter);
    }
  }
  if (component.IsYes(kController) && component.IsNo("Attempts_Discov_SOP")) {
    Report(component, kController, "Attempts_Discov_SOP", reporter);
  }
}

}  // namespace vifanalysis
