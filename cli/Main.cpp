// The `vif` command.
#include "Application.h"
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
#include <memory>
#include <new>

namespace {

using cli::kDone;
using cli::kFailed;
using cli::MakeApplication;
using cli::Status;

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
  const std::unique_ptr<CLI::App> owned = MakeApplication(status);
  CLI::App& app = *owned;
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
