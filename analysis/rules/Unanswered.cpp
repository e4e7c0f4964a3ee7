#include "files/Sentence.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

void CheckUnanswered(const CVifView& file, CReporter& reporter) {
  for (const FoundField& found : file.Fields()) {
    if (!IsUnanswered(found)) continue;
    reporter.Add(found, Quoted(found.field.Name()) + " is still the editor's \"<select>\"");
  }
}

}  // namespace vifanalysis
