// COM for the threads of a program.
#pragma once

#include "msxml/ComPointer.h"

/// While it lives, COM may be used on this thread and, on Windows, on every thread of the process that has not chosen
/// otherwise: the thread is in the multithreaded apartment. Where it is in another apartment already, it stays there.
/// On systems without COM there is nothing to do.
class CComApartment {
 public:
#ifdef _WIN32
  /// \throws _com_error when COM cannot be used
  CComApartment() : m_result(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) {
    if (FAILED(m_result) && m_result != RPC_E_CHANGED_MODE) _com_issue_error(m_result);
  }
  ~CComApartment() {
    if (SUCCEEDED(m_result)) CoUninitialize();
  }
#else
  CComApartment() noexcept {}  // NOLINT(modernize-use-equals-default): an object of it is no unused variable
  ~CComApartment() {}          // NOLINT(modernize-use-equals-default)
#endif
  CComApartment(const CComApartment&) = delete;
  CComApartment& operator=(const CComApartment&) = delete;

#ifdef _WIN32
 private:
  HRESULT m_result;
#endif
};
