#include "Application.h"

#include "HelpFormatter.h"

#include <CLI/CLI.hpp>

namespace cli {

namespace {

constexpr const char* kDescription =
    "Reads Vendor Info Files (VIFs), in which the vendor of a USB Type-C, USB Power Delivery or USB4 product declares "
    "its capabilities for compliance testing.";

constexpr const char* kFooter =
    "'vif COMMAND --help' describes a command, with examples.\n"
    "\n"
    "Exit status: 0 done; 1 ran, but found no match, problems or differences; 2 failed, with one line on standard "
    "error that says why.";

}  // namespace

std::unique_ptr<CLI::App> MakeApplication(Status& status) {
  auto app = std::make_unique<CLI::App>(kDescription, "vif");
  app->formatter(std::make_shared<CHelpFormatter>());
  app->footer(kFooter);
  app->set_version_flag("--version", "vif " VIF_VERSION, "Print the version and exit");
  app->set_help_flag("-h,--help", "Print this help and exit");
  app->allow_windows_style_options(false);  // a path may begin with a slash
  app->require_subcommand(1);
  AddListCommand(*app, status);
  AddGetCommand(*app, status);
  AddShowCommand(*app, status);
  AddCheckCommand(*app, status);
  AddExplainCommand(*app, status);
  AddDiffCommand(*app, status);
  AddReportCommand(*app, status);
  return app;
}

}  // namespace cli
