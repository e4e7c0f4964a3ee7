// What there is to know about a file before it is read as a VIF.
#pragma once

#include <analysis/Export.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>

namespace vifanalysis {

/// The line from which on a file cannot be read, whatever it holds; nothing when all of it can be. Nothing but a
/// regular file is opened, whatever has the name by now, and nothing is waited for. \throws CZoRunTimeException when it
/// cannot be opened
VIF_ANALYSIS_API std::optional<std::size_t> FirstUnreadableLine(const std::filesystem::path& path);

/// Whether a path has that extension, which is given in small letters, in any letter case.
VIF_ANALYSIS_API bool HasExtension(const std::filesystem::path& path, std::string_view extension);

}  // namespace vifanalysis
