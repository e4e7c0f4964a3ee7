// Why a line of a text VIF yields no field.
#pragma once

#include <string>
#include <string_view>

namespace vifanalysis {

/// What some editors put before the first line of a UTF-8 file. It is no blank.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// What keeps a line from being a declaration, as a sentence.
/// \param content the line without its comment, of which loading has made no field
std::string DiagnoseLine(std::string_view content);

}  // namespace vifanalysis
