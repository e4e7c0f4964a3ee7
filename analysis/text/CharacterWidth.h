// How many columns of a terminal a character takes up.
#pragma once

#include <cstddef>

namespace vifanalysis {

/// 2 for most characters of East Asia, 0 for marks that combine with the character before them, otherwise 1, also for
/// control characters.
std::size_t CharacterWidth(char32_t c);

}  // namespace vifanalysis
