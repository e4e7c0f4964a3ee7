#include "TextContent.h"
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

std::unique_ptr<std::istream> OpenTextContent(std::string_view content) {
  constexpr char endOfText = '\x1A';  // where a stream in text mode ends
  return std::make_unique<CContentStream>(content.substr(0, content.find(endOfText)));
}

}  // namespace vif
