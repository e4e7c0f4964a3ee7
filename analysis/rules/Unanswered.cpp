#include "files/Sentence.h"
#include "rules/RuleFunctions.h"

#include <string_view>

namespace vifanalysis {

void CheckUnanswered(const CVifView& file, CReporter& reporter) {
  constexpr std::string_view unanswered = "<select>";
  for (const FoundField& found : file.Fields()) {
    if (found.field.Value() != unanswered && found.field.Description() != unanswered) continue;
    reporter.Add(found, Quoted(found.field.Name()) + " is still the editor's \"<select>\"");
  }
}

}  // namespace vifanalysis
