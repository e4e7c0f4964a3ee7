#include "rules/Rule.h"

namespace vifanalysis {

namespace {

/// A rule that is not for every edition is not for files whose edition is not known.
bool IsFor(const RuleInfo& rule, const CVifView& file) {
  return rule.first == Edition{} || (file.GetEdition() && *file.GetEdition() >= rule.first);
}

void Run(const Rule& rule, const CVifView& file, CReporter& reporter) {
  reporter.SetRule(rule.info);
  if (const FileCheck* check = std::get_if<FileCheck>(&rule.check)) {
    (*check)(file, reporter);
    return;
  }
  for (const CComponentView& component : file.Components()) std::get<ComponentCheck>(rule.check)(component, reporter);
}

}  // namespace

void FindContradictions(const FoundFields& fields, Findings& findings) {
  const CVifView file(fields);
  CReporter reporter(findings);
  for (const Rule& rule : ConsistencyRules()) {
    if (IsFor(rule.info, file)) Run(rule, file, reporter);
  }
}

}  // namespace vifanalysis
