// The `vif` command.
#include "Command.h"
#include "HelpFormatter.h"
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
#include <memory>
#include <new>

namespace {

using cli::kDone;
using cli::kFailed;
using cli::Status;

constexpr const char* kDescription =
    "Reads Vendor Info Files (VIFs), in which the vendor of a USB Type-C, USB Power Delivery or USB4 product declares "
    "its capabilities for compliance testing.";

constexpr const char* kFooter =
    "'vif COMMAND --help' describes a command, with examples.\n"
    "\n"
    "Exit status: 0 done; 1 ran, but found no match, problems or differences; 2 failed, with one line on standard "
    "error that says why.";

Status Fail(std::string_view reason, Status status = kFailed) {
  std::fprintf(stderr, "vif: %s\n", vifanalysis::Printable(reason).c_str());
  return status;
}

std::string UsageProblem(const CLI::App& app, const CLI::ParseError& error) {
  if (!app.get_subcommands().empty()) return error.what();
  const std::vector<std::string> unknown = app.remaining();
  return unknown.empty() ? "no command given" : "unknown command or option '" + unknown.front() + "'";
}

Status Run(int argc, char** argv) {
  Status status = kFailed;
  CLI::App app(kDescription, "vif");
  app.formatter(std::make_shared<cli::CHelpFormatter>());
  app.footer(kFooter);
  app.set_version_flag("--version", "vif " VIF_VERSION, "Print the version and exit");
  app.set_help_flag("-h,--help", "Print this help and exit");
  app.allow_windows_style_options(false);  // a path may begin with a slash
  app.require_subcommand(1);
  cli::AddListCommand(app, status);
  cli::AddGetCommand(app, status);
  cli::AddShowCommand(app, status);
  cli::AddCheckCommand(app, status);
  cli::AddExplainCommand(app, status);
  cli::AddDiffCommand(app, status);
  cli::AddReportCommand(app, status);
  try {
    std::vector<std::string> arguments = cli::CompleteLocationOptions({argv + 1, argv + argc});
    std::reverse(arguments.begin(), arguments.end());  // CLI11 takes them from the end
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

/// Builds no text, because there is no memory for it.
Status FailWithoutMemory() {
  std::fputs("vif: out of memory\n", stderr);
  return kFailed;
}

/// Ends the process when memory runs out. An exception might get lost: streams swallow it and cut their text, and CLI11
/// copies texts in functions that must not throw.
[[noreturn]] void EndWithoutMemory() { std::_Exit(FailWithoutMemory()); }

}  // namespace

int main(int argc, char** argv) {
  std::set_new_handler(EndWithoutMemory);
  std::setlocale(LC_CTYPE, "C.UTF-8");  // for CharacterWidth; the library uses the C++ locale, not this one
  try {
    cli::PrepareOutput();
    const CComApartment apartment;
    return Run(argc, argv);
  } catch (const cli::NegativeResult& result) {
    return Fail(result.what(), cli::kNegative);
  } catch (const std::bad_alloc&) {  // from code that does not allocate with `new`
    return FailWithoutMemory();
  } catch (const std::exception& error) {
    return Fail(error.what());
  } catch (const _com_error&) {
    return Fail("COM cannot be used");
  }
}
