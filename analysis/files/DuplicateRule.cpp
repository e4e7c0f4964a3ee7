#include "FormRules.h"
#include "Sentence.h"

namespace vifanalysis {

void FindDuplicates(const FoundFields& fields, const GroupTree& tree, Findings& findings) {
  const GroupContent* group = nullptr;
  const FoundField* last = nullptr;  // fields of one group usually stand together
  for (const FoundField& found : fields) {
    if (last == nullptr || last->field.Indexes() != found.field.Indexes()) group = &tree.at(GroupPlaceOf(found.field));
    last = &found;
    const FoundField* const first = group->fields.at(found.field.Name());
    if (first == &found) continue;
    const std::string where = first->line != 0 ? " on line " + std::to_string(first->line) : "";
    findings.push_back(
        About(found, code::kDeclaredTwice,
              NameAndPlace(found.field) + " is already declared" + where + ", so GetUniqueField fails for it"));
  }
}

}  // namespace vifanalysis
