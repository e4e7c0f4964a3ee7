#include "RuleBlocks.h"

#include "Mdoc.h"

#include <ExplanationText.h>
#include <analysis/Rules.h>

#include <cctype>

namespace manual {

namespace {

using vifanalysis::RuleInfo;

std::string RuleItem(const RuleInfo& rule, const std::map<std::string, std::string>& examples) {
  std::string what = rule.what;
  what[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(what[0])));
  std::string item = ".It Sy " + Argument(rule.code) + " Pq " + vifanalysis::SeverityName(rule.severity) + '\n' +
                     Paragraph(Sentence(what) + cli::Mark(true, rule.confidence)) + ".Pp\n" + Paragraph(rule.why);
  if (rule.first != vifanalysis::Edition{}) item += ".Pp\nEditions " + cli::EditionsText(rule) + ".\n";
  const auto example = examples.find(rule.code);
  if (example != examples.end()) item += ".Pp\nFor example:\n" + Paragraph(example->second);
  return item;
}

}  // namespace

std::string RuleList(bool aboutForm, const std::map<std::string, std::string>& examples) {
  std::string list = ".Bl -tag -width Ds\n";
  for (const RuleInfo& rule : vifanalysis::Rules()) {
    const bool isAboutForm = rule.sources[0] == '\0';
    if (isAboutForm == aboutForm) list += RuleItem(rule, examples);
  }
  return list + ".El\n";
}

}  // namespace manual
