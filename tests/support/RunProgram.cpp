#include "support/RunProgram.h"

#include <algorithm>

namespace testsupport {

std::string NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return {name.begin(), name.end()};
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (size_t begin = 0; begin < text.size();) {
    const size_t end = std::min(text.find('\n', begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    if (!lines.back().empty() && lines.back().back() == '\r') lines.back().pop_back();
    begin = end + 1;
  }
  return lines;
}

}  // namespace testsupport
