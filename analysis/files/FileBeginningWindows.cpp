#include "FileBeginning.h"

#include <fstream>
#include <system_error>

namespace vifanalysis {

std::string FileBeginning(const std::filesystem::path& path, std::size_t most) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return {};
  std::ifstream file(path, std::ios::binary);
  std::string text(most, '\0');
  file.read(text.data(), static_cast<std::streamsize>(most));
  text.resize(static_cast<std::size_t>(file.gcount()));
  return text;
}

}  // namespace vifanalysis
