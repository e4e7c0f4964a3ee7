#include "files/Sentence.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

using Names = std::vector<std::string>;

/// The endings of the names of the fields that tell supplies apart, those that the supply needs first.
struct Fields {
  std::array<std::string_view, 5> endings;
  std::size_t needed;
};

Fields FieldsOf(const CPdoView& pdo) {
  const std::string_view current = pdo.CurrentEnding();
  const std::string_view power = pdo.PowerEnding();
  if (pdo.GetSupply() == Supply::Fixed) return {{"Voltage", current, "Min_Voltage", "Max_Voltage", power}, 2};
  if (pdo.GetSupply() == Supply::Battery) return {{"Min_Voltage", "Max_Voltage", power, "Voltage", current}, 3};
  return {{"Min_Voltage", "Max_Voltage", current, "Voltage", power}, 3};
}

bool HasKnownFields(Supply supply) { return supply >= Supply::Fixed && supply <= Supply::Programmable; }

/// Of the fields with these endings, the full names of those that are there, or that are missing.
Names Select(const CPdoView& pdo, std::span<const std::string_view> endings, bool areThere) {
  Names names;
  for (const std::string_view ending : endings) {
    if ((pdo.FindOwn(ending) != nullptr) == areThere) names.push_back(pdo.FullName(ending));
  }
  return names;
}

std::string List(const Names& names) { return Listed(std::vector<std::string_view>(names.begin(), names.end())); }

std::string Sentence(Supply supply, const Names& missing, const Names& extra) {
  std::string sentence = std::string("a ").append(SupplyName(supply)).append(" PDO ");
  if (!missing.empty()) sentence.append("needs ").append(List(missing));
  if (!missing.empty() && !extra.empty()) sentence.append(", and ");
  if (!extra.empty()) sentence.append("has no ").append(List(extra));
  return sentence;
}

void CheckFields(const CPdoView& pdo, CReporter& reporter) {
  const Fields fields = FieldsOf(pdo);
  const std::span<const std::string_view> endings = fields.endings;
  const Names missing = Select(pdo, endings.first(fields.needed), false);
  const Names extra = Select(pdo, endings.subspan(fields.needed), true);
  if (missing.empty() && extra.empty()) return;
  const std::string sentence = Sentence(pdo.GetSupply(), missing, extra);
  if (missing.empty()) {
    reporter.Add(*pdo.Find(extra.front()), sentence);
  } else {
    reporter.Add(pdo, sentence);
  }
}

void CheckPdo(const CPdoView& pdo, CReporter& reporter) {
  if (pdo.FindOwn("Supply_Type") == nullptr) {
    reporter.Add(pdo, pdo.FullName("Supply_Type") + " is missing");
  } else if (HasKnownFields(pdo.GetSupply()) && !IsDoubtful(pdo, reporter)) {
    CheckFields(pdo, reporter);
  }
}

}  // namespace

void CheckPdoFieldsForType(const CComponentView& component, CReporter& reporter) {
  for (const PdoSide side : {PdoSide::Source, PdoSide::Sink}) {
    for (const CPdoView& pdo : component.Pdos(side)) CheckPdo(pdo, reporter);
  }
}

}  // namespace vifanalysis
