// Schemas in memory.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace xmlfile {

/// Whether this build embeds schemas (VENDORINFOFILE_EMBED_SCHEMAS).
bool HasEmbeddedSchemas() noexcept;

/// The directory in which the embedded schemas seem to be. No file there is ever opened.
std::filesystem::path EmbeddedSchemaDirectory();

/// The text of an embedded schema, by its path; null for any other path. It lasts as long as the library is loaded.
std::optional<std::string_view> EmbeddedSchema(const std::filesystem::path& path);

}  // namespace xmlfile
