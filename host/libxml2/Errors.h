// What libxml2 reports.
#pragma once

#include "xmlfile/Problems.h"

#include <libxml/xmlerror.h>
#include <libxml/xmlversion.h>

#include <string_view>

namespace libxml2 {

/// What a function that libxml2 reports an error to is called with.
#if LIBXML_VERSION >= 21200
using ErrorPointer = const xmlError*;
#else
using ErrorPointer = xmlError*;
#endif

/// Whether nothing is wrong. A namespace is a name, whether or not it has the form of a URI, and an attribute called
/// `xml:id` is one like any other.
inline bool IsHarmless(const xmlError& error) {
  return error.level == XML_ERR_WARNING || error.code == XML_WAR_NS_URI || error.domain == XML_FROM_DTD ||
         error.domain == XML_FROM_VALID;
}

/// Adds what an error says.
inline void AddError(xmlfile::CProblems& problems, const xmlError& error, std::size_t line, std::size_t column,
                     std::string_view element, const char* message) noexcept {
  if (error.code == XML_ERR_NO_MEMORY) {
    problems.RanOutOfMemory();
  } else if (!IsHarmless(error)) {
    problems.Add(line, column, element, message != nullptr ? message : "unknown error");
  }
}

/// While it lives, what libxml2 reports on this thread without knowing for which document, such as text that cannot be
/// decoded, goes to a function. Otherwise it would be written to standard error.
class CThreadErrors {
 public:
  /// A function for what nobody wants to know.
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
  // What libxml2 prints without a structure says no more than what it reports with one.
  static void PrintNothing(void*, const char*, ...) {}

  xmlStructuredErrorFunc m_functionBefore;
  void* m_dataBefore;
  xmlGenericErrorFunc m_printBefore;
  void* m_printDataBefore;
};

}  // namespace libxml2
