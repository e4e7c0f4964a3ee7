// Compiled schemas, kept for the process.
#pragma once

#include "msxml/Problems.h"
#include "msxml/SchemaLoader.h"
#include "msxml/XmlTree.h"

#include <libxml/xmlschemas.h>

#include <filesystem>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace msxml {

/// One schema: its file and the namespace that it describes.
struct SchemaSource {
  std::filesystem::path file;
  std::string targetNamespace;

  friend bool operator<(const SchemaSource& a, const SchemaSource& b) {
    return std::tie(a.file, a.targetNamespace) < std::tie(b.file, b.targetNamespace);
  }
};

/// Some schemas compiled together. Any number of threads may validate against them at once.
class CSchemaSet {
 public:
  /// The compiled schemas: those of an earlier call, unless one of the files has changed since. Threads may call this
  /// at once; one of them compiles.
  /// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when one is missing, is no schema, is for
  ///   another namespace, or refers to something on the network
  static std::shared_ptr<const CSchemaSet> Get(const std::vector<SchemaSource>& sources);

  /// Adds every reason why the document is not valid.
  void Validate(const CXmlTree& tree, CProblems& problems) const;

  explicit CSchemaSet(const std::vector<SchemaSource>& sources);

  /// Whether all files that were read for it are as they were then.
  bool IsCurrent() const;

 private:
  struct FreeSchema {
    void operator()(xmlSchema* schema) const { xmlSchemaFree(schema); }
  };

  std::vector<SchemaSource> m_sources;
  std::vector<SchemaFile> m_files;
  std::unique_ptr<xmlSchema, FreeSchema> m_schema;
};

}  // namespace msxml
