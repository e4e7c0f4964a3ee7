#include "FormRules.h"
#include "GroupTree.h"
#include "KnownNames.h"
#include "Sentence.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

/// The list elements of an XML file. One without items is read as a field of that name.
constexpr std::string_view kListNames[] = {"USB4RouterList", "PCIeEndpointList", "SrcPdoList",    "SnkPdoList",
                                           "SOPSVIDList",    "SOPSVIDModeList",  "CableSVIDList", "CableSVIDModeList"};

bool IsEmptyList(const CVIFField& field) {
  return std::find(std::begin(kListNames), std::end(kListNames), field.Name()) != std::end(kListNames);
}

/// The application's description of itself is a field in no group, under a name without a definition.
bool IsApplicationDescription(const CVIFField& field) {
  return field.IndexCount() == 0 && std::string_view(field.Name()) == "Description";
}

bool IsInNumberedGroup(const VifFieldDef& definition) {
  return std::any_of(definition.locations.begin(), definition.locations.end(), IsNumberedByNames);
}

bool IsInPlace(const CVIFField& field, const VifFieldDef& definition) {
  for (std::size_t i = 0; i < definition.locations.size(); ++i) {
    if (std::get<0>(field.Indexes()[i]) != definition.locations[i]) return false;
  }
  return true;
}

}  // namespace

std::string UnknownNameMessage(std::string_view name, NameStyle style) {
  std::string message = "unknown name " + Quoted(name);
  const std::vector<std::string> nearest = NearestNames(name, style);
  const char* separator = "; did you mean ";
  for (const std::string& candidate : nearest) {
    message.append(separator).append(Quoted(candidate));
    separator = " or ";
  }
  return nearest.empty() ? message : message + '?';
}

void FindUnknownNames(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const CVIFField& field = found.field;
    if (FindDefinition(field.Name()) != nullptr || IsEmptyList(field) || IsApplicationDescription(field)) continue;
    findings.push_back(About(found, code::kUnknownName, UnknownNameMessage(field.Name(), NameStyle::Xml)));
  }
}

void FindMisplaced(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const VifFieldDef* definition = FindDefinition(found.field.Name());
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
    const VifFieldDef* definition = FindDefinitionOfWritten(name.substr(1));
    if (definition == nullptr || !IsInNumberedGroup(*definition)) continue;
    findings.push_back(About(found, code::kTextInGroup,
                             Quoted(name) + " is a text and so in no group; without '$' and quotes it would be in " +
                                 PlaceText(*definition)));
  }
}

}  // namespace vifanalysis
