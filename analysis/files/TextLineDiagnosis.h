// Why a line of a text VIF yields no field.
#pragma once

#include <string>
#include <string_view>

namespace vifanalysis {

/// Some editors put it at the start of a UTF-8 file. It does not count as a blank.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// Why a line is not a declaration, without a full stop.
/// \param content the line without its comment
std::string DiagnoseLine(std::string_view content);

}  // namespace vifanalysis
