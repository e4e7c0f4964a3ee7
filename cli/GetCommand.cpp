#include "Command.h"
#include "FieldSource.h"
#include "Number.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Values.h"

#include <BaseUtilities/Exceptions.h>
#include <analysis/FieldText.h>
#include <analysis/Text.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <regex>
#include <string_view>

namespace cli {

using vifanalysis::HasNumber;
using vifanalysis::LocationText;
using vifanalysis::Printable;

namespace {

using Query = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

constexpr std::string_view kAny = "any";

struct LocationOption {
  const char* name;
  EVifLocation location;
  const char* help;
};

constexpr LocationOption kLocationOptions[] = {
    {"--component", eVifLocComponent, "In this component"},
    {"--router", eVifLocRouter, "In this USB4 router"},
    {"--endpoint", eVifLocRouterPcie, "In this PCIe endpoint of a router"},
    {"--src-pdo", eVifLocSrcPdo, "In this source PDO"},
    {"--snk-pdo", eVifLocSnkPdo, "In this sink PDO"},
    {"--sop-svid", eVifLocSopSvid, "In this SOP SVID"},
    {"--sop-mode", eVifLocSopSvidMode, "In this mode of an SOP SVID"},
    {"--cable-svid", eVifLocCableSvid, "In this cable SVID"},
    {"--cable-mode", eVifLocCableSvidMode, "In this mode of a cable SVID"},
};

struct GetOptions {
  std::array<std::string, std::size(kLocationOptions)> numbers;  // empty where an option is not given
  bool asNumber = false;
  bool withName = false;
  bool unique = false;
  std::string file;
  std::string pattern;
};

constexpr const char* kDescription = "Print the values of fields by name and place";

constexpr const char* kFooter =
    "PATTERN is a regular expression (ECMAScript) that must match the whole name, in any letter case. Without it, or "
    "if "
    "it is empty, all names match.\n"
    "\n"
    "Up to three location options select the groups that the field is in. Each takes a number; without one, or with "
    "'any', all numbers match. Components, PDOs, SVIDs, modes and endpoints are numbered from 1, routers from 0. Put "
    "'--' before a FILE whose name is a number.\n"
    "\n"
    "Examples:\n"
    "  vif get --component 1 --src-pdo 2 --number charger.txt Src_PDO_Voltage\n"
    "  vif get --snk-pdo any --with-name tablet.txt 'Snk_PDO_.*'\n"
    "  vif get --unique tablet.txt '.*Vendor_Name'\n"
    "\n"
    "Exit status: 0 if a field matches; 1 if none does, if --unique finds several, or if --number finds a field "
    "without "
    "a number, for which it prints '-'; 2 on failure.";

std::uint64_t LocationNumber(const LocationOption& option, const std::string& text) {
  if (text == kAny) return CVIFField::INDEX_NOT_SPECIFIED;
  const std::optional<std::uint64_t> number = ParseNumber(text);
  if (!number) throw Failure(std::string(option.name) + " takes a number or 'any', not '" + text + "'");
  return *number;
}

Query MakeQuery(const GetOptions& options) {
  Query query;
  query.fill(CVIFField::UNSPECIFIED_INDEX);
  size_t used = 0;
  for (size_t i = 0; i < options.numbers.size(); ++i) {
    if (options.numbers[i].empty()) continue;
    if (used == query.size()) throw Failure("at most three location options can be given (see 'vif get --help')");
    query[used++] = {kLocationOptions[i].location, LocationNumber(kLocationOptions[i], options.numbers[i])};
  }
  return query;
}

/// The library compiles a pattern only if a field is in the right place; here an invalid one is always an error.
void RequireSoundPattern(const std::string& pattern) {
  try {
    CVIFField().Match(pattern.c_str(),
                      {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX});
  } catch (const std::regex_error& error) {
    throw Failure("the pattern '" + pattern + "' cannot be used: " + error.what());
  }
}

VifFieldList Find(const CVendorInfoFile& vif, const GetOptions& options, const Query& query) {
  if (!options.unique) return vif.GetFields(options.pattern.c_str(), query);
  try {
    const std::vector<CVIFField> one = {vif.GetUniqueField(options.pattern.c_str(), query)};
    return CVendorInfoFile(one).GetFields();
  } catch (const CZoRunTimeException& error) {
    throw NegativeResult(error.what());
  }
}

std::string ValueText(const CVIFField& field, bool asNumber) {
  if (!asNumber) return Printable(field.Value());
  return HasNumber(field) ? std::to_string(field.GetULongNumericValue()) : "-";
}

Status RunGet(const GetOptions& options) {
  const Query query = MakeQuery(options);
  RequireSoundPattern(options.pattern);
  const CVendorInfoFile vif = LoadFiles({options.file});
  const VifFieldList fields = Find(vif, options, query);
  if (fields->empty()) throw NegativeResult("no field in \"" + options.file + "\" matches");
  bool complete = true;
  for (const CVIFField& field : *fields) {
    if (options.withName) Write(Printable(field.Name()) + '\t' + LocationText(field) + '\t');
    Write(ValueText(field, options.asNumber) + '\n');
    complete = complete && (!options.asNumber || HasNumber(field));
  }
  return complete ? kDone : kNegative;
}

bool IsLocationOption(std::string_view argument) {
  return std::any_of(std::begin(kLocationOptions), std::end(kLocationOptions),
                     [&](const LocationOption& option) { return argument == option.name; });
}

}  // namespace

std::vector<std::string> CompleteLocationOptions(std::vector<std::string> arguments) {
  if (arguments.empty() || arguments.front() != "get") return arguments;
  std::vector<std::string> completed;
  for (size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--") {
      completed.insert(completed.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i), arguments.end());
      break;
    }
    completed.push_back(arguments[i]);
    if (arguments[i].ends_with('=') &&
        IsLocationOption(std::string_view(arguments[i]).substr(0, arguments[i].size() - 1))) {
      throw Failure(arguments[i] + " takes a number or 'any' (see 'vif get --help')");
    }
    if (!IsLocationOption(arguments[i])) continue;
    const bool hasNumber =
        i + 1 < arguments.size() && (arguments[i + 1] == kAny || ParseNumber(arguments[i + 1]).has_value());
    completed.back() += '=' + (hasNumber ? arguments[++i] : std::string(kAny));
  }
  return completed;
}

void AddGetCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("get", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto options = std::make_shared<GetOptions>();
  for (size_t i = 0; i < options->numbers.size(); ++i) {
    command->add_option(kLocationOptions[i].name, options->numbers[i], kLocationOptions[i].help)
        ->type_name(kNumberOrAny)
        ->option_text("[N]")
        ->group("Location options");
  }
  command->add_flag("--number", options->asNumber, "Print each value as a decimal number");
  command->add_flag("--with-name", options->withName, "Print name, place and value, separated by tabs");
  command->add_flag("--unique", options->unique, "Require exactly one matching field");
  AddSchemasOption(*command);
  command->add_option("FILE", options->file, "The file, text (.txt) or XML (.xml)")
      ->required()
      ->type_name(kVifFile)
      ->option_text(" ");
  command->add_option("PATTERN", options->pattern, "The names to match")->type_name(kFieldName)->option_text(" ");
  command->callback([options, &status] { status = RunGet(*options); });
}

}  // namespace cli
