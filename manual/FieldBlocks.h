// The fields of the format, for a manual page.
#pragma once

#include <string>

namespace manual {

/// All fields, by group.
std::string FieldLists();

}  // namespace manual
