#include "Command.h"
#include "FieldSource.h"
#include "SchemasOption.h"
#include "Writers.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace cli {

namespace {

struct ListOptions {
  std::string format = "table";
  std::vector<std::string> files;
};

constexpr const char* kDescription = "Print the fields of one or more Vendor Info Files";

constexpr const char* kFooter =
    "The files are loaded into one object, in the order given: components are numbered on from\n"
    "file to file, and the fields appear in the order in which they stand in the files.\n"
    "\n"
    "Formats:\n"
    "  table  one field a line, in aligned columns, cut to the width of a terminal; text\n"
    "         values stand in double quotes, numeric ones do not; '?' is an index that the\n"
    "         file does not give\n"
    "  json   one object with \"files\", \"componentCount\" and \"fields\"; each field has \"name\",\n"
    "         \"value\", \"description\", \"numeric\", \"number\" (null when the value is not a number)\n"
    "         and \"indexes\", a list of \"location\" and \"index\", outermost group first\n"
    "  csv    the same as comma-separated values with a header line (RFC 4180)\n"
    "Bytes that are not UTF-8 are printed as U+FFFD.\n"
    "\n"
    "Examples:\n"
    "  vif list charger.txt\n"
    "  vif list --format json port0.txt port1.txt\n"
    "\n"
    "Exit status: 0 when all files were loaded, 2 when one could not be.";

void RunList(const ListOptions& options) {
  const CVendorInfoFile vif = LoadFiles(options.files);
  if (options.format == "json") {
    WriteJson(options.files, vif);
  } else if (options.format == "csv") {
    WriteCsv(vif);
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
  command->add_option("--format", options->format, "How to print them: table (the default), json or csv")
      ->check(CLI::IsMember({"table", "json", "csv"}).description(""))
      ->option_text("FORMAT");
  AddSchemasOption(*command);
  command->add_option("FILE", options->files, "The files, text (.txt) or XML (.xml)")->required()->option_text("...");
  command->callback([options, &status] {
    RunList(*options);
    status = kDone;
  });
}

}  // namespace cli
