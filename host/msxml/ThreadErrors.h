// What libxml2 reports outside any parser.
#pragma once

#include <libxml/globals.h>
#include <libxml/xmlerror.h>

namespace msxml {

/// While it lives, what libxml2 reports on this thread without knowing for which document, such as text that cannot be
/// decoded, goes to a function. Otherwise it would be written to standard error.
class CThreadErrors {
 public:
  /// A function for what nobody wants to know.
  static void Ignore(void*, xmlErrorPtr) {}

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

}  // namespace msxml
