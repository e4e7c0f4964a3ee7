// Parses XML files that nobody can be trusted to have written.
#pragma once

#include "libxml2/XmlTree.h"
#include "xmlfile/Problems.h"

#include <filesystem>
#include <memory>

namespace libxml2 {

/// Parses a file: well-formed XML with namespaces that keeps within the bounds. Nothing but the file is ever read.
/// \param problems receives the reasons when the file is not as described or cannot be read
/// \return null when there are problems
std::shared_ptr<const CXmlTree> ParseXmlFile(const std::filesystem::path& path, xmlfile::CProblems& problems);

/// Makes libxml2 ready for use by several threads; may be called any number of times.
void InitializeXmlLibrary();

}  // namespace libxml2
