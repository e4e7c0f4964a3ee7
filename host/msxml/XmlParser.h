// Parses XML files that nobody can be trusted to have written.
#pragma once

#include "msxml/Problems.h"
#include "msxml/XmlTree.h"

#include <filesystem>
#include <memory>

namespace msxml {

/// Parses a file: well-formed XML with namespaces, without a document type declaration, hence without entities of
/// its own, and not nested deeper than `kGreatestDepth`. Nothing but the file is ever read.
/// \param problems receives the reasons when the file is not as described or cannot be read
/// \return null when there are problems
std::shared_ptr<const CXmlTree> ParseXmlFile(const std::filesystem::path& path, CProblems& problems);

/// Makes libxml2 ready for use by several threads; may be called any number of times.
void InitializeXmlLibrary();

}  // namespace msxml
