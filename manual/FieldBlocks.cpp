#include "FieldBlocks.h"

#include "Mdoc.h"

#include <ExplanationText.h>
#include <analysis/FieldExplanation.h>
#include <analysis/Vocabulary.h>

#include <stdexcept>
#include <string_view>

namespace manual {

namespace {

using vifanalysis::ExplainField;
using vifanalysis::FieldExplanation;

/// A fact with its label; nothing where there is no text.
std::string Fact(std::string_view label, std::string_view text) {
  if (text.empty()) return {};
  return ".It " + std::string(label) + '\n' + Paragraph(text);
}

std::string Values(const FieldExplanation& field) {
  if (field.values.empty() || field.type == "boolean") return {};
  std::string values = ".It values\n.Bl -tag -width 4n -compact\n";
  for (const vifanalysis::ExplainedValue& value : field.values) {
    values += ".It Li " + value.value + '\n' + Paragraph(value.text + cli::Mark(value.seen, value.confidence));
  }
  return values + ".El\n";
}

std::string Spellings(const FieldExplanation& field) {
  std::string spellings;
  for (const vifanalysis::ExplainedSpelling& spelling : field.spellings) {
    spellings += Fact("also", cli::SpellingText(spelling));
  }
  return spellings;
}

std::string Facts(const FieldExplanation& field) {
  const std::string facts = Fact("type", field.type) + Fact("unit", cli::UnitText(field)) +
                            Fact("editions", EditionsText(field)) + Values(field) + Spellings(field) +
                            Fact("findings", cli::CodesAbout(field.name));
  return facts.empty() ? facts : ".Bl -tag -width findings -compact\n" + facts + ".El\n";
}

std::string FieldItem(std::string_view name) {
  const std::optional<FieldExplanation> field = ExplainField(name);
  if (!field) throw std::runtime_error("no explanation of " + std::string(name));
  return ".It Sy " + Argument(field->name) + '\n' +
         Paragraph(Sentence(field->declares) + cli::Mark(true, field->confidence) + ' ' + field->note) + Facts(*field);
}

}  // namespace

std::string FieldLists() {
  std::string lists;
  for (const vifanalysis::FieldGroup& group : vifanalysis::FieldGroups()) {
    const std::string name = cli::GroupName(group.location);
    lists += ".Ss " + Arguments(name.empty() ? "In no group" : name) + "\n.Bl -tag -width Ds\n";
    for (const vifanalysis::FieldInfo* field : group.fields) lists += FieldItem(field->name);
    lists += ".El\n";
  }
  return lists;
}

}  // namespace manual
