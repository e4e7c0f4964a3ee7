// The command that makes the library visible.
#include "Command.h"
#include "Output.h"

#include <analysis/Text.h>
#include <msxml/ComApartment.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <new>

namespace {

using cli::kDone;
using cli::kFailed;
using cli::Status;

constexpr const char* kDescription =
    "Reads Vendor Info Files (VIFs): the declaration of a USB Type-C, USB Power Delivery or USB4\n"
    "product's capabilities that its vendor hands in for compliance testing.";

constexpr const char* kFooter =
    "'vif COMMAND --help' says more about a command, with examples.\n"
    "\n"
    "Exit status: 0 done; 1 looked and found wanting; 2 could not do it, with one line on\n"
    "standard error that says why.";

Status Fail(std::string_view reason, Status status = kFailed) {
  std::fprintf(stderr, "vif: %s\n", vifanalysis::Printable(reason).c_str());
  return status;
}

std::string UsageProblem(const CLI::App& app, const CLI::ParseError& error) {
  if (!app.get_subcommands().empty()) return error.what();
  const std::vector<std::string> unknown = app.remaining();
  return unknown.empty() ? "no command given" : "there is no command or option '" + unknown.front() + "'";
}

Status Run(int argc, char** argv) {
  Status status = kFailed;
  CLI::App app(kDescription, "vif");
  app.footer(kFooter);
  app.set_version_flag("--version", "vif " VIF_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.allow_windows_style_options(false);  // a path may begin with a slash on any system
  app.require_subcommand(1);
  app.get_formatter()->label("SUBCOMMAND", "COMMAND ...");
  cli::AddListCommand(app, status);
  cli::AddGetCommand(app, status);
  cli::AddShowCommand(app, status);
  cli::AddCheckCommand(app, status);
  try {
    std::vector<std::string> arguments = cli::CompleteLocationOptions({argv + 1, argv + argc});
    std::reverse(arguments.begin(), arguments.end());  // as CLI11 wants them
    app.parse(std::move(arguments));
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() != 0) return Fail(UsageProblem(app, error) + " (see 'vif --help')");
    app.exit(error);  // prints what was asked for: help or the version
    if (!std::cout.flush()) return Fail("cannot write the output");
    status = kDone;
  }
  cli::Flush();
  return status;
}

/// As it stands: there is no memory to make anything of it.
Status FailWithoutMemory() {
  std::fputs("vif: out of memory\n", stderr);
  return kFailed;
}

/// Ends the process where memory runs out. An exception would not always come through: streams keep it to themselves
/// and are cut, and CLI11 copies texts in functions that must not throw.
[[noreturn]] void EndWithoutMemory() { std::_Exit(FailWithoutMemory()); }

}  // namespace

int main(int argc, char** argv) {
  std::set_new_handler(EndWithoutMemory);
  std::setlocale(LC_CTYPE, "C.UTF-8");  // for the width of characters; the library asks the C++ locale, not this one
  try {
    cli::PrepareOutput();
    const CComApartment apartment;
    return Run(argc, argv);
  } catch (const cli::Wanting& finding) {
    return Fail(finding.what(), cli::kWanting);
  } catch (const std::bad_alloc&) {  // from what does not allocate by `new`
    return FailWithoutMemory();
  } catch (const std::exception& error) {
    return Fail(error.what());
  } catch (const _com_error&) {
    return Fail("COM cannot be used");
  }
}
