#include "Command.h"
#include "DifferenceWriters.h"
#include "FieldSource.h"
#include "Number.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Values.h"

#include <analysis/Differences.h>
#include <CLI/CLI.hpp>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace cli {

namespace {

struct DiffSettings {
  std::string format = "text";
  vifanalysis::CompareOptions options;
  bool ports = false;
  std::vector<std::string> components;
  std::vector<std::string> files;
};

constexpr const char* kDescription = "Compare two VIFs, or the ports of one";

constexpr const char* kSeeHelp = "(see 'vif diff --help')";

constexpr const char* kFooter =
    "Compares by meaning: 0x64 equals 100, $Vendor_Name of a text file is Vendor_Name of an XML file, and older names "
    "of a field are the newer ones. The order of fields does not count, and neither do descriptions and comments, "
    "unless --descriptions asks for them. PDOs, SVIDs, modes, routers, endpoints and components are aligned first, so "
    "that one more is one difference. Findings of 'vif check' that only one file has come last.\n"
    "\n"
    "With --ports, compares each component with the one among the earlier components of the same kind (PD role, Type-C "
    "state machine, connector, USB4) that it is most like. What is a port's own, such as its label and number, is left "
    "out.\n"
    "\n"
    "Formats:\n"
    "  text   one difference a line by place, with units: Source PDO 2: voltage 9 V \u2192 12 V (180 \u2192 240)\n"
    "  json   one object with \"files\", \"same\", \"differences\", \"groups\" and \"findings\"; each difference has "
    "\"kind\" (changed, added or removed), \"name\", \"indexes\", \"old\", \"new\" and \"place\"\n"
    "\n"
    "Examples:\n"
    "  vif diff passed.txt revised.xml\n"
    "  vif diff --ports laptop.xml\n"
    "  vif diff --ports --component 1 --component 3 laptop.xml\n"
    "\n"
    "Exit status: 0 if they mean the same; 1 if they differ; 2 if they cannot be compared.";

Status RunFiles(const DiffSettings& settings) {
  FileComparison comparison;
  comparison.before = settings.files.front();
  comparison.after = settings.files.back();
  {
    const CVendorInfoFile before = LoadFiles({comparison.before});
    const CVendorInfoFile after = LoadFiles({comparison.after});
    comparison.differences = vifanalysis::Compare(before.Fields(), after.Fields(), settings.options);
  }
  comparison.findings =
      vifanalysis::CompareFindings(FindingsIn(comparison.before), FindingsIn(comparison.after), comparison.differences);
  if (settings.format == "json") {
    vifanalysis::WriteComparisonAsJson(comparison, Write);
  } else {
    WriteComparisonAsText(comparison, settings.options.descriptions);
  }
  return comparison.differences.IsEmpty() ? kDone : kNegative;
}

std::uint64_t ComponentNumber(const std::string& text) {
  const std::optional<std::uint64_t> number = ParseNumber(text);
  if (!number) throw Failure("--component takes the number of a component, not '" + text + "' " + kSeeHelp);
  return *number;
}

std::vector<vifanalysis::PortComparison> ComparePorts(const CVendorInfoFile& vif, const DiffSettings& settings) {
  if (settings.components.empty()) return vifanalysis::ComparePorts(vif.Fields(), settings.options);
  const std::uint64_t other = ComponentNumber(settings.components.front());
  const std::uint64_t component = ComponentNumber(settings.components.back());
  try {
    return {vifanalysis::ComparePorts(vif.Fields(), other, component, settings.options)};
  } catch (const std::out_of_range& error) {
    throw Failure(settings.files.front() + ": " + error.what());
  }
}

std::size_t CountComponents(const CVendorInfoFile& vif) {
  std::set<std::uint64_t> numbers;
  for (const CVIFField& field : vif.Fields()) {
    if (field.HasIndex(eVifLocComponent)) numbers.insert(field.Index(eVifLocComponent));
  }
  return numbers.size();
}

Status RunPorts(const DiffSettings& settings) {
  const CVendorInfoFile vif = LoadFiles({settings.files.front()});
  const FilePorts ports = {settings.files.front(), CountComponents(vif), ComparePorts(vif, settings)};
  if (settings.format == "json") {
    vifanalysis::WritePortsAsJson(ports, Write);
  } else {
    WritePortsAsText(ports, settings.options.descriptions);
  }
  return vifanalysis::AreSame(ports) ? kDone : kNegative;
}

/// \throws Failure for options and files that do not go together
void RequireValidCombination(const DiffSettings& settings) {
  const std::string given = std::to_string(settings.files.size()) + (settings.files.size() == 1 ? " is" : " are");
  const std::string end = given + " given " + kSeeHelp;
  if (settings.ports && settings.files.size() != 1) throw Failure("--ports compares the ports of one file; " + end);
  if (!settings.ports && settings.files.size() != 2) throw Failure("vif diff compares two files; " + end);
  if (settings.components.empty()) return;
  if (!settings.ports) throw Failure(std::string("--component chooses ports, which needs --ports ") + kSeeHelp);
  if (settings.components.size() != 2) {
    throw Failure(std::string("--component must be given twice, for the two ports to compare ") + kSeeHelp);
  }
  for (const std::string& component : settings.components) ComponentNumber(component);
}

}  // namespace

void AddDiffCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("diff", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto settings = std::make_shared<DiffSettings>();
  AddFormat(*command, settings->format, "The output format: text (the default) or json", {"text", "json"});
  command->add_flag("--descriptions", settings->options.descriptions, "Compare descriptions and comments, too");
  command->add_flag("--ports", settings->ports, "Compare the ports of one file");
  command->add_option("--component", settings->components, "With --ports, twice: the components to compare")
      ->allow_extra_args(false)
      ->type_name(kNumber)
      ->option_text("N");
  AddSchemasOption(*command);
  command->add_option("FILE", settings->files, "The two files, text (.txt) or XML (.xml)")
      ->required()
      ->type_name(kVifFile)
      ->option_text("...");
  command->callback([settings, &status] {
    RequireValidCombination(*settings);
    status = settings->ports ? RunPorts(*settings) : RunFiles(*settings);
  });
}

}  // namespace cli
