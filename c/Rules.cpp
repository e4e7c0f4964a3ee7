// The rules of the check.
#include "Guard.h"

#include <analysis/Rules.h>
#include <analysis/Vocabulary.h>

#include <string>

namespace vifc {

namespace {

void Give(const vifanalysis::RuleInfo& found, vif_rule* rule) {
  const vif_rule filled = {0,
                           found.code,
                           found.what,
                           found.why,
                           vifanalysis::ConfidenceText(found.confidence).data(),  // a literal, which ends with a NUL
                           static_cast<int32_t>(found.severity),
                           found.first.major,
                           found.first.minor,
                           0};
  Require(HandOut(filled, rule) == VIF_OK, "the rule is NULL, or its size is too small");
}

[[noreturn]] void RefuseCode(const std::string& code) {
  const std::string nearest = vifanalysis::NearestCode(code).value_or("");
  const std::string advice = nearest.empty() ? "" : "; did you mean '" + nearest + "'?";
  throw CFailure(VIF_ERROR_NOT_FOUND, "there is no rule '" + code + "'" + advice);
}

}  // namespace

}  // namespace vifc

size_t vif_rule_count(void) {
  std::size_t count = 0;
  vifc::Guarded(nullptr, [&] { count = vifanalysis::Rules().size(); });
  return count;
}

vif_status vif_rule_get(size_t position, vif_rule* rule) {
  return vifc::Guarded(nullptr, [&] {
    vifc::Require(position < vifanalysis::Rules().size(), "there is no rule at that position");
    vifc::Give(vifanalysis::Rules()[position], rule);
  });
}

vif_status vif_find_rule(const char* code, vif_rule* rule, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(code != nullptr, "the code is NULL");
    const vifanalysis::RuleInfo* found = vifanalysis::FindRule(code);
    if (found == nullptr) vifc::RefuseCode(code);
    vifc::Give(*found, rule);
  });
}
