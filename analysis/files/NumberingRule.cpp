#include <analysis/FieldText.h>
#include "FormRules.h"
#include "Sentence.h"

#include <cstdint>

namespace vifanalysis {

namespace {

/// "SrcPdo 2 is" or "SrcPdo 2 to 5 are".
std::string Missing(const std::string& kind, std::uint64_t first, std::uint64_t last) {
  const std::string text = kind + ' ' + std::to_string(first);
  if (first == last) return text + " is";
  return text + (last - first == 1 ? " and " : " to ") + std::to_string(last) + " are";
}

/// \param groups all groups of that kind in one group, by number
void CheckNumbers(EVifLocation kind, const std::map<std::uint64_t, const FoundField*>& groups, Findings& findings) {
  const std::string name = GetVifLocInfo(kind).name;
  std::uint64_t expected = GetVifLocFirstIndex(kind);
  for (const auto& [number, found] : groups) {
    if (number == CVIFField::INDEX_NOT_SPECIFIED) continue;
    if (number < expected) {
      findings.push_back(
          About(*found, code::kNumberingGap, NameAndPlace(found->field) + ": groups of this kind are numbered from 1"));
      continue;
    }
    if (number > expected) {
      findings.push_back(
          About(*found, code::kNumberingGap,
                NameAndPlace(found->field) + " is there, but " + Missing(name, expected, number - 1) + " missing"));
    }
    expected = number + 1;
  }
}

/// The field's innermost group without a number, `eVifLocUnset` when all have one.
EVifLocation GroupWithoutNumber(const CVIFField& field) {
  EVifLocation group = eVifLocUnset;
  for (const VifIndex& slot : field.Indexes()) {
    if (IsUsed(slot) && !HasNumber(slot)) group = std::get<0>(slot);
  }
  return group;
}

}  // namespace

void FindBadNumbering(const FoundFields& fields, const GroupTree& tree, Findings& findings) {
  for (const FoundField& found : fields) {
    const EVifLocation group = GroupWithoutNumber(found.field);
    if (group == eVifLocUnset) continue;
    findings.push_back(About(
        found, code::kNoIndex,
        NameAndPlace(found.field) + ": the name has no valid " + std::string(GetVifLocInfo(group).name) + " number"));
  }
  for (const auto& [place, content] : tree) {
    for (const auto& [kind, groups] : content.groups) {
      if (IsNumberedByNames(kind)) CheckNumbers(kind, groups, findings);
    }
  }
}

}  // namespace vifanalysis
