#include "power/Units.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

constexpr std::string_view kRating = "PD_Power_As_Source";
constexpr std::string_view kTotal = "Product_Total_Source_Power_mW";
constexpr std::uint64_t kMost = 1'000'000'000;  // mW; more is a mistake, and sums of it might overflow

/// Ports whose power does not depend on each other's, and the powers that they declare, in mW.
struct Assured {
  std::vector<const CComponentView*> ports;
  std::uint64_t sum = 0;
  std::uint64_t total = 0;
};

/// Nothing unless each of the ports has both powers.
std::optional<Assured> FindAssured(const CVifView& file) {
  Assured assured;
  for (const CComponentView& component : file.Components()) {
    if (!component.IsNo("Port_Source_Power_Type")) continue;
    const std::optional<std::uint64_t> rating = component.Number(kRating);
    const std::optional<std::uint64_t> total = component.Number(kTotal);
    if (!rating || !total || *rating > kMost) return std::nullopt;
    assured.ports.push_back(&component);
    assured.sum += *rating;
    assured.total = std::max(assured.total, *total);
  }
  return assured;
}

}  // namespace

void CheckAssuredSum(const CVifView& file, CReporter& reporter) {
  const std::optional<Assured> assured = FindAssured(file);
  if (!assured || assured->ports.size() < 2 || assured->sum <= assured->total) return;
  const auto isFound = [&](const CComponentView* port) {
    return reporter.HasFound("product-power", *port) || reporter.HasFound("rating-above-pdos", *port->Find(kRating));
  };
  if (std::any_of(assured->ports.begin(), assured->ports.end(), isFound)) return;
  reporter.AddToProduct(*assured->ports.front()->Find(kTotal),
                        std::to_string(assured->ports.size())
                            .append(" ports with assured power (Port_Source_Power_Type 0) add up to ")
                            .append(Watts(assured->sum))
                            .append(", but the whole product has ")
                            .append(Watts(assured->total))
                            .append(" (Product_Total_Source_Power_mW)"));
}

}  // namespace vifanalysis
