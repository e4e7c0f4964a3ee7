// Errors that libxml2 reports.
#pragma once

#include "xmlfile/Problems.h"

#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

#include <string_view>

namespace libxml2 {

/// The type of the error that libxml2 passes to an error handler.
#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError*;
#else
using ErrorPointer = xmlError*;
#endif

/// Whether an error can be ignored. A namespace is a name, whether or not it has the form of a URI, and an attribute
/// called `xml:id` is an ordinary attribute, which libxml2 2.15 holds against the file if its value is no NCName.
inline bool IsHarmless(const xmlError& error) {
  return error.level == XML_ERR_WARNING || error.code == XML_WAR_NS_URI || error.code == XML_DTD_XMLID_VALUE ||
         error.domain == XML_FROM_DTD || error.domain == XML_FROM_VALID;
}

/// Adds a libxml2 error.
inline void AddError(xmlfile::CProblems& problems, const xmlError& error, std::size_t line, std::size_t column,
                     std::string_view element, const char* message) noexcept {
  if (error.code == XML_ERR_NO_MEMORY) {
    problems.RanOutOfMemory();
  } else if (!IsHarmless(error)) {
    problems.Add(line, column, element, message != nullptr ? message : "unknown error");
  }
}

/// While it lives, errors that libxml2 reports on this thread without knowing the document, such as text that cannot be
/// decoded, go to a function. Otherwise libxml2 would write them to standard error.
class CThreadErrors {
 public:
  /// A handler for errors that nobody needs.
  static void Ignore(void*, ErrorPointer) {}

  CThreadErrors(xmlStructuredErrorFunc function, void* data)
      : m_functionBefore(xmlStructuredError),
        m_dataBefore(xmlStructuredErrorContext),
        m_printBefore(xmlGenericError),
        m_printDataBefore(xmlGenericErrorContext) {
    xmlSetStructuredErrorFunc(data, function);
    xmlSetGenericErrorFunc(nullptr, PrintNothing);
  }
  CThreadErrors(const CThreadErrors&) = delete;
  CThreadErrors& operator=(const CThreadErrors&) = delete;
  ~CThreadErrors() {
    xmlSetStructuredErrorFunc(m_dataBefore, m_functionBefore);
    xmlSetGenericErrorFunc(m_printDataBefore, m_printBefore);
  }

 private:
  // What libxml2 prints adds nothing to the structured errors that it reports.
  static void PrintNothing(void*, const char*, ...) {}

  xmlStructuredErrorFunc m_functionBefore;
  void* m_dataBefore;
  xmlGenericErrorFunc m_printBefore;
  void* m_printDataBefore;
};

}  // namespace libxml2
