#include "VifDirectory.h"

#include <BaseUtilities/PathText.h>
#include <BaseUtilities/StringConvert.h>

#include <algorithm>
#include <string>
#include <system_error>

namespace host {

bool HasVifExtension(const std::filesystem::path& file) {
  std::string extension = PathToUtf8(file.extension());
  ToLower(extension);
  return extension == ".txt" || extension == ".xml";
}

std::vector<std::filesystem::path> ListVifs(const std::filesystem::path& directory) {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (std::filesystem::directory_iterator entry(directory, error); entry != std::filesystem::directory_iterator();
       entry.increment(error)) {
    std::error_code ignored;  // an entry that cannot be examined is not offered
    if (HasVifExtension(entry->path()) && entry->is_regular_file(ignored)) files.push_back(entry->path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace host
