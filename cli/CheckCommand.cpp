#include "Command.h"
#include "FieldSource.h"
#include "FindingWriters.h"
#include "SchemasOption.h"

#include <analysis/Check.h>
#include <analysis/Rules.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <string_view>

namespace cli {

using vifanalysis::RuleInfo;
using vifanalysis::Severity;
using vifanalysis::SeverityName;

namespace {

struct CheckOptions {
  std::string format = "text";
  std::vector<std::string> files;
};

constexpr const char* kDescription = "Find mistakes";

constexpr const char* kFooter =
    "Checks each file on its own and prints all findings: errors, where something is lost or cannot be intended, and "
    "warnings, which are worth a look.\n"
    "\n"
    "Findings:\n";

constexpr const char* kRestOfFooter =
    "\n"
    "Formats:\n"
    "  text  one finding a line, FILE:LINE:COLUMN: error: MESSAGE [CODE], without a line or column that is not known, "
    "and a last line that counts the findings\n"
    "  json  one object with \"files\" and the counts \"errors\" and \"warnings\"; each file has \"file\", \"valid\" "
    "(it has "
    "no errors) and \"findings\"; each finding has \"severity\", \"code\", \"line\", \"column\" and \"element\" (null "
    "if not "
    "known) and \"message\"\n"
    "\n"
    "Examples:\n"
    "  vif check charger.txt\n"
    "  vif check --format json port0.xml port1.xml\n"
    "\n"
    "Exit status: 0 if no file has errors, whatever the warnings; 1 if one has; 2, without findings, if one cannot be "
    "checked.";

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

CheckedFile Check(const std::string& fileName) {
  CheckedFile checked = {fileName, {}};
  ReadFile(fileName, [&] { checked.findings = vifanalysis::CheckFile(PathOf(fileName)); });
  return checked;
}

Status RunCheck(const CheckOptions& options) {
  std::vector<CheckedFile> files;
  files.reserve(options.files.size());
  for (const std::string& file : options.files) files.push_back(Check(file));
  if (options.format == "json") {
    WriteFindingsAsJson(files);
  } else {
    WriteFindingsAsText(files);
  }
  return CountFindings(files, Severity::Error) == 0 ? kDone : kNegative;
}

}  // namespace

void AddCheckCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("check", kDescription);
  command->footer(kFooter + CodeList() + kRestOfFooter);
  command->group("Commands");
  const auto options = std::make_shared<CheckOptions>();
  command->add_option("--format", options->format, "The output format: text (the default) or json")
      ->check(CLI::IsMember({"text", "json"}).description(""))
      ->option_text("FORMAT");
  AddSchemasOption(*command);
  command->add_option("FILE", options->files, "The files, text (.txt) or XML (.xml)")->required()->option_text("...");
  command->callback([options, &status] { status = RunCheck(*options); });
}

}  // namespace cli
