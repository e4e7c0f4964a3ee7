// What libxml2 reports outside any parser.
#pragma once

#include <libxml/globals.h>
#include <libxml/xmlerror.h>

namespace msxml {

/// While it lives, what libxml2 reports on this thread without knowing for which document, such as text that cannot be
/// decoded, goes to a function. Otherwise it would be written to standard error.
class CThreadErrors {
 public:
  CThreadErrors(xmlStructuredErrorFunc function, void* data)
      : m_functionBefore(xmlStructuredError), m_dataBefore(xmlStructuredErrorContext) {
    xmlSetStructuredErrorFunc(data, function);
  }
  CThreadErrors(const CThreadErrors&) = delete;
  CThreadErrors& operator=(const CThreadErrors&) = delete;
  ~CThreadErrors() { xmlSetStructuredErrorFunc(m_dataBefore, m_functionBefore); }

 private:
  xmlStructuredErrorFunc m_functionBefore;
  void* m_dataBefore;
};

}  // namespace msxml
