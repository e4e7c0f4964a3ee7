#include "ExplanationText.h"

#include <analysis/Edition.h>

namespace cli {

using vifanalysis::Confidence;
using vifanalysis::ExplainedSpelling;
using vifanalysis::FieldExplanation;
using vifanalysis::NameKindText;
using vifanalysis::RuleInfo;

std::string Mark(bool isSeen, Confidence confidence) {
  std::string mark = isSeen ? "" : "not seen";
  if (confidence == Confidence::Low) mark.append(mark.empty() ? "" : ", ").append("uncertain");
  return mark.empty() ? mark : std::string(" (").append(mark).append(")");
}

std::string SpellingText(const ExplainedSpelling& spelling) {
  std::string text = spelling.name + ": " + std::string(NameKindText(spelling.kind));
  if (!spelling.first.empty()) {
    text += ", " + spelling.first;
    if (spelling.last != spelling.first) text += " to " + spelling.last;
  }
  if (!spelling.why.empty()) text += ". " + spelling.why;
  return text + Mark(true, spelling.confidence);
}

std::string UnitText(const FieldExplanation& field) {
  return field.unit.empty() ? field.unit : field.unit + (field.unitIsWeak ? " (uncertain)" : "");
}

std::string CodesAbout(std::string_view field) {
  std::string codes;
  for (const RuleInfo* rule : vifanalysis::RulesAbout(field))
    codes.append(codes.empty() ? "" : ", ").append(rule->code);
  return codes;
}

std::string EditionsText(const RuleInfo& rule) {
  return rule.first == vifanalysis::Edition{} ? "all" : EditionText(rule.first) + " and later";
}

std::string GroupName(EVifLocation location) { return location == eVifLocUnset ? "" : GetVifLocInfo(location).name; }

}  // namespace cli
