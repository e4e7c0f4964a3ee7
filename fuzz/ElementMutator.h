// Mutates XML by whole elements, because files mutated only by bytes are seldom well-formed.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace fuzz {

/// Inserts a copy of one element before or after another or in its place, or removes one. Accepts any text: tags that
/// do not match are not an element, and a text without elements does not change.
std::string MutateElements(std::string_view text, std::minstd_rand& random);

}  // namespace fuzz
