#include "Command.h"
#include "FieldSource.h"
#include "FileOutput.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Values.h"

#include <BaseUtilities/PathText.h>
#include <analysis/Check.h>
#include <analysis/Report.h>
#include <CLI/CLI.hpp>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace cli {

namespace {

struct ReportSettings {
  std::optional<std::string> output;
  std::vector<std::string> files;
};

constexpr const char* kDescription = "Write an HTML page about a VIF, or about two";

constexpr const char* kFooter =
    "The page shows what the product is, each port with a picture of its power, its alternate modes, the USB4 routers, "
    "what 'vif check' finds, notes included, and all fields with what they mean. With two files, it shows them side by "
    "side, with the differences marked.\n"
    "\n"
    "The page is one file that makes no request, so it can be sent, stored and printed.\n"
    "\n"
    "Examples:\n"
    "  vif report -o charger.html charger.xml\n"
    "  vif report -o changes.html passed.txt revised.xml\n"
    "\n"
    "Exit status: 0 if the page was written; 2 if not.";

/// A file with what the report says about it.
struct LoadedFile {
  std::string name;
  CVendorInfoFile vif;
  std::vector<vifanalysis::Finding> findings;

  vifanalysis::ReportedFile Reported() const { return {name, vif.Fields(), findings}; }
};

LoadedFile Load(const std::string& fileName, const std::string& name) {
  vifanalysis::CheckOptions options;
  options.notes = true;
  return {name, LoadFiles({fileName}), FindingsIn(fileName, options)};
}

/// The name without its folders, which are of no interest to those to whom the page is sent.
std::string BaseName(const std::string& fileName) { return PathToUtf8(PathFromUtf8(fileName).filename()); }

std::string MakePage(const std::vector<std::string>& files) {
  const bool haveSameName = files.size() == 2 && BaseName(files.front()) == BaseName(files.back());
  const auto load = [&](const std::string& file) { return Load(file, haveSameName ? file : BaseName(file)); };
  const LoadedFile first = load(files.front());
  if (files.size() == 1) return vifanalysis::MakeReport(first.Reported());
  return vifanalysis::MakeReport(first.Reported(), load(files.back()).Reported());
}

void RunReport(const ReportSettings& settings) {
  if (settings.files.size() > 2) {
    throw Failure("vif report takes one file or two; " + std::to_string(settings.files.size()) +
                  " are given (see 'vif report --help')");
  }
  const std::string page = MakePage(settings.files);
  if (settings.output) {
    WriteFile(*settings.output, page, settings.files);
  } else {
    Write(page);
  }
}

}  // namespace

void AddReportCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("report", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto settings = std::make_shared<ReportSettings>();
  command->add_option("-o,--output", settings->output, "The file to write; standard output unless it is given")
      ->type_name(kNewFile)
      ->option_text("FILE");
  AddSchemasOption(*command);
  command->add_option("FILE", settings->files, "One file or two, text (.txt) or XML (.xml)")
      ->required()
      ->type_name(kVifFile)
      ->option_text("...");
  command->callback([settings, &status] {
    RunReport(*settings);
    status = kDone;
  });
}

}  // namespace cli
