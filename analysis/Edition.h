// Editions of the VIF format.
#pragma once

#include <analysis/Export.h>

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class CVIFField;

namespace vifanalysis {

/// An edition of the format, as VIF_Specification gives it: "3.22" is {3, 22}, and later than {3, 3}.
struct Edition {
  std::uint32_t major = 0;  ///< the number before the point
  std::uint32_t minor = 0;  ///< the number after the point

  friend constexpr auto operator<=>(const Edition&, const Edition&) = default;
};

/// The edition that a text names, such as "3.22", or "Version 3.22" as loading an XML file has it; nothing unless it is
/// two numbers with a point between them.
VIF_ANALYSIS_API std::optional<Edition> ParseEdition(std::string_view text);

/// The edition that a field of a file says the file follows; nothing unless the field is VIF_Specification, of the file
/// as a whole, and names one. Throws nothing. May be called from any number of threads at once.
VIF_ANALYSIS_API std::optional<Edition> EditionNamedBy(const CVIFField& field);

/// The edition that all fields of a file say it follows; nothing when none names one, or they name different ones. The
/// same for several files whose fields are in one list. Throws nothing. May be called from any number of threads at
/// once.
VIF_ANALYSIS_API std::optional<Edition> EditionNamedBy(const std::vector<CVIFField>& fields);

/// The edition as text, such as "3.22"; the minor number has at least two digits, as in "2.04".
VIF_ANALYSIS_API std::string EditionText(const Edition& edition);

}  // namespace vifanalysis
