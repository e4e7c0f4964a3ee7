#include "rules/Rule.h"

#include <algorithm>

namespace vifanalysis {

namespace {

/// A rule that is not for every edition is not for files whose edition is not known.
bool IsFor(const RuleInfo& rule, const CVifView& file) {
  return rule.first == Edition{} || (file.GetEdition() && *file.GetEdition() >= rule.first);
}

void Run(const Rule& rule, const CVifView& file, CReporter& reporter) {
  reporter.SetRule(rule.info);
  if (const ValueCheck* values = std::get_if<ValueCheck>(&rule.check)) {
    values->check(file, reporter);
  } else if (const FileCheck* check = std::get_if<FileCheck>(&rule.check)) {
    (*check)(file, reporter);
  } else {
    for (const CComponentView& component : file.Components()) std::get<ComponentCheck>(rule.check)(component, reporter);
  }
}

void Run(std::span<const Rule> rules, const CVifView& file, CReporter& reporter) {
  for (const Rule& rule : rules) {
    if (IsFor(rule.info, file)) Run(rule, file, reporter);
  }
}

bool IsAboutValues(const Rule& rule) { return std::holds_alternative<ValueCheck>(rule.check); }

}  // namespace

void FindContradictions(const FoundFields& fields, Findings& findings) {
  const std::span<const Rule> rules = ConsistencyRules();
  const auto others = std::find_if_not(rules.begin(), rules.end(), IsAboutValues);
  CReporter reporter(findings);
  const CVifView file(fields);
  Run({rules.begin(), others}, file, reporter);
  const UnsoundFields unsound = reporter.BlamedFields();
  if (unsound.empty()) {
    Run({others, rules.end()}, file, reporter);
  } else {
    Run({others, rules.end()}, CVifView(fields, unsound), reporter);
  }
}

}  // namespace vifanalysis
