#include "PatternError.h"

namespace vif {

void ThrowStackTooSmall() {
  throw CPatternError(std::regex_constants::error_stack,
                      "The regular expression needs more stack than this thread has left.");
}

void ThrowTooManySteps() {
  throw CPatternError(std::regex_constants::error_complexity, "The regular expression takes too many steps.");
}

}  // namespace vif
