#include "Columns.h"
#include "Command.h"
#include "FieldSource.h"
#include "Output.h"
#include "SchemasOption.h"
#include "Style.h"
#include "Values.h"

#include <analysis/Edition.h>
#include <analysis/FieldMeaning.h>
#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>
#include <analysis/Text.h>
#include <CLI/CLI.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string_view>

namespace cli {

using vifanalysis::DescribePdo;
using vifanalysis::Edition;
using vifanalysis::EditionNamedBy;
using vifanalysis::FieldMeaning;
using vifanalysis::IsUsed;
using vifanalysis::LocationName;
using vifanalysis::MeaningOf;
using vifanalysis::NumberText;
using vifanalysis::PdoContext;
using vifanalysis::PowerProfile;
using vifanalysis::Printable;

namespace {

constexpr const char* kDescription = "Show a readable summary";

constexpr const char* kFooter =
    "Shows the header, the product with its USB4 routers and their PCIe endpoints, and each component with its own "
    "fields, its source and sink PDOs in volts, amperes and watts, and its SVIDs and modes. '?' stands for what the "
    "file leaves open, such as the voltage of a PDO without a supply type.\n"
    "\n"
    "A text in parentheses is not the file's: it is what the format says about a value that the file does not "
    "describe, or the number in its unit. \"uncertain\" marks what is concluded from few sources.\n"
    "\n"
    "On a terminal, headings are bold and texts in parentheses dimmed, unless NO_COLOR is set.\n"
    "\n"
    "Examples:\n"
    "  vif show charger.txt\n"
    "  vif show port0.txt port1.txt | less\n"
    "\n"
    "Exit status: 0 if all files load; 2 if one does not.";

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

bool IsDescribed(const CVIFField& field) {
  const std::string_view description = field.Description();
  return !description.empty() && description != field.Value();
}

/// "(Provider Only)", for a field that the file does not describe; empty when there is nothing to say.
std::string OurDescription(const CVIFField& field, const PdoContext& context) {
  if (IsDescribed(field)) return {};
  const FieldMeaning meaning = MeaningOf(field, context);
  if (meaning.text.empty()) return {};
  return '(' + meaning.text + (meaning.isUncertain ? ", uncertain)" : ")");
}

/// Name, value and, if it differs from the value, the description.
void WriteFields(size_t depth, const FieldPointers& fields, const Edition& edition) {
  PdoContext context;
  context.edition = edition;
  CColumns columns(depth * kIndent);
  for (const CVIFField* field : fields) {
    const std::string ours = OurDescription(*field, context);
    const std::string description = IsDescribed(*field) ? Printable(field->Description()) : ours;
    columns.Add({Printable(field->Name()), Printable(field->Value()), description},
                ours.empty() ? CellStyle::Plain : CellStyle::Dimmed);
  }
  columns.Write();
}

std::string JoinFields(const FieldPointers& fields, const PdoContext& context) {
  std::string text;
  for (const CVIFField* field : fields) {
    if (!text.empty()) text += ", ";
    text += Printable(field->MakeOutputString().get());
    const std::string ours = OurDescription(*field, context);
    if (!ours.empty()) text += ' ' + ours;
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

void WritePdos(const std::string& heading, const Numbered& pdos, const Edition& edition) {
  if (pdos.empty()) return;
  WriteHeading(1, heading);
  CColumns table(2 * kIndent);
  table.Add({"PDO", "SUPPLY", "VOLTAGE", "CURRENT", "POWER", "FURTHER FIELDS"});
  for (const auto& [slot, pdo] : pdos) {
    const PowerProfile profile = DescribePdo(pdo->fields, edition);
    table.Add({NumberText(slot), profile.supply, profile.voltage, profile.current, profile.power,
               JoinFields(profile.others, profile.context)});
  }
  table.Write();
}

/// A group and all groups in it, each under a heading with its kind and number.
void WriteGroup(size_t depth, const VifIndex& slot, const Group& group, const Edition& edition) {
  WriteHeading(depth, LocationName(slot) + ' ' + NumberText(slot));
  WriteFields(depth + 1, group.fields, edition);
  for (const auto& [innerSlot, inner] : group.inner) WriteGroup(depth + 1, innerSlot, inner, edition);
}

void WriteGroups(const Numbered& groups, const Edition& edition) {
  for (const auto& [slot, group] : groups) WriteGroup(1, slot, *group, edition);
}

void WriteComponent(const VifIndex& slot, const Group& component, const Edition& edition) {
  Write("\n");
  WriteHeading(0, "Component " + NumberText(slot));
  WriteFields(1, component.fields, edition);
  WritePdos("Source PDOs", Select(component, eVifLocSrcPdo), edition);
  WritePdos("Sink PDOs", Select(component, eVifLocSnkPdo), edition);
  WriteGroups(Select(component, eVifLocSopSvid), edition);
  WriteGroups(Select(component, eVifLocCableSvid), edition);
}

void WriteProduct(const Group& product, const Edition& edition) {
  Write("\n");
  WriteHeading(0, "Product");
  WriteFields(1, product.fields, edition);
  WriteGroups(Select(product, eVifLocRouter), edition);
}

void WriteFile(const std::string& names, const Group& root, const Edition& edition) {
  WriteHeading(0, names);
  FieldPointers header = root.fields;
  for (const EVifLocation location : {eVifLocVif, eVifLocAppVersion}) {
    for (const auto& [slot, group] : Select(root, location)) {
      header.insert(header.end(), group->fields.begin(), group->fields.end());
    }
  }
  WriteFields(1, header, edition);
  for (const auto& [slot, product] : Select(root, eVifLocProduct)) WriteProduct(*product, edition);
  for (const auto& [slot, component] : Select(root, eVifLocComponent)) WriteComponent(slot, *component, edition);
}

void RunShow(const std::vector<std::string>& files) {
  const CVendorInfoFile vif = LoadFiles(files);
  const VifFieldList fields = vif.GetFields();
  std::string names;
  for (const std::string& file : files) names += (names.empty() ? "" : ", ") + Printable(file);
  WriteFile(names, MakeTree(*fields), EditionNamedBy(*fields).value_or(Edition{}));
}

}  // namespace

void AddShowCommand(CLI::App& app, Status& status) {
  CLI::App* command = app.add_subcommand("show", kDescription);
  command->footer(kFooter);
  command->group("Commands");
  const auto files = std::make_shared<std::vector<std::string>>();
  AddSchemasOption(*command);
  command->add_option("FILE", *files, "The files, text (.txt) or XML (.xml)")
      ->required()
      ->type_name(kVifFile)
      ->option_text("...");
  command->callback([files, &status] {
    RunShow(*files);
    status = kDone;
  });
}

}  // namespace cli
