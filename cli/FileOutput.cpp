#include "FileOutput.h"

#include "Command.h"

#include <BaseUtilities/PathText.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace cli {

void WriteFile(const std::string& fileName, std::string_view content, const std::vector<std::string>& inputs) {
  const std::filesystem::path path = PathFromUtf8(fileName);
  std::error_code error;
  for (const std::string& input : inputs) {
    if (std::filesystem::equivalent(path, PathFromUtf8(input), error)) {
      throw Failure("cannot write " + fileName + ": it is the VIF itself");
    }
  }
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  if (!file.good()) throw Failure("cannot write " + fileName + ": " + std::generic_category().message(errno));
}

}  // namespace cli
