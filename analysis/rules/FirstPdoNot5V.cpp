#include "power/Units.h"
#include "rules/FieldWords.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::uint64_t kFixed = 0;
constexpr std::uint64_t kFiveVolts = 100;  // units of 50 mV

void Report(const CPdoView& pdo, std::string_view ending, const std::string& has, CReporter& reporter) {
  reporter.Add(*pdo.FindOwn(ending), std::string("the first ")
                                         .append(SideName(pdo.Side()))
                                         .append(" PDO must be fixed at 5 V (")
                                         .append(pdo.FullName("Supply_Type"))
                                         .append(" 0, ")
                                         .append(pdo.FullName("Voltage"))
                                         .append(" 100), but it has ")
                                         .append(pdo.FullName(ending))
                                         .append(" ")
                                         .append(has));
}

std::string VoltageText(const CPdoView& pdo, std::uint64_t number) {
  const std::optional<std::uint64_t>& voltage = pdo.Quantities().voltage;
  const std::string digits = std::to_string(number);
  return voltage ? digits + " (" + Volts(*voltage) + ')' : digits;
}

void CheckSide(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::vector<CPdoView>& pdos = component.Pdos(side);
  if (pdos.empty() || pdos.front().Index() > 1) return;
  const CPdoView& first = pdos.front();
  const std::optional<std::uint64_t> type = first.OwnNumber("Supply_Type");
  const std::optional<std::uint64_t> voltage = first.OwnNumber("Voltage");
  if (type && *type != kFixed) {
    Report(first, "Supply_Type", NumberInWords(component.File(), first.FullName("Supply_Type"), *type), reporter);
  } else if (voltage && *voltage != kFiveVolts) {
    Report(first, "Voltage", VoltageText(first, *voltage), reporter);
  }
}

}  // namespace

void CheckFirstPdoNot5V(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, reporter);
  CheckSide(component, PdoSide::Sink, reporter);
}

}  // namespace vifanalysis
