#include "xmlfile/EmbeddedSchemas.h"

#include "SchemaTexts.h"

#include <iterator>

namespace xmlfile {

bool HasEmbeddedSchemas() noexcept { return std::size(kSchemaTexts) > 1; }

std::filesystem::path EmbeddedSchemaDirectory() { return "/embedded-schemas"; }

std::optional<std::string_view> EmbeddedSchema(const std::filesystem::path& path) {
  if (!HasEmbeddedSchemas() || path.parent_path() != EmbeddedSchemaDirectory()) return std::nullopt;
  const std::filesystem::path name = path.filename();
  for (const SchemaText& schema : kSchemaTexts) {
    if (!schema.name.empty() && name == schema.name) return schema.text;
  }
  return std::nullopt;
}

}  // namespace xmlfile
