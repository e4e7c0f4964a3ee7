#include "FormRules.h"
#include "Sentence.h"

#include <array>
#include <map>
#include <string_view>
#include <utility>

namespace vifanalysis {

void FindDuplicates(const FoundFields& fields, Findings& findings) {
  using Key = std::pair<std::string_view, std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>>;
  std::map<Key, const FoundField*> firsts;
  for (const FoundField& found : fields) {
    const auto [first, isFirst] = firsts.try_emplace({found.field.Name(), found.field.Indexes()}, &found);
    if (isFirst) continue;
    const std::size_t line = first->second->line;
    const std::string where = line != 0 ? " on line " + std::to_string(line) : "";
    findings.push_back(
        About(found, code::kDeclaredTwice,
              NameAndPlace(found.field) + " is already declared" + where + ", so GetUniqueField fails for it"));
  }
}

}  // namespace vifanalysis
