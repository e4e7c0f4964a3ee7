// What a program that was ported from Windows may declare itself, as types, constants and functions.
#pragma once

typedef long LONG;
typedef unsigned long ULONG;
typedef unsigned long DWORD;
typedef unsigned int UINT;
typedef int BOOL;
typedef unsigned char BYTE;
typedef unsigned short WORD;
typedef long HRESULT;
typedef short VARIANT_BOOL;
typedef unsigned int VARTYPE;
typedef const wchar_t* BSTR;

struct GUID {
  char text[37];
};
typedef GUID IID;
typedef GUID* REFIID;
struct VARIANT {
  int kind;
};
class IUnknown {};
const IID IID_IUnknown = {"00000000-0000-0000-C000-000000000046"};

enum Outcome { S_OK, S_FALSE, E_NOTIMPL, E_NOINTERFACE, E_POINTER, E_FAIL, E_OUTOFMEMORY, E_INVALIDARG };
enum VariantKind { VT_EMPTY, VT_NULL, VT_BSTR };
enum Result { FAILED, SUCCEEDED };

inline BSTR SysAllocString(const wchar_t* text) { return text; }
inline BSTR SysAllocStringLen(const wchar_t* text, UINT) { return text; }
inline void SysFreeString(BSTR) {}
inline UINT SysStringLen(BSTR text) { return text != nullptr ? 1 : 0; }
inline void VariantInit(VARIANT* variant) { variant->kind = VT_EMPTY; }
inline HRESULT VariantClear(VARIANT* variant) { return variant->kind; }
