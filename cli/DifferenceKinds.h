// The words for kinds of differences, in JSON as in texts.
#pragma once

#include <analysis/Differences.h>

namespace cli {

const char* KindText(vifanalysis::DifferenceKind kind);
const char* KindText(vifanalysis::GroupChangeKind kind);

}  // namespace cli
