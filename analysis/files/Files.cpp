#include <BaseUtilities/Exceptions.h>
#include <BaseUtilities/StringConvert.h>
#include <VIFTextCheck.h>
#include <analysis/Files.h>

#include <string>

namespace vifanalysis {

std::optional<std::size_t> FirstUnreadableLine(const std::filesystem::path& path) {
  std::optional<std::size_t> line;
  CheckTextVif(path, [&](const VifLineReport& report) {
    if (report.problem == eVifLineReadFailed) line = report.line;
  });
  return line;
}

bool HasExtension(const std::filesystem::path& path, std::string_view extension) {
  const std::u8string given = path.extension().u8string();
  std::string text(given.begin(), given.end());
  ToLower(text);
  return text == extension;
}

bool CanBeRead(const std::filesystem::path& path) {
  try {
    return !FirstUnreadableLine(path);
  } catch (const CZoRunTimeException&) {
    return false;
  }
}

}  // namespace vifanalysis
