// Names against spellings, in which each '#' stands for the digits of an index.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace vifanalysis {

/// Stands in a spelling where a text file writes the number of a group, as in "SVID#_Mode#_Enter".
inline constexpr char kIndexMark = '#';

/// Equal for a spelling and all names that match it in any letter case.
std::uint32_t HashOfName(std::string_view name);

enum class SpellingFit : std::uint8_t { No, InOtherCase, Exact };

/// Whether the name is written as the spelling says. The digits at the spelling's marks, parts of the name, go to
/// `digits`, which keeps what it holds where there is no mark.
SpellingFit FitSpelling(std::string_view name, std::string_view spelling, std::array<std::string_view, 2>& digits);

/// The spelling with digits, or nothing, in place of its marks.
std::string WithDigits(std::string_view spelling, const std::array<std::string_view, 2>& digits);

}  // namespace vifanalysis
