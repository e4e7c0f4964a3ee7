#include "Baseline.h"
#include "Command.h"
#include "FieldSource.h"
#include "FindingWriters.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Values.h"

#include <analysis/Check.h>
#include <analysis/Rules.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

using vifanalysis::RuleInfo;
using vifanalysis::Severity;
using vifanalysis::SeverityName;

namespace {

struct CheckSettings {
  std::string format = "text";
  vifanalysis::CheckOptions options;
  std::string failOn = "error";
  std::string baseline;
  std::vector<std::string> files;
};

constexpr const char* kDescription = "Find mistakes";

constexpr const char* kFooter =
    "Checks each file on its own, its form and what it declares, and prints the findings: errors, where something is "
    "lost or cannot be intended; warnings, which are worth a look; and, with --notes, notes, which are worth knowing. "
    "'vif explain CODE' says more about a finding.\n"
    "\n"
    "Findings:\n";

constexpr const char* kRestOfFooter =
    "\n"
    "Formats:\n"
    "  text   one finding a line, FILE:LINE:COLUMN: error: MESSAGE [CODE], without a line or column that is not known, "
    "and a last line that counts the findings\n"
    "  json   one object with \"files\" and the counts \"errors\", \"warnings\" and \"notes\"; each file has \"file\", "
    "\"valid\" (it has no errors) and \"findings\"; each finding has \"severity\", \"code\", \"line\", \"column\" and "
    "\"element\" (null if not known) and \"message\"\n"
    "  sarif  SARIF 2.1.0, for services and editors that show findings in the file\n"
    "\n"
    "Examples:\n"
    "  vif check charger.txt\n"
    "  vif check --notes --except placeholder,unknown-name charger.txt\n"
    "  vif check --format json port0.xml port1.xml > known.json\n"
    "  vif check --baseline known.json port0.xml port1.xml\n"
    "\n"
    "Exit status: 0 if there are no findings of the severity that --fail-on names, or higher; 1 if there are; 2 if a "
    "file cannot be checked, without findings.";

/// The list of codes in the help.
std::string CodeList() {
  std::size_t width = 0;
  for (const RuleInfo& rule : vifanalysis::Rules()) width = std::max(width, std::string_view(rule.code).size());
  std::string list;
  for (const RuleInfo& rule : vifanalysis::Rules()) {
    std::string line = "  ";
    line.append(SeverityName(rule.severity)).resize(11, ' ');
    line.append(rule.code).resize(11 + width + 2, ' ');
    list.append(line).append(rule.what).append("\n");
  }
  return list;
}

/// \throws Failure when there is no rule with one of the codes
void RequireCodes(const char* option, const std::vector<std::string>& codes) {
  for (const std::string& code : codes) {
    if (vifanalysis::FindRule(code) != nullptr) continue;
    const std::optional<std::string> nearest = vifanalysis::NearestCode(code);
    throw Failure(std::string(option) + ": there is no finding '" + code + '\'' +
                  (nearest ? "; did you mean '" + *nearest + "'?" : ""));
  }
}

std::vector<CheckedFile> CheckAll(const CheckSettings& settings) {
  std::vector<CheckedFile> files;
  files.reserve(settings.files.size());
  for (const std::string& file : settings.files) files.push_back({file, FindingsIn(file, settings.options)});
  if (settings.baseline.empty()) return files;
  const CBaseline baseline(settings.baseline);
  for (CheckedFile& file : files) baseline.RemoveFrom(file);
  return files;
}

void WriteFindings(const std::string& format, const std::vector<CheckedFile>& files) {
  if (format == "json") return vifanalysis::WriteFindingsAsJson(files, Write);
  if (format == "sarif") return WriteFindingsAsSarif(files);
  WriteFindingsAsText(files);
}

/// Whether there is a finding of that severity or a higher one; "never" is none.
bool HasFindingOf(const std::string& severityName, const std::vector<CheckedFile>& files) {
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
    if (severityName == "never") return false;
    if (vifanalysis::CountFindings(files, severity) != 0) return true;
    if (severityName == SeverityName(severity)) return false;
  }
  return false;
}

Status RunCheck(const CheckSettings& settings) {
  RequireCodes("--only", settings.options.only);
  RequireCodes("--except", settings.options.except);
  const std::vector<CheckedFile> files = CheckAll(settings);
  WriteFindings(settings.format, files);
  return HasFindingOf(settings.failOn, files) ? kNegative : kDone;
}

void AddCodesOption(CLI::App& command, const char* name, std::vector<std::string>& codes, const char* description) {
  command.add_option(name, codes, description)
      ->delimiter(',')
      ->allow_extra_args(false)
      ->type_name(kFindingCodes)
      ->option_text("CODE,...");
}

void AddOptions(CLI::App& command, CheckSettings& settings) {
  AddFormat(command, settings.format, "The output format: text (the default), json or sarif",
            {"text", "json", "sarif"});
  command.add_flag("--notes", settings.options.notes, "Print notes, too");
  AddCodesOption(command, "--only", settings.options.only, "Print only findings with these codes, notes included");
  AddCodesOption(command, "--except", settings.options.except, "Print no findings with these codes");
  AddChoice(command, "--fail-on", settings.failOn,
            "The lowest severity that makes the exit status 1: error (the default), warning, note or never",
            {"error", "warning", "note", "never"})
      ->option_text("SEVERITY");
  command
      .add_option("--baseline", settings.baseline,
                  "Leave out the findings of an earlier run, whose JSON output is in this file; lines may have moved")
      ->type_name(kJsonFile)
      ->option_text("JSON");
  AddSchemasOption(command);
  command.add_option("FILE", settings.files, "The files, text (.txt) or XML (.xml)")
      ->required()
      ->type_name(kVifFile)
      ->option_text("...");
}

}  // namespace

void AddCheckCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("check", kDescription);
  command->footer(kFooter + CodeList() + kRestOfFooter);
  command->group("Commands");
  const auto settings = std::make_shared<CheckSettings>();
  AddOptions(*command, *settings);
  command->callback([settings, &status] { status = RunCheck(*settings); });
}

}  // namespace cli
