// Where schema files are found.
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDoc.h"
#include "TestUtilities/LibraryDirectory.h"

#include <mutex>
#include <system_error>

namespace {

std::mutex g_mutex;
std::filesystem::path g_schemaDirectory;  // guarded by the mutex

std::filesystem::path SchemaDirectory() {
  const std::lock_guard lock(g_mutex);
  return g_schemaDirectory;
}

std::wstring WideText(const std::filesystem::path& path) {
#ifdef _WIN32
  return path.native();
#else
  return Utf8ToUtf16(path.native());
#endif
}

std::filesystem::path SchemaName(const wchar_t* text) {
  const std::wstring wide = text != nullptr ? text : L"";
#ifdef _WIN32
  return wide;
#else
  return Utf16ToUtf8(wide);
#endif
}

}  // namespace

std::wstring CDOMDoc::MakeFullSchemaPath(const wchar_t* fileName) {
  std::vector<std::filesystem::path> directories;
  if (const std::filesystem::path chosen = SchemaDirectory(); !chosen.empty()) directories.push_back(chosen);
  const std::filesystem::path library = LibraryDirectory();
  directories.push_back((library / VENDORINFOFILE_SCHEMAS_FROM_LIBRARY).lexically_normal());
  directories.push_back(library);

  const std::filesystem::path name = SchemaName(fileName);
  for (const std::filesystem::path& directory : directories) {
    std::error_code ignored;
    if (std::filesystem::exists(directory / name, ignored)) return WideText(directory / name);
  }
  return WideText(directories.front() / name);
}

void CDOMDoc::SetSchemaDirectory(const std::filesystem::path& directory) {
  const std::lock_guard lock(g_mutex);
  g_schemaDirectory = directory.empty() ? directory : std::filesystem::absolute(directory);
}
