#include "Options.h"

#include <BaseUtilities/PathText.h>

#include <filesystem>
#include <string_view>
#include <system_error>

namespace host {

const char* const kUsage =
    "usage: reference_host [--log FILE] [--library FILE] [DIR | --vif FILE]\n"
    "\n"
    "Runs compliance checks on a Vendor Info File.\n"
    "\n"
    "  DIR             let the operator choose a VIF in DIR (default: the current directory)\n"
    "  --vif FILE      use this VIF, without asking\n"
    "  --log FILE      append the log to this file (default: suite.log)\n"
    "  --library FILE  load this library (default: " VIF_LIBRARY
    ")\n"
    "  --help          show this\n"
    "\n"
    "Exit status: 0 no check failed, 1 checks failed, 2 the checks could not be run.\n";

namespace {

/// The place for the option's value; null if there is no such option.
std::string* FindOption(Options& options, std::string_view name) {
  if (name == "--vif") return &options.vif;
  if (name == "--log") return &options.log;
  if (name == "--library") return &options.library;
  return nullptr;
}

void Check(const Options& options) {
  if (options.directory.empty()) return;
  if (!options.vif.empty()) throw CUsageError("--vif and DIR cannot be combined");
  std::error_code ignored;
  if (!std::filesystem::is_directory(PathFromUtf8(options.directory), ignored)) {
    throw CUsageError("there is no directory " + options.directory);
  }
}

}  // namespace

Options ParseOptions(std::span<char* const> arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string argument = arguments[i];
    if (argument == "--help") {
      options.help = true;
      return options;
    }
    if (std::string* value = FindOption(options, argument)) {
      if (++i == arguments.size() || *arguments[i] == '\0') throw CUsageError(argument + " needs a FILE");
      *value = arguments[i];
    } else if (argument.empty() || argument.front() == '-') {
      throw CUsageError("unknown option '" + argument + "'");
    } else if (!options.directory.empty()) {
      throw CUsageError("there can be only one DIR");
    } else {
      options.directory = argument;
    }
  }
  Check(options);
  return options;
}

}  // namespace host
