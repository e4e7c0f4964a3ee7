// Loads untrusted XML files into documents of MSXML 6.
#pragma once

#include "msxml/MsXml.h"
#include "xmlfile/FileText.h"
#include "xmlfile/Problems.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace msxml6 {

/// Creates an empty document that reads nothing but what it is given: no document type, and no file or URL that the
/// content refers to.
/// \throws _com_error when there is no MSXML 6 or COM is not initialised on this thread
DOMDocument2Ptr MakeDocument();

/// Loads a file into a document: well-formed XML with namespaces, within the bounds. If it fails, the document is
/// empty.
/// \param problems receives the reason when the file does not qualify or cannot be read
/// \return the text that the document was loaded from; nothing when there is a problem
/// \throws _com_error
std::optional<xmlfile::FileText> LoadFile(IXMLDOMDocument2& document, const std::filesystem::path& path,
                                          xmlfile::CProblems& problems);

/// The same for the content of a file.
std::optional<xmlfile::FileText> LoadContent(IXMLDOMDocument2& document, std::string_view content,
                                             xmlfile::CProblems& problems);

/// The error that MSXML reports; its reason may be empty. Nothing when there is no error.
std::optional<DOMDocProblem> ProblemOf(IXMLDOMParseError& error);

}  // namespace msxml6
