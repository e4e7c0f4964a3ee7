#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kPowered = "Port_Battery_Powered";
constexpr std::string_view kFixed = "Num_Fixed_Batteries";
constexpr std::string_view kSlots = "Num_Swappable_Battery_Slots";

void CheckNumber(const CComponentView& component, std::string_view name, CReporter& reporter) {
  constexpr std::uint64_t most = 4;
  const std::uint64_t number = component.Number(name).value_or(0);
  if (number > most) {
    reporter.Add(*component.Find(name), FieldIs(component, name) + ", but there can be at most 4");
  } else if (number != 0 && component.IsNo(kPowered)) {
    reporter.Add(*component.Find(name), FieldIs(component, kPowered) + ", but " + FieldIs(component, name));
  }
}

}  // namespace

void CheckBatteryCount(const CComponentView& component, CReporter& reporter) {
  CheckNumber(component, kFixed, reporter);
  CheckNumber(component, kSlots, reporter);
  if (component.IsYes(kPowered) && component.Number(kFixed) == 0U && component.Number(kSlots) == 0U) {
    reporter.Add(*component.Find(kPowered), FieldIs(component, kPowered) + ", but " + FieldIs(component, kFixed) +
                                                " and " + FieldIs(component, kSlots));
  }
}

}  // namespace vifanalysis
