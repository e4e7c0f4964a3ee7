#include "FormRules.h"
#include "GroupTree.h"
#include "KnownNames.h"
#include "Sentence.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace vifanalysis {

namespace {

/// What the application says of itself is a field in no group whose name no definition has to know.
bool IsApplicationDescription(const CVIFField& field) {
  return field.IndexCount() == 0 && std::string_view(field.Name()) == "Description";
}

bool IsInNumberedGroup(const VifFieldDef& definition) {
  return std::any_of(definition.locations.begin(), definition.locations.end(), IsNumberedByNames);
}

bool IsWhereItBelongs(const CVIFField& field, const VifFieldDef& definition) {
  for (std::size_t i = 0; i < definition.locations.size(); ++i) {
    if (std::get<0>(field.Indexes()[i]) != definition.locations[i]) return false;
  }
  return true;
}

}  // namespace

std::string UnknownNameMessage(std::string_view name) {
  const std::optional<std::string> nearest = NearestName(name);
  return "no definition knows the name " + Quoted(name) + (nearest ? "; the nearest one is " + Quoted(*nearest) : "");
}

void FindUnknownNames(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    if (FindDefinition(found.field.Name()) != nullptr || IsApplicationDescription(found.field)) continue;
    findings.push_back(About(found, code::kUnknownName, UnknownNameMessage(found.field.Name())));
  }
}

void FindMisplaced(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const VifFieldDef* definition = FindDefinition(found.field.Name());
    if (definition == nullptr) continue;
    const std::string place = PlaceText(*definition);  // empty for a name that is known, but in no group
    if (place.empty() || IsWhereItBelongs(found.field, *definition)) continue;
    findings.push_back(
        About(found, code::kMisplaced,
              NameAndPlace(found.field) + " belongs in " + place + "; a query for it there will not find it"));
  }
}

void FindTextsForGroups(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const std::string_view name = found.field.Name();
    if (!name.starts_with('$') || found.field.IndexCount() != 0) continue;
    const VifFieldDef* definition = FindDefinitionOfWritten(name.substr(1));
    if (definition == nullptr || !IsInNumberedGroup(*definition)) continue;
    findings.push_back(About(
        found, code::kTextInGroup,
        Quoted(name) + " is a text and so in no group; without '$' and quotes it is in " + PlaceText(*definition)));
  }
}

}  // namespace vifanalysis
