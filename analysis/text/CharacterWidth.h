// How wide a terminal shows characters.
#pragma once

#include <cstddef>

namespace vifanalysis {

/// The columns that a character takes up: 2 for most of East Asia's, 0 for marks that join the character before them.
/// What has no width, such as a control character, counts as 1.
std::size_t CharacterWidth(char32_t c);

}  // namespace vifanalysis
