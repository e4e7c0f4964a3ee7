#include "TextFile.h"

#include <fstream>
#include <system_error>

namespace vif {

std::unique_ptr<std::istream> OpenTextFile(const std::filesystem::path& path) {
  std::error_code statusError;
  if (!std::filesystem::is_regular_file(path, statusError)) return nullptr;
  auto stream = std::make_unique<std::ifstream>(path);
  if (!stream->is_open()) return nullptr;
  return stream;
}

}  // namespace vif
