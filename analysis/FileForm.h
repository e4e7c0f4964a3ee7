// Which of the two forms of a VIF a file has, by what it begins with.
#pragma once

#include <analysis/Export.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

enum class FileForm : std::uint8_t {
  Unknown,  ///< neither is certain
  Text,     ///< it begins with a declaration or a comment
  Xml,      ///< it begins with a tag, a comment or a declaration of XML
};

/// The form of a file with that beginning. Byte order marks and blanks are skipped. XML may be UTF-16, text may not.
VIF_ANALYSIS_API FileForm FindForm(std::string_view beginning);

/// What to do about a file whose extension is that of the other form, as a sentence without a full stop; nothing where
/// form and extension agree, or where either cannot be told.
VIF_ANALYSIS_API std::optional<std::string> AdviceOnExtension(const std::filesystem::path& path);

}  // namespace vifanalysis
