#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string_view>

namespace vifanalysis {

namespace {

/// A product type in one data role, and the fields that say whether the port has that role.
struct TypeField {
  std::string_view name;
  std::string_view carriesData;
  std::string_view responds;
};

constexpr TypeField kUfp = {"Product_Type_UFP_SOP", "Type_C_Can_Act_As_Device", "Responds_To_Discov_SOP_UFP"};
constexpr TypeField kDfp = {"Product_Type_DFP_SOP", "Type_C_Can_Act_As_Host", "Responds_To_Discov_SOP_DFP"};

// In either role, a hub is type 1, and a peripheral or host type 2.
constexpr bool TakesData(std::uint64_t type) { return type == 1 || type == 2; }

constexpr std::uint64_t kReservedUfp = 4;
constexpr std::uint64_t kPowerBrick = 3;

/// A consumer, or a consumer that can also provide, is not a brick.
bool IsConsumer(const CComponentView& component, const CReporter& reporter) {
  const std::optional<PortRole> role = SettledRole(component, reporter);
  return role == PortRole::ConsumerOnly || role == PortRole::ConsumerProvider;
}

/// Whether the port does not respond in the role, unless alt-mode-role has found just that.
bool IsSilent(const CComponentView& component, std::string_view responds, const CReporter& reporter) {
  if (!component.IsNo(responds)) return false;
  const FoundField* adapter = component.Find("Type_C_Is_Alt_Mode_Adapter");
  const bool isAdaptersFault =
      responds == kUfp.responds && adapter != nullptr && reporter.HasFound("alt-mode-role", *adapter);
  return !isAdaptersFault && !reporter.HasFound("alt-mode-role", *component.Find(responds));
}

/// Whether the port does not have the role, unless data-role-contradiction doubts just that.
bool LacksRole(const CComponentView& component, std::string_view carriesData, const CReporter& reporter) {
  return component.IsNo(carriesData) && !reporter.HasFound("data-role-contradiction", *component.Find(carriesData));
}

/// The field that the type contradicts first; empty when there is none.
std::string_view Contradicted(const CComponentView& component, const TypeField& field, std::uint64_t type,
                              const CReporter& reporter) {
  if (TakesData(type) && LacksRole(component, field.carriesData, reporter)) return field.carriesData;
  if (&field == &kDfp && type == kPowerBrick && IsConsumer(component, reporter)) return "PD_Port_Type";
  return IsSilent(component, field.responds, reporter) ? field.responds : "";
}

void CheckType(const CComponentView& component, const TypeField& field, CReporter& reporter) {
  const std::uint64_t type = component.Number(field.name).value_or(0);
  if (type == 0) return;
  const FoundField& blamed = *component.Find(field.name);
  const std::string says = FieldIs(component, field.name);
  if (&field == &kUfp && type == kReservedUfp) {
    reporter.Add(blamed, says + ", which stands for no type of product");
    return;
  }
  const std::string_view contradicted = Contradicted(component, field, type, reporter);
  if (!contradicted.empty()) reporter.Add(blamed, says + ", but " + FieldIs(component, contradicted));
}

}  // namespace

void CheckProductTypeAgainstRole(const CComponentView& component, CReporter& reporter) {
  CheckType(component, kUfp, reporter);
  CheckType(component, kDfp, reporter);
}

}  // namespace vifanalysis
