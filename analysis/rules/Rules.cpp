#include "files/Codes.h"
#include "rules/Rule.h"
#include "vocabulary/Alignment.h"

#include <analysis/Rules.h>
#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>

namespace vifanalysis {

namespace {

std::vector<RuleInfo> MakeRules() {
  std::vector<RuleInfo> rules;
  for (const RuleInfo* rule : code::kAll) rules.push_back(*rule);
  for (const Rule& rule : ConsistencyRules()) rules.push_back(rule.info);
  return rules;
}

bool IsOfName(char c) { return IsDigit(c) || c == '_' || (ToLowerAscii(c) >= 'a' && ToLowerAscii(c) <= 'z'); }

/// Whether a text has the name in it, and not just as part of another.
bool HasName(std::string_view text, std::string_view name) {
  for (std::size_t at = text.find(name); !name.empty() && at != std::string_view::npos; at = text.find(name, at + 1)) {
    const std::size_t end = at + name.size();
    if ((at == 0 || !IsOfName(text[at - 1])) && (end == text.size() || !IsOfName(text[end]))) return true;
  }
  return false;
}

}  // namespace

const std::vector<RuleInfo>& Rules() {
  static const std::vector<RuleInfo> rules = MakeRules();
  return rules;
}

const RuleInfo* FindRule(std::string_view code) {
  const auto found = std::find_if(Rules().begin(), Rules().end(),
                                  [&](const RuleInfo& rule) { return EqualInAnyCase(code, rule.code); });
  return found != Rules().end() ? &*found : nullptr;
}

std::vector<const RuleInfo*> RulesAbout(std::string_view field) {
  std::vector<const RuleInfo*> rules;
  for (const RuleInfo& rule : Rules()) {
    if (HasName(rule.what, field) || HasName(rule.why, field)) rules.push_back(&rule);
  }
  return rules;
}

std::optional<std::string> NearestCode(std::string_view text) {
  if (text.size() > CAlignment::kMaxLength) return std::nullopt;
  std::size_t fewest = text.size() / 3 + 1;  // more would be another code
  std::optional<std::string> nearest;
  for (const RuleInfo& rule : Rules()) {
    const std::size_t distance = CAlignment(text, rule.code).Distance();
    if (distance > fewest || (distance == fewest && nearest)) continue;
    fewest = distance;
    nearest = rule.code;
  }
  return nearest;
}

}  // namespace vifanalysis
