// One schema of a set.
#pragma once

#include <filesystem>
#include <string>
#include <tuple>

namespace xmlfile {

/// A schema file and the namespace that it describes, in UTF-8.
struct SchemaSource {
  std::filesystem::path file;
  std::string targetNamespace;

  friend bool operator<(const SchemaSource& a, const SchemaSource& b) {
    return std::tie(a.file, a.targetNamespace) < std::tie(b.file, b.targetNamespace);
  }
};

}  // namespace xmlfile
