// Changes XML by whole elements, because files changed by bytes alone are seldom well-formed.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace fuzz {

/// Puts a copy of one element before, behind or in the place of another, or takes one away. Any text will do: tags that
/// do not fit together are no element, and a text without elements stays as it is.
std::string MutateElements(std::string_view text, std::minstd_rand& random);

}  // namespace fuzz
