// Parses untrusted XML files.
#pragma once

#include "libxml2/XmlTree.h"
#include "xmlfile/FileText.h"
#include "xmlfile/Problems.h"

#include <filesystem>
#include <memory>
#include <optional>

namespace libxml2 {

/// Parses a file: well-formed XML with namespaces, within the bounds. Nothing but the file is ever read.
/// \param problems receives the reasons when the file does not qualify or cannot be read
/// \return null when there are problems
std::shared_ptr<const CXmlTree> ParseXmlFile(const std::filesystem::path& path, xmlfile::CProblems& problems);

/// Parses the text of a file in the same way.
/// \param file nothing if it could not be read, which is a problem already
std::shared_ptr<const CXmlTree> ParseXml(std::optional<xmlfile::FileText> file, xmlfile::CProblems& problems);

/// Prepares libxml2 for use by several threads; may be called any number of times.
void InitializeXmlLibrary();

}  // namespace libxml2
