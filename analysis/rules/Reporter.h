// Collects what the rules find.
#pragma once

#include "files/FoundField.h"
#include "rules/GroupView.h"

#include <analysis/Rules.h>

#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace vifanalysis {

/// Creates findings, each with the place of the field that is most to blame, and with its component, PDO or SVID before
/// the message: "Component 1, Source PDO 2: ...".
class CReporter {
 public:
  explicit CReporter(Findings& findings) : m_findings(findings) {}

  /// Sets the rule that finds what follows. It must outlive the reporter.
  void SetRule(const RuleInfo& rule) { m_rule = &rule; }

  /// Blames a field. The message is a sentence without a full stop.
  void Add(const FoundField& blamed, const std::string& message);

  /// Blames a field for what several components declare together. The message names no component.
  void AddToProduct(const FoundField& blamed, const std::string& message);

  /// Blames what a group lacks, at the first field in it. The message is about the group.
  void Add(const CGroupView& group, const std::string& message);

  /// Whether the rule with that code, which is further up in the table, has found something in a group, at any depth.
  /// So one mistake gives one finding.
  bool HasFound(std::string_view code, const CGroupView& group) const;

  /// Whether it has blamed that field.
  bool HasFound(std::string_view code, const FoundField& field) const;

  /// The fields that rules have blamed so far.
  UnsoundFields BlamedFields() const;

 private:
  void Add(const GroupPlace& place, const FoundField& blamed, const std::string& message);

  Findings& m_findings;
  const RuleInfo* m_rule = nullptr;
  std::set<std::pair<std::string_view, GroupPlace>> m_places;
  std::set<std::pair<std::string_view, const FoundField*>> m_blamed;
};

}  // namespace vifanalysis
