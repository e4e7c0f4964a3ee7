// Compiled schemas, kept for the process.
#pragma once

#include "libxml2/SchemaLoader.h"
#include "libxml2/XmlTree.h"
#include "xmlfile/Problems.h"
#include "xmlfile/SchemaSource.h"

#include <libxml/xmlschemas.h>

#include <memory>
#include <vector>

namespace libxml2 {

using xmlfile::SchemaSource;

/// Some schemas compiled together. Any number of threads may validate against them at once.
class CSchemaSet {
 public:
  /// The compiled schemas: those of an earlier call, unless one of the files has changed since. Threads may call this
  /// at once; one of them compiles.
  /// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when one is missing, is no schema, is for
  ///   another namespace, or refers to something on the network
  static std::shared_ptr<const CSchemaSet> Get(const std::vector<SchemaSource>& sources);

  /// Adds every reason why the document is not valid.
  void Validate(const CXmlTree& tree, xmlfile::CProblems& problems) const;

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

}  // namespace libxml2
