#include "files/Sentence.h"
#include "power/Units.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

constexpr std::string_view kRating = "PD_Power_As_Source";
constexpr std::string_view kTotal = "Product_Total_Source_Power_mW";
constexpr std::string_view kType = "Port_Source_Power_Type";
constexpr std::string_view kGang = "Port_Source_Power_Gang";
constexpr std::string_view kGangPower = "Port_Source_Power_Gang_Max_Power";
constexpr std::uint64_t kShared = 1;

/// Components that should declare one power, and the greatest that they do. It is the one that others are compared
/// with, so that a component with too little is not found twice.
struct Common {
  std::vector<const CComponentView*> components;
  std::uint64_t greatest = 0;
};

void Include(Common& common, const CComponentView& component, std::string_view field) {
  const std::optional<std::uint64_t> power = component.Number(field);
  if (!power) return;
  common.components.push_back(&component);
  common.greatest = std::max(common.greatest, *power);
}

Common FindTotal(const CVifView& file) {
  Common total;
  for (const CComponentView& component : file.Components()) Include(total, component, kTotal);
  return total;
}

/// The gangs of ports that share power. A component whose gang has no name is in one of its own.
std::vector<Common> FindGangs(const CVifView& file) {
  std::vector<Common> gangs;
  std::map<std::string_view, std::size_t> numbers;
  for (const CComponentView& component : file.Components()) {
    if (!component.Has(kGangPower) || component.IsNo(kType)) continue;
    const std::string_view name = component.Text(kGang);
    const std::size_t number = name.empty() ? gangs.size() : numbers.try_emplace(name, gangs.size()).first->second;
    if (number == gangs.size()) gangs.emplace_back();
    Include(gangs[number], component, kGangPower);
  }
  return gangs;
}

std::string NameAndPower(std::string_view name, std::uint64_t power) {
  return std::string(name).append(" is ").append(Watts(power));
}

void CheckAgreement(const Common& common, std::string_view field, const std::string& where, CReporter& reporter) {
  const auto powerOf = [&](const CComponentView* component) { return *component->Number(field); };
  const auto power = [&](const CComponentView* component) {
    return Watts(powerOf(component)) + " in Component " + std::to_string(component->Index());
  };
  for (const CComponentView* component : common.components) {
    const CComponentView* first = common.components.front();
    if (powerOf(component) == powerOf(first)) continue;
    reporter.Add(*component->Find(field), std::string(field)
                                              .append(" differs within ")
                                              .append(where)
                                              .append(": ")
                                              .append(power(first))
                                              .append(", ")
                                              .append(power(component)));
    return;
  }
}

/// Whether rating-above-pdos has found that the rating is too great.
bool IsTooGreat(const CComponentView& component, const CReporter& reporter) {
  return reporter.HasFound("rating-above-pdos", *component.Find(kRating));
}

void CheckRatings(const Common& total, CReporter& reporter) {
  for (const CComponentView* component : total.components) {
    const std::optional<std::uint64_t> rating = component->Number(kRating);
    if (!rating || *rating <= total.greatest || IsTooGreat(*component, reporter)) continue;
    reporter.Add(*component->Find(kRating), NameAndPower(kRating, *rating)
                                                .append(", but the whole product has ")
                                                .append(Watts(total.greatest))
                                                .append(" (Product_Total_Source_Power_mW)"));
  }
}

/// A text of a text file is in no component.
bool HasText(const CComponentView& component, std::string_view name) {
  return component.Has(name) || component.File().FindHeader(name) != nullptr;
}

void CheckShared(const CComponentView& component, CReporter& reporter) {
  if (component.Number(kType) != kShared) return;
  const auto report = [&](std::string_view missing) {
    reporter.Add(*component.Find(kType),
                 std::string("Port_Source_Power_Type is 1 (Shared), but ").append(missing).append(" is missing"));
  };
  if (!HasText(component, kGang)) report(kGang);
  if (!component.Has(kGangPower)) report(kGangPower);
}

void CheckGangPorts(const Common& gang, CReporter& reporter) {
  for (const CComponentView* component : gang.components) {
    const std::optional<std::uint64_t> rating = component->Number(kRating);
    if (!rating || *rating <= gang.greatest || IsTooGreat(*component, reporter)) continue;
    // More than the product has is found already.
    if (reporter.HasFound("product-power", *component->Find(kRating))) continue;
    reporter.Add(*component->Find(kGangPower), NameAndPower(kGangPower, gang.greatest)
                                                   .append(", but this port of the gang alone has ")
                                                   .append(Watts(*rating))
                                                   .append(" (PD_Power_As_Source)"));
  }
}

void CheckGang(const Common& gang, const Common& total, CReporter& reporter) {
  if (gang.components.empty()) return;
  const CComponentView& first = *gang.components.front();
  CheckAgreement(gang, kGangPower, "the gang " + Quoted(first.Text(kGang)), reporter);
  CheckGangPorts(gang, reporter);
  if (total.components.empty() || gang.greatest <= total.greatest) return;
  reporter.Add(*first.Find(kGangPower), NameAndPower(kGangPower, gang.greatest)
                                            .append(", but the whole product has ")
                                            .append(Watts(total.greatest))
                                            .append(" (Product_Total_Source_Power_mW)"));
}

}  // namespace

void CheckProductPower(const CVifView& file, CReporter& reporter) {
  const Common total = FindTotal(file);
  CheckAgreement(total, kTotal, "the product", reporter);
  CheckRatings(total, reporter);
  for (const CComponentView& component : file.Components()) CheckShared(component, reporter);
  for (const Common& gang : FindGangs(file)) CheckGang(gang, total, reporter);
}

}  // namespace vifanalysis
