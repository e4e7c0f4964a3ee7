// The parts of vif(3) that come from the comments and declarations of vif.h.
//
// The header follows a few rules, those of Doxygen among them. The first comment is the introduction. A comment that
// begins with "\name" begins a part, with the title that follows. Any other is about the declaration after it, or, on
// the line of a member or a constant, about that.
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
