#include "FormRules.h"
#include "GroupTree.h"
#include "KnownNames.h"
#include "Sentence.h"

#include <algorithm>
#include <string_view>

namespace vifanalysis {

namespace {

bool IsInNumberedGroup(const FieldInfo& definition) {
  return std::any_of(definition.locations.begin(), definition.locations.end(), IsNumberedByNames);
}

bool IsInPlace(const CVIFField& field, const FieldInfo& definition) {
  for (std::size_t i = 0; i < definition.locations.size(); ++i) {
    if (std::get<0>(field.Indexes()[i]) != definition.locations[i]) return false;
  }
  return true;
}

}  // namespace

void FindMisplaced(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const FieldInfo* definition = FindDefined(found.field.Name());
    if (definition == nullptr) continue;
    const std::string place = PlaceText(*definition);  // empty for a known name that is in no group
    if (place.empty() || IsInPlace(found.field, *definition)) continue;
    findings.push_back(About(found, code::kMisplaced,
                             NameAndPlace(found.field) + " belongs in " + place + ", where a query will not find it"));
  }
}

void FindTextsForGroups(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const std::string_view name = found.field.Name();
    if (!name.starts_with('$') || found.field.IndexCount() != 0) continue;
    const FieldInfo* definition = FindDefinedAsWritten(name.substr(1));
    if (definition == nullptr || !IsInNumberedGroup(*definition)) continue;
    findings.push_back(About(found, code::kTextInGroup,
                             Quoted(name) + " is a text and so in no group; without '$' and quotes it would be in " +
                                 PlaceText(*definition)));
  }
}

}  // namespace vifanalysis
