#include "power/Units.h"
#include "rules/FieldWords.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::uint64_t kHighestWithoutEpr = 20'000;  // mV

/// The voltage that PDOs of one supply are sorted by.
struct SortKey {
  std::string_view ending;  // empty where there is none
  std::string_view words;
  std::optional<std::uint64_t> voltage;
};

SortKey KeyOf(const CPdoView& pdo) {
  const PdoQuantities& is = pdo.Quantities();
  switch (pdo.GetSupply()) {
    case Supply::Fixed: return {"Voltage", "their voltage", is.voltage};
    case Supply::Battery:
    case Supply::Variable: return {"Min_Voltage", "their lowest voltage", is.minVoltage};
    case Supply::Programmable: return {"Max_Voltage", "their highest voltage", is.maxVoltage};
    case Supply::EprAdjustable:
    case Supply::SprAdjustable:
    case Supply::Unknown: break;
  }
  return {};
}

/// What a second PDO of the same supply must not repeat; empty while something of it is missing.
std::string OfferOf(const CPdoView& pdo) {
  const PdoQuantities& is = pdo.Quantities();
  if (pdo.GetSupply() == Supply::Fixed) return is.voltage ? Volts(*is.voltage) : "";
  if (!is.minVoltage || !is.maxVoltage) return "";
  std::string range = Volts(*is.minVoltage) + " to " + Volts(*is.maxVoltage);
  if (pdo.GetSupply() != Supply::Programmable) return range;
  return is.current ? range + " at " + Amperes(*is.current) : "";
}

/// Fixed supplies of the extended power range come after all of the standard range.
bool BeginsExtendedRange(const CPdoView& pdo) { return pdo.Quantities().voltage.value_or(0) > kHighestWithoutEpr; }

void CompareTypes(const CComponentView& component, const CPdoView& before, const CPdoView& pdo, CReporter& reporter) {
  const std::optional<std::uint64_t> type = pdo.OwnNumber("Supply_Type");
  const std::optional<std::uint64_t> typeBefore = before.OwnNumber("Supply_Type");
  if (!type || !typeBefore || *type > *typeBefore || BeginsExtendedRange(pdo)) return;
  const std::string name = pdo.FullName("Supply_Type");
  reporter.Add(*pdo.FindOwn("Supply_Type"),
               std::string("PDOs come in the order fixed, battery, variable, augmented, but ")
                   .append(name)
                   .append(" ")
                   .append(NumberInWords(component.File(), name, *type))
                   .append(" follows ")
                   .append(NumberInWords(component.File(), name, *typeBefore)));
}

void CompareVoltages(const CPdoView& before, const CPdoView& pdo, CReporter& reporter) {
  const SortKey key = KeyOf(pdo);
  const SortKey keyBefore = KeyOf(before);
  if (!key.voltage || !keyBefore.voltage) return;
  const std::string offer = OfferOf(pdo);
  if (*key.voltage < *keyBefore.voltage) {
    reporter.Add(*pdo.FindOwn(key.ending), std::string(SupplyName(pdo.GetSupply()))
                                               .append(" PDOs come in rising order of ")
                                               .append(key.words)
                                               .append(", but ")
                                               .append(Volts(*key.voltage))
                                               .append(" follows ")
                                               .append(Volts(*keyBefore.voltage)));
  } else if (!offer.empty() && offer == OfferOf(before)) {
    reporter.Add(*pdo.FindOwn(key.ending), "the PDO repeats the " + offer + " of the PDO before");
  }
}

void Compare(const CComponentView& component, const CPdoView& before, const CPdoView& pdo, CReporter& reporter) {
  const std::optional<std::uint64_t> type = pdo.OwnNumber("Supply_Type");
  const std::optional<std::uint64_t> typeBefore = before.OwnNumber("Supply_Type");
  if (!type || !typeBefore || IsDoubtful(before, reporter) || IsDoubtful(pdo, reporter)) return;
  if (*type != *typeBefore) {
    CompareTypes(component, before, pdo, reporter);
  } else if (pdo.GetSupply() == before.GetSupply()) {
    CompareVoltages(before, pdo, reporter);
  }
}

void CheckSide(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::vector<CPdoView>& pdos = component.Pdos(side);
  for (std::size_t i = 1; i < pdos.size(); ++i) Compare(component, pdos[i - 1], pdos[i], reporter);
}

}  // namespace

void CheckPdoOrder(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, reporter);
  CheckSide(component, PdoSide::Sink, reporter);
}

}  // namespace vifanalysis
