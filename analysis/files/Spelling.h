// Tells a misspelled name from another name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

/// A written name, corrected.
struct Respelling {
  unsigned typos;    ///< how many characters were missing, superfluous, wrong or swapped with their neighbour
  std::string name;  ///< the known name, with the written index numbers where the spelling has its marks
};

/// Corrects a written name if it is a misspelling of a known one.
///
/// Letter case and underscores do not count. Typos are allowed only in words, such as "Voltage": never in a number, an
/// abbreviation or a part of one or two letters, because the fields of the format differ from each other in just these.
/// Thus a field of another edition is not taken for a misspelling.
/// \param spelling the known name, with a `kIndexMark` for each index
/// \return nothing when the written name is another name
std::optional<Respelling> Respell(std::string_view written, std::string_view spelling);

}  // namespace vifanalysis
