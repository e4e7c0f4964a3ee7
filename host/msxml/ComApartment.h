// COM for the threads of a program.
#pragma once

#include "msxml/ComPointer.h"

/// While an object lives, COM may be used on its thread and on every thread of the process that has not chosen
/// otherwise, because the object puts its thread into the multithreaded apartment. A thread that is already in another
/// apartment stays there. On systems without COM, this does nothing.
class CComApartment {
 public:
#ifdef _WIN32
  /// \throws _com_error if COM cannot be used
  CComApartment() : m_result(CoInitializeEx(nullptr, COINIT_MULTITHREADED)) {
    if (FAILED(m_result) && m_result != RPC_E_CHANGED_MODE) _com_issue_error(m_result);
  }
  ~CComApartment() {
    if (SUCCEEDED(m_result)) CoUninitialize();
  }
#else
  CComApartment() noexcept {}  // NOLINT(modernize-use-equals-default): so that an object is not an unused variable
  ~CComApartment() {}          // NOLINT(modernize-use-equals-default)
#endif
  CComApartment(const CComApartment&) = delete;
  CComApartment& operator=(const CComApartment&) = delete;

#ifdef _WIN32
 private:
  HRESULT m_result;
#endif
};
