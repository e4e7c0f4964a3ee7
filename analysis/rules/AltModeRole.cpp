#include "rules/FieldWords.h"
#include "rules/MissingFields.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

constexpr std::string_view kAdapter = "Type_C_Is_Alt_Mode_Adapter";
constexpr std::string_view kController = "Type_C_Is_Alt_Mode_Controller";

using Names = std::vector<std::string_view>;

/// Whether modal-svids has found that the field is wrong.
bool IsFound(const CComponentView& component, std::string_view name, const CReporter& reporter) {
  const FoundField* field = component.Find(name);
  return field != nullptr && reporter.HasFound("modal-svids", *field);
}

/// Reports that a role in alternate modes needs what other fields deny. Where several do, or one is missing, the role
/// is more likely to be wrong.
void Report(const CComponentView& component, std::string_view role, const Names& denied, CReporter& reporter) {
  if (denied.empty()) return;
  std::string message = FieldIs(component, role) + ", but " + FieldIs(component, denied.front());
  if (denied.size() > 1) message += " and " + FieldIs(component, denied.back());
  const FoundField* only = denied.size() == 1 ? component.Find(denied.front()) : nullptr;
  reporter.Add(only != nullptr ? *only : *component.Find(role), message);
}

void CheckAdapter(const CComponentView& component, CReporter& reporter) {
  Names denied;
  for (const std::string_view needed : {"Modal_Operation_Supported_SOP", "Responds_To_Discov_SOP_UFP"}) {
    const bool isDenied = component.IsNo(needed) || IsMissing(component, needed);
    if (isDenied && !IsFound(component, needed, reporter)) denied.push_back(needed);
  }
  Report(component, kAdapter, denied, reporter);
}

}  // namespace

void CheckAltModeRole(const CComponentView& component, CReporter& reporter) {
  if (component.IsYes(kAdapter)) CheckAdapter(component, reporter);
  if (component.IsYes(kController) && component.IsNo("Attempts_Discov_SOP")) {
    Report(component, kController, {"Attempts_Discov_SOP"}, reporter);
  }
}

}  // namespace vifanalysis
