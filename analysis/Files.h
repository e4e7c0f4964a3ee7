// What can be known about a file before it is read as a VIF.
#pragma once

#include <TestUtilities/DOMDocProblem.h>
#include <analysis/Export.h>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The number of the line where reading the file fails, whatever the file holds; nothing when all of it can be read.
/// Opens only regular files and never waits, even if a pipe has taken the file's name.
/// \throws CZoRunTimeException when it cannot be opened
VIF_ANALYSIS_API std::optional<std::size_t> FirstUnreadableLine(const std::filesystem::path& path);

/// Whether all of a file can be read, whatever it holds; false for anything but a regular file.
VIF_ANALYSIS_API bool CanBeRead(const std::filesystem::path& path);

/// Whether an XML file is refused because it cannot be read. The first reason then says why. A reason without a place
/// does not prove it, because MSXML gives no place for what breaks the schema either.
/// \param path the file
/// \param reasons why it is refused
/// \throws std::bad_alloc; may be called from any number of threads at once
inline bool IsReadFailure(const std::filesystem::path& path, const std::vector<DOMDocProblem>& reasons) {
  for (const DOMDocProblem& reason : reasons) {
    if (reason.line != 0) return false;
  }
  return !CanBeRead(path);
}

/// Whether a path has that extension in any letter case.
/// \param path the path; there need not be such a file
/// \param extension in lower case, with its dot
VIF_ANALYSIS_API bool HasExtension(const std::filesystem::path& path, std::string_view extension);

}  // namespace vifanalysis
