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

constexpr const char* kDescription = "Say what is wrong with Vendor Info Files";

constexpr const char* kFooter =
    "Each file is checked on its own, and all findings are printed: errors, where something is\n"
    "lost or cannot be what was meant, and warnings, which are worth a look. Findings:\n";

constexpr const char* kRestOfFooter =
    "\n"
    "Formats:\n"
    "  text  FILE:LINE:COLUMN: error: what is wrong [code], one finding a line, with a last line\n"
    "        that counts them; the line or column is left out where there is none\n"
    "  json  one object with \"files\", \"errors\" and \"warnings\" (how many); each file has \"file\",\n"
    "        \"valid\" (no errors) and \"findings\", and each of those \"severity\", \"code\", \"line\",\n"
    "        \"column\" and \"element\" (null when there is none) and \"message\"\n"
    "\n"
    "Examples:\n"
    "  vif check charger.txt\n"
    "  vif check --format json port0.xml port1.xml\n"
    "\n"
    "Exit status: 0 when no file has an error, whatever the warnings; 1 when one has; 2 when one\n"
    "could not be checked, and then no findings are printed.";

/// The help's list of codes.
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
  return CountFindings(files, Severity::Error) == 0 ? kDone : kWanting;
}

}  // namespace

void AddCheckCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("check", kDescription);
  command->footer(kFooter + CodeList() + kRestOfFooter);
  command->group("Commands");
  const auto options = std::make_shared<CheckOptions>();
  command->add_option("--format", options->format, "How to print the findings: text (the default) or json")
      ->check(CLI::IsMember({"text", "json"}).description(""))
      ->option_text("FORMAT");
  AddSchemasOption(*command);
  command->add_option("FILE", options->files, "The files, text (.txt) or XML (.xml)")->required()->option_text("...");
  command->callback([options, &status] { status = RunCheck(*options); });
}

}  // namespace cli
