// The parts of vif(3) that come from the comments and declarations of vif.h.
//
// The header follows a few rules. The first comment is the introduction. A comment directly before a declaration is
// about it; any other begins a part: its first sentence or line is the title. A comment on the line of a member or a
// constant is about that.
#pragma once

#include <string>
#include <string_view>

namespace manual {

/// The introduction, to follow "The library".
std::string HeaderIntroduction(std::string_view header);

/// The prototypes of all functions.
std::string HeaderFunctions(std::string_view header);

/// All parts, each with its types, constants and functions.
std::string HeaderParts(std::string_view header);

}  // namespace manual
