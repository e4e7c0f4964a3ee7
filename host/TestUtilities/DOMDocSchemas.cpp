// The search for schema files.
#include "BaseUtilities/PathText.h"
#include "TestUtilities/DOMDoc.h"
#include "TestUtilities/LibraryDirectory.h"
#include "xmlfile/EmbeddedSchemas.h"

#include <mutex>
#include <system_error>
#include <utility>
#include <vector>

namespace {

std::mutex g_mutex;
std::filesystem::path g_schemaDirectory;  // guarded by the mutex

std::filesystem::path SchemaDirectory() {
  const std::lock_guard lock(g_mutex);
  return g_schemaDirectory;
}

/// The directories to search for schemas, in order; never empty.
std::vector<std::filesystem::path> Directories() {
  std::vector<std::filesystem::path> directories;
  if (std::filesystem::path chosen = SchemaDirectory(); !chosen.empty()) directories.push_back(std::move(chosen));
  if (xmlfile::HasEmbeddedSchemas()) {
    directories.push_back(xmlfile::EmbeddedSchemaDirectory());
    return directories;
  }
  const std::vector<std::filesystem::path>& library = LibraryDirectories();
  for (const std::filesystem::path& directory : library) {
    directories.push_back((directory / VENDORINFOFILE_SCHEMAS_FROM_LIBRARY).lexically_normal());
  }
  directories.insert(directories.end(), library.begin(), library.end());
  // A schema that is nowhere still gets a full path: it must not be loaded from the current directory.
  if (directories.empty()) directories.emplace_back("/");
  return directories;
}

}  // namespace

std::wstring CDOMDoc::MakeFullSchemaPath(const wchar_t* fileName) {
  const std::vector<std::filesystem::path> directories = Directories();
  const std::filesystem::path name = PathFromLosslessWide(fileName != nullptr ? fileName : L"");
  for (const std::filesystem::path& directory : directories) {
    std::error_code ignored;
    if (xmlfile::EmbeddedSchema(directory / name) || std::filesystem::exists(directory / name, ignored))
      return PathToLosslessWide(directory / name);
  }
  return PathToLosslessWide(directories.front() / name);
}

void CDOMDoc::SetSchemaDirectory(const std::filesystem::path& directory) {
  const std::lock_guard lock(g_mutex);
  g_schemaDirectory = directory.empty() ? directory : std::filesystem::absolute(directory);
}
