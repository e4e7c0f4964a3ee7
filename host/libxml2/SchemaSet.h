// Compiled schemas, cached for the process.
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

/// Schemas compiled together. Any number of threads may validate against them concurrently.
class CSchemaSet {
 public:
  /// The compiled schemas: those of an earlier call, unless one of the files has changed since. Threads may call this
  /// concurrently; one of them compiles.
  /// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when one is missing, is not a schema, is
  ///   for another namespace, or refers to something on the network
  static std::shared_ptr<const CSchemaSet> Get(const std::vector<SchemaSource>& sources);

  /// Adds every reason why the document is not valid.
  void Validate(const CXmlTree& tree, xmlfile::CProblems& problems) const;

  explicit CSchemaSet(const std::vector<SchemaSource>& sources);

  /// Whether all files that were read to compile it are unchanged.
  bool IsCurrent() const;

 private:
  std::vector<SchemaSource> m_sources;
  std::vector<SchemaFile> m_files;
  std::unique_ptr<xmlSchema, Freeing<xmlSchemaFree>> m_schema;
};

}  // namespace libxml2
