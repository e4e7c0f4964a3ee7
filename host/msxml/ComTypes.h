// COM's own names for what msxml/Com.h declares, where there is no COM. For this project's sources, which are written
// once for MSXML and for its stand-in. Not installed: these names may be anything in a program.
#pragma once

#include "msxml/Com.h"

#ifndef _WIN32

#include <cstdint>

using HRESULT = zocom::Result;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = std::uint32_t;
using VARTYPE = std::uint16_t;

constexpr bool SUCCEEDED(HRESULT result) { return result >= 0; }
constexpr bool FAILED(HRESULT result) { return result < 0; }

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001);
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
constexpr HRESULT E_POINTER = zocom::kNullPointer;
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
constexpr HRESULT E_OUTOFMEMORY = zocom::kOutOfMemory;
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);

using GUID = zocom::Guid;
using IID = zocom::Guid;
using REFIID = const zocom::Guid&;
using IUnknown = zocom::Unknown;
constexpr IID IID_IUnknown = zocom::kUnknownId;

using BSTR = zocom::Text;
using zocom::SysAllocString;
using zocom::SysAllocStringLen;
using zocom::SysFreeString;
using zocom::SysStringLen;

constexpr VARTYPE VT_EMPTY = zocom::kEmptyVariant;
constexpr VARTYPE VT_NULL = zocom::kNullVariant;
constexpr VARTYPE VT_BSTR = zocom::kTextVariant;

using VARIANT = zocom::Variant;
using zocom::VariantClear;
using zocom::VariantInit;

#endif
