// COM error functions that MinGW's headers declare but its libraries lack.
#include "BaseUtilities/HostExport.h"
#include "msxml/ComPointer.h"

namespace {

/// The object's information about its last failure; empty when it has none.
CComPointer<IErrorInfo> TakeErrorInfo(IUnknown* object, REFIID iid) {
  CComPointer<ISupportErrorInfo> support;
  CComPointer<IErrorInfo> info;
  if (object == nullptr) return info;
  void** place = reinterpret_cast<void**>(support.Receive());
  if (FAILED(object->QueryInterface(IID_ISupportErrorInfo, place)) || support == nullptr) return info;
  if (support->InterfaceSupportsErrorInfo(iid) == S_OK) GetErrorInfo(0, info.Receive());
  return info;
}

/// Names the interface that failed, when the object does not. Empty when memory runs out.
CComPointer<IErrorInfo> NameInterface(REFIID iid) {
  CComPointer<ICreateErrorInfo> made;
  CComPointer<IErrorInfo> info;
  if (FAILED(CreateErrorInfo(made.Receive()))) return info;
  made->SetGUID(iid);
  made->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(info.Receive()));
  return info;
}

}  // namespace

ZO_API void WINAPI _com_issue_errorex(HRESULT result, IUnknown* object, REFIID iid) {
  CComPointer<IErrorInfo> info = TakeErrorInfo(object, iid);
  if (info == nullptr) info = NameInterface(iid);
  throw _com_error(result, info.Detach());
}
