#include "power/Units.h"
#include "rules/RoleSide.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kRating = "PD_Power_As_Source";
constexpr std::uint64_t kRevision3 = 2;
constexpr std::uint64_t kLeastPower = 15'000;  // mW; up to that, 5 V are enough
constexpr std::uint64_t kCurrent = 3000;       // mA; every cable carries it
constexpr std::uint64_t kStep = 10;            // mA

/// A voltage that sources above a power offer, in mV and mW.
struct Normative {
  std::uint64_t voltage;
  std::uint64_t above;
};

constexpr Normative kNormative[] = {{5000, kLeastPower}, {9000, kLeastPower}, {15'000, 27'000}, {20'000, 45'000}};

/// What is known of the fixed PDOs at one voltage.
struct Offer {
  const CPdoView* best = nullptr;  // that of the greatest current
  bool mayBeThere = false;         // in a PDO whose voltage is missing or in doubt
};

bool IsRevision3Source(const CComponentView& component) {
  const std::optional<PortRole> role = RoleOf(component);
  return role && HasSide(*role, PdoSide::Source) && component.Number("PD_Specification_Revision") == kRevision3;
}

bool HasKnownVoltage(const CPdoView& pdo) {
  return pdo.GetSupply() == Supply::Fixed ? pdo.Quantities().voltage.has_value() : pdo.GetSupply() != Supply::Unknown;
}

Offer FindOffer(const CComponentView& component, std::uint64_t voltage, const CReporter& reporter) {
  Offer offer;
  for (const CPdoView& pdo : component.Pdos(PdoSide::Source)) {
    if (!HasKnownVoltage(pdo) || IsDoubtful(pdo, reporter)) {
      offer.mayBeThere = true;
    } else if (pdo.Quantities().voltage == voltage &&
               (offer.best == nullptr || pdo.Quantities().current > offer.best->Quantities().current)) {
      offer.best = &pdo;
    }
  }
  return offer;
}

/// The least current at a voltage, in mA: 3 A, or all of the power.
std::uint64_t LeastCurrent(std::uint64_t rating, std::uint64_t voltage) {
  return rating >= voltage * kCurrent / 1000 ? kCurrent : rating * 1000 / voltage;
}

void CheckCurrent(const CPdoView& pdo, std::uint64_t rating, std::uint64_t voltage, CReporter& reporter) {
  const std::optional<std::uint64_t>& current = pdo.Quantities().current;
  const std::uint64_t least = LeastCurrent(rating, voltage);
  if (!current || *current + kStep >= least) return;
  reporter.Add(pdo.PowerField(), std::string("a source of ")
                                     .append(Watts(rating))
                                     .append(" offers at least ")
                                     .append(Amperes(least / kStep * kStep))
                                     .append(" at ")
                                     .append(Volts(voltage))
                                     .append(", but the PDO says ")
                                     .append(Amperes(*current)));
}

void CheckVoltage(const CComponentView& component, std::uint64_t rating, std::uint64_t voltage, CReporter& reporter) {
  const Offer offer = FindOffer(component, voltage, reporter);
  if (offer.best != nullptr) {
    CheckCurrent(*offer.best, rating, voltage, reporter);
  } else if (!offer.mayBeThere) {
    reporter.Add(*component.Find(kRating), std::string("a source of ")
                                               .append(Watts(rating))
                                               .append(" offers ")
                                               .append(Volts(voltage))
                                               .append(", but no fixed PDO does"));
  }
}

}  // namespace

void CheckPowerRules(const CComponentView& component, CReporter& reporter) {
  const FoundField* field = component.Find(kRating);
  const std::optional<std::uint64_t> rating = component.Number(kRating);
  if (!rating || !IsRevision3Source(component) || !HasAllPdos(component, PdoSide::Source) ||
      reporter.HasFound("rating-above-pdos", *field)) {
    return;
  }
  for (const Normative& normative : kNormative) {
    if (*rating > normative.above) CheckVoltage(component, *rating, normative.voltage, reporter);
  }
}

}  // namespace vifanalysis
