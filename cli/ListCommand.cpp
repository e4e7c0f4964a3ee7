#include "Command.h"
#include "FieldSource.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Values.h"
#include "Writers.h"

#include <analysis/Writers.h>
#include <CLI/CLI.hpp>

#include <memory>

namespace cli {

namespace {

struct ListOptions {
  std::string format = "table";
  std::vector<std::string> files;
};

constexpr const char* kDescription = "List all fields";

constexpr const char* kFooter =
    "Loads all files together, in the order given: component numbers continue from file to file. Prints the fields in "
    "the order of the files.\n"
    "\n"
    "Formats:\n"
    "  table  aligned columns, one field a line, cut to the width of a terminal; text values are in double quotes, "
    "numeric ones are not; '?' is an index that the file does not give\n"
    "  json   one object with \"files\", \"componentCount\" and \"fields\"; each field has \"name\", \"value\", "
    "\"description\", \"numeric\", \"number\" (null when the value is not a number) and \"indexes\", a list of "
    "\"location\" and \"index\", outermost group first\n"
    "  csv    the same as comma-separated values with a header line (RFC 4180)\n"
    "\n"
    "Bytes that are not UTF-8 are printed as U+FFFD.\n"
    "\n"
    "Examples:\n"
    "  vif list charger.txt\n"
    "  vif list --format json port0.txt port1.txt\n"
    "\n"
    "Exit status: 0 if all files load; 2 if one does not.";

void RunList(const ListOptions& options) {
  const CVendorInfoFile vif = LoadFiles(options.files);
  if (options.format == "json") {
    vifanalysis::WriteFieldsAsJson(options.files, vif.ComponentCount(), vif.Fields(), Write);
  } else if (options.format == "csv") {
    vifanalysis::WriteFieldsAsCsv(vif.Fields(), Write);
  } else {
    WriteTable(vif);
  }
}

}  // namespace

void AddListCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("list", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto options = std::make_shared<ListOptions>();
  AddFormat(*command, options->format, "The output format: table (the default), json or csv", {"table", "json", "csv"});
  AddSchemasOption(*command);
  command->add_option("FILE", options->files, "The files, text (.txt) or XML (.xml)")
      ->required()
      ->type_name(kVifFile)
      ->option_text("...");
  command->callback([options, &status] {
    RunList(*options);
    status = kDone;
  });
}

}  // namespace cli
