// Loads XML files that nobody can be trusted to have written into documents of MSXML 6.
#pragma once

#include "msxml/MsXml.h"
#include "xmlfile/FileText.h"
#include "xmlfile/Problems.h"

#include <filesystem>
#include <optional>

namespace msxml6 {

/// A new, empty document, which reads nothing but what it is given: no document type, nothing that a file refers to.
/// \throws _com_error when there is no MSXML 6 or COM is not initialised on this thread
DOMDocument2Ptr MakeDocument();

/// Loads a file into a document: well-formed XML with namespaces and within the bounds. Otherwise the document is empty
/// afterwards.
/// \param problems receives the reason when the file is not as described or cannot be read
/// \return what the document was loaded from; nothing when there is a problem
/// \throws _com_error
std::optional<xmlfile::FileText> LoadFile(IXMLDOMDocument2& document, const std::filesystem::path& path,
                                          xmlfile::CProblems& problems);

/// What MSXML says is wrong; its reason may be empty. Nothing when all is well.
std::optional<DOMDocProblem> ProblemOf(IXMLDOMParseError& error);

}  // namespace msxml6
