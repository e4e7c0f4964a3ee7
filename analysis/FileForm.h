// Tells text VIFs from XML VIFs by how they begin.
#pragma once

#include <analysis/Export.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

/// The form of a file.
enum class FileForm : std::uint8_t {
  Unknown,  ///< the beginning is like neither
  Text,     ///< it begins with a declaration or a comment
  Xml,      ///< it begins with an XML tag, comment or declaration
};

/// The form of a file with that beginning. Byte order marks and blanks are skipped. XML may be UTF-16, text may not.
VIF_ANALYSIS_API FileForm FindForm(std::string_view beginning);

/// What to do about a file that has the extension of the other form, as a sentence without a full stop; nothing where
/// form and extension agree, or where either is unknown.
VIF_ANALYSIS_API std::optional<std::string> AdviceOnExtension(const std::filesystem::path& path);

}  // namespace vifanalysis
