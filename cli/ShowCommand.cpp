#include "Columns.h"
#include "Command.h"
#include "FieldSource.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Style.h"

#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>
#include <analysis/Text.h>
#include <CLI/CLI.hpp>

#include <map>
#include <memory>

namespace cli {

using vifanalysis::DescribePdo;
using vifanalysis::IsUsed;
using vifanalysis::LocationName;
using vifanalysis::NumberText;
using vifanalysis::PowerProfile;
using vifanalysis::Printable;

namespace {

constexpr const char* kDescription = "Show a readable summary";

constexpr const char* kFooter =
    "Shows the header, the product with its USB4 routers and their PCIe endpoints, and each component with its own "
    "fields, its source and sink PDOs in volts, amperes and watts, and its SVIDs and modes. '?' stands for what the "
    "file "
    "leaves open, such as the voltage of a PDO without a supply type.\n"
    "\n"
    "Headings are bold on a terminal, unless NO_COLOR is set.\n"
    "\n"
    "Examples:\n"
    "  vif show charger.txt\n"
    "  vif show port0.txt port1.txt | less\n"
    "\n"
    "Exit status: 0 if all files load, 2 if one does not.";

using FieldPointers = std::vector<const CVIFField*>;

/// The fields of one group, and the groups inside it in the order of their numbers.
struct Group {
  FieldPointers fields;
  std::map<VifIndex, Group> inner;
};

/// The tree of groups that the location slots describe. It borrows the fields.
Group MakeTree(const std::vector<CVIFField>& fields) {
  Group root;
  for (const CVIFField& field : fields) {
    Group* group = &root;
    for (const VifIndex& slot : field.Indexes()) {
      if (IsUsed(slot)) group = &group->inner[slot];
    }
    group->fields.push_back(&field);
  }
  return root;
}

constexpr size_t kIndent = 2;

void WriteHeading(size_t depth, const std::string& text) {
  Write(std::string(depth * kIndent, ' ') + Heading(text) + '\n');
}

/// Name, value and, if it differs from the value, the description.
void WriteFields(size_t depth, const FieldPointers& fields) {
  CColumns columns(depth * kIndent);
  for (const CVIFField* field : fields) {
    const std::string value = Printable(field->Value());
    const std::string description = Printable(field->Description());
    columns.Add({Printable(field->Name()), value, description != value ? description : std::string()});
  }
  columns.Write();
}

std::string JoinFields(const FieldPointers& fields) {
  std::string text;
  for (const CVIFField* field : fields) {
    if (!text.empty()) text += ", ";
    text += Printable(field->MakeOutputString().get());
  }
  return text;
}

using Numbered = std::vector<std::pair<VifIndex, const Group*>>;

/// The groups of one kind.
Numbered Select(const Group& group, EVifLocation location) {
  Numbered selected;
  for (const auto& [slot, inner] : group.inner) {
    if (std::get<0>(slot) == location) selected.emplace_back(slot, &inner);
  }
  return selected;
}

void WritePdos(const std::string& heading, const Numbered& pdos) {
  if (pdos.empty()) return;
  WriteHeading(1, heading);
  CColumns table(2 * kIndent);
  table.Add({"PDO", "SUPPLY", "VOLTAGE", "CURRENT", "POWER", "FURTHER FIELDS"});
  for (const auto& [slot, pdo] : pdos) {
    const PowerProfile profile = DescribePdo(pdo->fields);
    table.Add({NumberText(slot), profile.supply, profile.voltage, profile.current, profile.power,
               JoinFields(profile.others)});
  }
  table.Write();
}

/// A group and all groups in it, each under a heading with its kind and number.
void WriteGroup(size_t depth, const VifIndex& slot, const Group& group) {
  WriteHeading(depth, LocationName(slot) + ' ' + NumberText(slot));
  WriteFields(depth + 1, group.fields);
  for (const auto& [innerSlot, inner] : group.inner) WriteGroup(depth + 1, innerSlot, inner);
}

void WriteGroups(const Numbered& groups) {
  for (const auto& [slot, group] : groups) WriteGroup(1, slot, *group);
}

void WriteComponent(const VifIndex& slot, const Group& component) {
  Write("\n");
  WriteHeading(0, "Component " + NumberText(slot));
  WriteFields(1, component.fields);
  WritePdos("Source PDOs", Select(component, eVifLocSrcPdo));
  WritePdos("Sink PDOs", Select(component, eVifLocSnkPdo));
  WriteGroups(Select(component, eVifLocSopSvid));
  WriteGroups(Select(component, eVifLocCableSvid));
}

void WriteProduct(const Group& product) {
  Write("\n");
  WriteHeading(0, "Product");
  WriteFields(1, product.fields);
  WriteGroups(Select(product, eVifLocRouter));
}

void WriteFile(const std::string& names, const Group& root) {
  WriteHeading(0, names);
  FieldPointers header = root.fields;
  for (const EVifLocation location : {eVifLocVif, eVifLocAppVersion}) {
    for (const auto& [slot, group] : Select(root, location)) {
      header.insert(header.end(), group->fields.begin(), group->fields.end());
    }
  }
  WriteFields(1, header);
  for (const auto& [slot, product] : Select(root, eVifLocProduct)) WriteProduct(*product);
  for (const auto& [slot, component] : Select(root, eVifLocComponent)) WriteComponent(slot, *component);
}

void RunShow(const std::vector<std::string>& files) {
  const CVendorInfoFile vif = LoadFiles(files);
  const VifFieldList fields = vif.GetFields();
  std::string names;
  for (const std::string& file : files) names += (names.empty() ? "" : ", ") + Printable(file);
  WriteFile(names, MakeTree(*fields));
}

}  // namespace

void AddShowCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("show", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto files = std::make_shared<std::vector<std::string>>();
  AddSchemasOption(*command);
  command->add_option("FILE", *files, "The files, text (.txt) or XML (.xml)")->required()->option_text("...");
  command->callback([files, &status] {
    RunShow(*files);
    status = kDone;
  });
}

}  // namespace cli
