#include "msxml/ComError.h"

#include "msxml/ComTypes.h"

_com_error::_com_error(HRESULT result, REFIID iid) noexcept : m_result(result), m_iid(iid) {}

_com_error::~_com_error() = default;

const wchar_t* _com_error::ErrorMessage() const noexcept {
  switch (m_result) {
    case E_NOTIMPL: return L"Not implemented";
    case E_NOINTERFACE: return L"No such interface supported";
    case E_POINTER: return L"Invalid pointer";
    case E_FAIL: return L"Unspecified error";
    case E_OUTOFMEMORY: return L"Not enough memory resources are available to complete this operation.";
    case E_INVALIDARG: return L"The parameter is incorrect.";
    default: return nullptr;
  }
}

void _com_issue_error(HRESULT result) { throw _com_error(result); }

void _com_issue_errorex(HRESULT result, IUnknown*, REFIID iid) { throw _com_error(result, iid); }
