// Small schemas, and documents validated against them.
#pragma once

#include "support/XmlDocument.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace testsupport {

/// A schema for a namespace.
/// \param content its declarations; the prefix `xs` stands for the schema language, no prefix for the namespace
inline std::string Schema(std::string_view targetNamespace, std::string_view content) {
  const std::string uri(targetNamespace);
  return "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='" + uri + "' xmlns='" + uri +
         "' elementFormDefault='qualified'>" + std::string(content) + "</xs:schema>";
}

/// A document with schemas.
class CSchemaDocument : public CDOMDoc {
 public:
  using Schemas = std::vector<std::pair<std::filesystem::path, std::string>>;

  explicit CSchemaDocument(const Schemas& schemas) : CDOMDoc(Wide(schemas)) {}

 private:
  static std::vector<std::pair<std::wstring, std::wstring>> Wide(const Schemas& schemas) {
    std::vector<std::pair<std::wstring, std::wstring>> wide;
    wide.reserve(schemas.size());
    for (const auto& [file, uri] : schemas) wide.emplace_back(WidePath(file), Utf8ToUtf16(uri));
    return wide;
  }
};

}  // namespace testsupport
