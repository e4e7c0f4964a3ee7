// How deep compiling a regular expression goes.
#pragma once

#include <cstddef>
#include <string_view>

namespace vif {

/// A rough measure of the stack that libstdc++ takes to compile a pattern and to go through it without reading a
/// character: it recurses for every term of an alternative, several times for every group, and goes through every
/// repetition that braces ask for. Counts a plain character as 1.
///
/// A pattern that is no regular expression has some depth too; finding that out is not the business of this function.
std::size_t PatternDepth(std::string_view pattern);

/// A depth that half a megabyte of stack is enough for, and that no pattern for field names comes near: an alternation
/// of 500 names of 60 characters has a depth of about 1,100.
constexpr std::size_t kMaxPatternDepth = 2000;

}  // namespace vif
