// Validates against schemas with MSXML 6.
#pragma once

#include "msxml/MsXml.h"
#include "xmlfile/Problems.h"
#include "xmlfile/SchemaSource.h"

#include <vector>

namespace msxml6 {

using xmlfile::SchemaSource;

/// Adds the reason why the document is not valid.
/// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when one is missing, is not a schema, is for
///   another namespace, or refers to a file outside the set
/// \throws _com_error
void Validate(IXMLDOMDocument2& document, const std::vector<SchemaSource>& sources, xmlfile::CProblems& problems);

}  // namespace msxml6
