#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::size_t kMostPdos = 7;
constexpr std::size_t kMostPdosWithEpr = 11;
constexpr std::uint64_t kGreatestCurrent = 5000;        // mA
constexpr std::uint64_t kLowestFixedVoltage = 5000;     // mV
constexpr std::uint64_t kHighestFixedVoltage = 20'000;  // mV, without EPR
constexpr std::uint64_t kHighestOtherVoltage = 21'000;  // mV, without EPR

bool IsBlamed(const CPdoView& pdo, std::string_view ending, const CReporter& reporter) {
  const FoundField* field = pdo.FindOwn(ending);
  return field != nullptr && reporter.HasFound("first-pdo-not-5v", *field);
}

/// Blames a field of a PDO, unless another rule has done so already.
void Blame(const CPdoView& pdo, std::string_view ending, const std::string& says, CReporter& reporter) {
  if (!IsBlamed(pdo, ending, reporter)) reporter.Add(*pdo.FindOwn(ending), pdo.FullName(ending) + " is " + says);
}

std::string_view HighestVoltageEnding(const CPdoView& pdo) {
  return pdo.GetSupply() == Supply::Fixed ? "Voltage" : "Max_Voltage";
}

/// With a wrong type, the units of the PDO are wrong, too.
bool HasWrongType(const CPdoView& pdo, const CReporter& reporter) { return IsBlamed(pdo, "Supply_Type", reporter); }

/// The first PDO with a voltage that takes EPR; null when there is none.
const CPdoView* FindEprPdo(const CComponentView& component, PdoSide side, const CReporter& reporter) {
  const std::vector<CPdoView>& pdos = component.Pdos(side);
  const auto found = std::find_if(pdos.begin(), pdos.end(), [&](const CPdoView& pdo) {
    if (HasWrongType(pdo, reporter)) return false;
    const std::uint64_t highest = pdo.GetSupply() == Supply::Fixed ? kHighestFixedVoltage : kHighestOtherVoltage;
    return pdo.HighestVoltage().value_or(0) > highest && !IsBlamed(pdo, HighestVoltageEnding(pdo), reporter);
  });
  return found != pdos.end() ? &*found : nullptr;
}

/// Where the voltages take EPR but the component does not declare it, that is the mistake, and not the number of PDOs.
void CheckCount(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::vector<CPdoView>& pdos = component.Pdos(side);
  const bool isEpr = component.MayBeYes(EprName(side)) || FindEprPdo(component, side, reporter) != nullptr;
  const std::size_t most = isEpr ? kMostPdosWithEpr : kMostPdos;
  if (pdos.size() <= most) return;
  const std::string message = std::to_string(pdos.size())
                                  .append(" ")
                                  .append(SideName(side))
                                  .append(" PDOs; there can be at most ")
                                  .append(std::to_string(most))
                                  .append(isEpr ? "" : " without EPR");
  if (const FoundField* count = component.Find(CountName(side))) {
    reporter.Add(*count, message);
  } else {
    reporter.Add(pdos[most], message);
  }
}

void CheckCurrent(const CPdoView& pdo, CReporter& reporter) {
  const std::optional<std::uint64_t>& current = pdo.Quantities().current;
  if (!current) return;
  if (*current > kGreatestCurrent) {
    Blame(pdo, pdo.CurrentEnding(), Amperes(*current) + ", but no PDO has more than 5 A", reporter);
  } else if (*current == 0 && pdo.Side() == PdoSide::Source) {
    Blame(pdo, pdo.CurrentEnding(), "0 A, but a source PDO offers a current", reporter);
  }
}

void CheckVoltages(const CPdoView& pdo, CReporter& reporter) {
  const PdoQuantities& is = pdo.Quantities();
  if (is.voltage && *is.voltage < kLowestFixedVoltage) {
    Blame(pdo, "Voltage", Volts(*is.voltage) + ", but a fixed PDO has at least 5 V", reporter);
  }
  if (is.minVoltage && is.maxVoltage && *is.minVoltage > *is.maxVoltage) {
    const std::string_view than = ", more than ";
    Blame(pdo, "Min_Voltage",
          Volts(*is.minVoltage).append(than).append(pdo.FullName("Max_Voltage")).append(", ") + Volts(*is.maxVoltage),
          reporter);
  }
}

/// Blames the first PDO only: if the component has EPR after all, the others are not mistakes of their own.
void CheckEpr(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const CPdoView* pdo = FindEprPdo(component, side, reporter);
  if (pdo == nullptr || component.MayBeYes(EprName(side))) return;
  Blame(*pdo, HighestVoltageEnding(*pdo),
        Volts(pdo->HighestVoltage().value_or(0))
            .append(pdo->GetSupply() == Supply::Fixed ? ", but a fixed PDO of more than 20 V"
                                                      : ", but a PDO of more than 21 V")
            .append(" needs EPR, and ")
            .append(EprName(side))
            .append(" is not YES"),
        reporter);
}

void CheckSide(const CComponentView& component, PdoSide side, CReporter& reporter) {
  CheckCount(component, side, reporter);
  for (const CPdoView& pdo : component.Pdos(side)) {
    if (HasWrongType(pdo, reporter)) continue;
    CheckCurrent(pdo, reporter);
    CheckVoltages(pdo, reporter);
  }
  CheckEpr(component, side, reporter);
}

}  // namespace

void CheckPdoLimits(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, reporter);
  CheckSide(component, PdoSide::Sink, reporter);
}

}  // namespace vifanalysis
