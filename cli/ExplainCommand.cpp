#include "Command.h"
#include "ExplanationWriters.h"
#include "Output.h"
#include "Values.h"

#include <analysis/FieldExplanation.h>
#include <analysis/Rules.h>
#include <analysis/Vocabulary.h>
#include <CLI/CLI.hpp>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cli {

using vifanalysis::ExplainField;
using vifanalysis::FieldExplanation;
using vifanalysis::FindRule;
using vifanalysis::RuleInfo;

namespace {

struct ExplainSettings {
  std::string format = "text";
  std::vector<std::string> names;
};

constexpr const char* kDescription = "Say what fields and findings mean";

constexpr const char* kFooter =
    "Explains fields of the format, by name in any letter case and with or without the numbers of their groups, and "
    "the "
    "findings of 'vif check', by code. Without a name, lists all fields by group.\n"
    "\n"
    "What it knows was gathered from public documents and real files. \"uncertain\" marks what is concluded from few "
    "of "
    "them, \"not seen\" what none of the files has.\n"
    "\n"
    "Formats:\n"
    "  text  for people\n"
    "  json  one object a line for each name: a field has \"name\", \"group\", \"declares\", \"type\", \"unit\", "
    "\"values\", \"editions\", \"spellings\", \"rules\" (codes of findings that name it) and \"confidence\"; a finding "
    "has "
    "\"code\", \"severity\", \"what\", \"why\", \"editions\" and \"confidence\". Without a name, one object with "
    "\"groups\"\n"
    "\n"
    "Examples:\n"
    "  vif explain PD_Port_Type\n"
    "  vif explain src_pdo_voltage3 pdo-above-rating\n"
    "  vif explain --format json Captive_Cable\n"
    "\n"
    "Exit status: 0 if all names are known; 1 if one is not, with the nearest one on standard error.";

/// \throws NegativeResult
[[noreturn]] void RefuseName(const std::string& name) {
  std::string nearest = vifanalysis::SuggestField(name);
  if (nearest.empty()) nearest = vifanalysis::NearestCode(name).value_or("");
  throw NegativeResult("there is no field or finding '" + name + '\'' +
                       (nearest.empty() ? "" : "; did you mean '" + nearest + "'?"));
}

/// A function that prints the explanation of a name.
using Explanation = std::function<void()>;

Explanation Explain(const std::string& name, bool asJson) {
  if (const RuleInfo* rule = FindRule(name)) {
    return [rule, asJson] { asJson ? WriteRuleAsJson(*rule) : WriteRuleAsText(*rule); };
  }
  const std::optional<FieldExplanation> field = ExplainField(name);
  if (!field) RefuseName(name);
  return [field, asJson] { asJson ? WriteFieldAsJson(*field) : WriteFieldAsText(*field); };
}

void RunExplain(const ExplainSettings& settings) {
  const bool asJson = settings.format == "json";
  if (settings.names.empty()) return asJson ? WriteFieldListAsJson() : WriteFieldListAsText();
  std::vector<Explanation> explanations;
  explanations.reserve(settings.names.size());
  for (const std::string& name : settings.names) explanations.push_back(Explain(name, asJson));
  for (const Explanation& explanation : explanations) {
    if (!asJson && &explanation != &explanations.front()) Write("\n");
    explanation();
  }
}

}  // namespace

void AddExplainCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("explain", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto settings = std::make_shared<ExplainSettings>();
  AddFormat(*command, settings->format, "The output format: text (the default) or json", {"text", "json"});
  command->add_option("NAME", settings->names, "Names of fields and codes of findings")
      ->type_name(kExplained)
      ->option_text("...");
  command->callback([settings, &status] {
    RunExplain(*settings);
    status = kDone;
  });
}

}  // namespace cli
