// Checks what each PDO declares.
#include "Checks.h"
#include "VifGroups.h"

namespace suite {

namespace {

/// A required field, with its lowest and highest number.
struct Requirement {
  const char* field;
  std::uint64_t lowest;
  std::uint64_t highest;
};

/// What a kind of PDO must declare.
struct Supply {
  std::vector<Requirement> requirements;
  const char* lowestVoltage = nullptr;  ///< the field that must not exceed `highestVoltage`; null for a fixed supply
  const char* highestVoltage = nullptr;
};

/// The names of fields of source PDOs, or of sink PDOs, and what each kind of these must declare.
struct PdoRules {
  EVifLocation location;
  const char* text;  ///< "source PDO"
  const char* supplyType;
  const char* augmentedType;
  Supply fixed;
  Supply battery;
  Supply variable;
  Supply programmable;
};

// The highest number is the largest that fits in the bits of the PDO in which it is sent. No supply has a voltage of 0;
// a current or power of 0 is sent by those who offer or need none.
constexpr std::uint64_t k7Bits = 127;
constexpr std::uint64_t k8Bits = 255;
constexpr std::uint64_t k10Bits = 1023;

constexpr std::uint64_t kFixed = 0;
constexpr std::uint64_t kBattery = 1;
constexpr std::uint64_t kVariable = 2;
constexpr std::uint64_t kAugmented = 3;
constexpr std::uint64_t kProgrammable = 0;  // of the augmented ones

Supply Range(const char* lowest, const char* highest, std::uint64_t highestVoltage, const Requirement& amount) {
  return {{{lowest, 1, highestVoltage}, {highest, 1, highestVoltage}, amount}, lowest, highest};
}

PdoRules SourceRules() {
  constexpr const char* lowest = "Src_PDO_Min_Voltage";
  constexpr const char* highest = "Src_PDO_Max_Voltage";
  constexpr const char* current = "Src_PDO_Max_Current";
  return {.location = eVifLocSrcPdo,
          .text = "source PDO",
          .supplyType = "Src_PDO_Supply_Type",
          .augmentedType = "Src_PDO_APDO_Type",
          .fixed = {{{"Src_PDO_Voltage", 1, k10Bits}, {current, 0, k10Bits}}},
          .battery = Range(lowest, highest, k10Bits, {"Src_PDO_Max_Power", 0, k10Bits}),
          .variable = Range(lowest, highest, k10Bits, {current, 0, k10Bits}),
          .programmable = Range(lowest, highest, k8Bits, {current, 0, k7Bits})};
}

PdoRules SinkRules() {
  constexpr const char* lowest = "Snk_PDO_Min_Voltage";
  constexpr const char* highest = "Snk_PDO_Max_Voltage";
  constexpr const char* current = "Snk_PDO_Op_Current";
  return {.location = eVifLocSnkPdo,
          .text = "sink PDO",
          .supplyType = "Snk_PDO_Supply_Type",
          .augmentedType = "Snk_PDO_APDO_Type",
          .fixed = {{{"Snk_PDO_Voltage", 1, k10Bits}, {current, 0, k10Bits}}},
          .battery = Range(lowest, highest, k10Bits, {"Snk_PDO_Op_Power", 0, k10Bits}),
          .variable = Range(lowest, highest, k10Bits, {current, 0, k10Bits}),
          .programmable = Range(lowest, highest, k8Bits, {current, 0, k7Bits})};
}

/// Checks one PDO.
class CPdoCheck {
 public:
  /// \param fields those of the PDO
  /// \param where its name
  CPdoCheck(const PdoRules& rules, const Fields& fields, const std::string& where, Verdict& verdict)
      : m_rules(rules), m_fields(fields), m_where(where), m_verdict(verdict) {}

  void Run() {
    const Supply* supply = FindSupply();
    if (supply == nullptr) return;
    for (const Requirement& requirement : supply->requirements) NumberInRange(requirement);
    if (supply->lowestVoltage != nullptr) CheckOrder(supply->lowestVoltage, supply->highestVoltage);
  }

 private:
  void Fail(const std::string& problem) { m_verdict.failures.push_back(m_where + ": " + problem); }

  std::optional<std::uint64_t> NumberInRange(const Requirement& requirement) {
    const NumberFound found = FindNumber(m_fields, requirement.field);
    if (!found.number) {
      Fail(found.problem);
    } else if (*found.number < requirement.lowest || *found.number > requirement.highest) {
      Fail(std::string(requirement.field) + " is " + std::to_string(*found.number) + ", but must be from " +
           std::to_string(requirement.lowest) + " to " + std::to_string(requirement.highest));
    } else {
      return found.number;
    }
    return std::nullopt;
  }

  /// What this PDO must declare; null if it does not declare its kind, or is of an augmented kind for which there are
  /// no rules here.
  const Supply* FindSupply() {
    const auto type = NumberInRange({m_rules.supplyType, kFixed, kAugmented});
    if (!type) return nullptr;
    if (*type == kFixed) return &m_rules.fixed;
    if (*type == kBattery) return &m_rules.battery;
    if (*type == kVariable) return &m_rules.variable;
    const auto augmentedType = NumberInRange({m_rules.augmentedType, 0, 3});
    return augmentedType == kProgrammable ? &m_rules.programmable : nullptr;
  }

  void CheckOrder(const char* lowestVoltage, const char* highestVoltage) {
    const auto lowest = FindNumber(m_fields, lowestVoltage).number;
    const auto highest = FindNumber(m_fields, highestVoltage).number;
    if (lowest && highest && *lowest > *highest) {
      Fail(std::string(lowestVoltage) + " is " + std::to_string(*lowest) + ", but " + highestVoltage + " is " +
           std::to_string(*highest));
    }
  }

  const PdoRules& m_rules;
  const Fields& m_fields;
  const std::string m_where;
  Verdict& m_verdict;
};

Verdict CheckPdos(const CVendorInfoFile& vif, const PdoRules& rules) {
  Verdict verdict;
  for (const auto& [component, fields] : Components(vif)) {
    for (const auto& [pdo, pdoFields] : SplitByGroup(fields, rules.location)) {
      ++verdict.examined;
      const std::string where = GroupText("Component", component) + ", " + GroupText(rules.text, pdo);
      if (pdo == CVIFField::INDEX_NOT_SPECIFIED) verdict.failures.push_back(where);
      CPdoCheck(rules, pdoFields, where, verdict).Run();
    }
  }
  return verdict;
}

}  // namespace

Verdict CheckSourcePdos(const CVendorInfoFile& vif) { return CheckPdos(vif, SourceRules()); }

Verdict CheckSinkPdos(const CVendorInfoFile& vif) { return CheckPdos(vif, SinkRules()); }

}  // namespace suite
