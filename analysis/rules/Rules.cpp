#include "files/Codes.h"
#include "rules/Rule.h"

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

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string Lower(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return Lower(c); });
  return lower;
}

bool IsOfName(char c) { return IsDigit(c) || c == '_' || (Lower(c) >= 'a' && Lower(c) <= 'z'); }

/// Whether a text has the name in it, and not just as part of another.
bool HasName(std::string_view text, std::string_view name) {
  for (std::size_t at = text.find(name); !name.empty() && at != std::string_view::npos; at = text.find(name, at + 1)) {
    const std::size_t end = at + name.size();
    if ((at == 0 || !IsOfName(text[at - 1])) && (end == text.size() || !IsOfName(text[end]))) return true;
  }
  return false;
}

/// How many characters are to be added, left out or changed to make one text of the other.
std::size_t Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  for (std::size_t j = 0; j < row.size(); ++j) row[j] = j;
  for (const char c : from) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t changed = diagonal + (c == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

const std::vector<RuleInfo>& Rules() {
  static const std::vector<RuleInfo> rules = MakeRules();
  return rules;
}

const RuleInfo* FindRule(std::string_view code) {
  const std::string wanted = Lower(code);
  const auto found =
      std::find_if(Rules().begin(), Rules().end(), [&](const RuleInfo& rule) { return wanted == rule.code; });
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
  constexpr std::size_t longest = 64;
  if (text.size() > longest) return std::nullopt;
  const std::string written = Lower(text);
  std::size_t fewest = written.size() / 3 + 1;  // more would be another code
  std::optional<std::string> nearest;
  for (const RuleInfo& rule : Rules()) {
    const std::size_t distance = Distance(written, rule.code);
    if (distance > fewest || (distance == fewest && nearest)) continue;
    fewest = distance;
    nearest = rule.code;
  }
  return nearest;
}

}  // namespace vifanalysis
