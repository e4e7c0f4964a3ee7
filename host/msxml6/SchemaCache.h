// Schemas as MSXML 6 takes them.
#pragma once

#include "msxml/MsXml.h"
#include "msxml/Problems.h"

#include <filesystem>
#include <string>
#include <vector>

namespace msxml6 {

/// One schema: its file and the namespace that it describes.
struct SchemaSource {
  std::filesystem::path file;
  std::wstring targetNamespace;
};

/// Adds the reason why the document is not valid.
/// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when one is missing, is no schema, is for
///   another namespace, or refers to a file that is not of the set
/// \throws _com_error
void Validate(IXMLDOMDocument2& document, const std::vector<SchemaSource>& sources, msxml::CProblems& problems);

}  // namespace msxml6
