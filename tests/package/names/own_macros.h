// What a program that was ported from Windows may define itself, as macros.
#pragma once

#define LONG long
#define ULONG unsigned long
#define DWORD unsigned long
#define UINT unsigned int
#define BOOL int
#define BYTE unsigned char
#define WORD unsigned short
#define TRUE 1
#define FALSE 0
#define VOID void
#define CONST const
#define IN
#define OUT
#define ERROR 0
#define DELETE 0x00010000L
#define interface struct
#define STDMETHODCALLTYPE
#define WINAPI
#define HRESULT long
#define VARTYPE unsigned short
#define VARIANT_BOOL short
#define VARIANT_TRUE -1
#define VARIANT_FALSE 0
#define BSTR wchar_t*
#define VARIANT void*
#define GUID char*
#define IID char*
#define REFIID const char*
#define IUnknown void
#define SUCCEEDED(result) ((result) >= 0)
#define FAILED(result) ((result) < 0)
#define S_OK 0
#define S_FALSE 1
#define E_NOTIMPL -1
#define E_NOINTERFACE -2
#define E_POINTER -3
#define E_FAIL -4
#define E_OUTOFMEMORY -5
#define E_INVALIDARG -6
#define VT_EMPTY 0
#define VT_NULL 1
#define VT_BSTR 8
