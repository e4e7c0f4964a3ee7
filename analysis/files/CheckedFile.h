// A file to check.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

/// A file on disk, or its content in memory. Borrows both for one check.
struct CheckedFile {
  const std::filesystem::path& name;
  std::optional<std::string_view> content = std::nullopt;  ///< nothing for a file on disk
};

/// What to do about a file that has the extension of the other form, as the public function of that name has it.
std::optional<std::string> AdviceOnExtension(const CheckedFile& file);

}  // namespace vifanalysis
