// A rule: its facts and its function.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

#include <span>
#include <variant>

namespace vifanalysis {

/// Checks the values of single fields. These rules come first, and the others take no number from a field that they
/// have blamed.
struct ValueCheck {
  void (*check)(const CVifView& file, CReporter& reporter);
};

/// Checks one component.
using ComponentCheck = void (*)(const CComponentView& component, CReporter& reporter);

/// Checks a whole file, which is one product.
using FileCheck = void (*)(const CVifView& file, CReporter& reporter);

/// A row of facts and the function beside it.
struct Rule {
  RuleInfo info;
  std::variant<ValueCheck, ComponentCheck, FileCheck> check;
};

/// The rules about what a file declares, in the order in which they run and are listed.
std::span<const Rule> ConsistencyRules();

/// Applies the rules that are for the file's edition. Takes time that grows with the number of fields.
void FindContradictions(const FoundFields& fields, Findings& findings);

}  // namespace vifanalysis
