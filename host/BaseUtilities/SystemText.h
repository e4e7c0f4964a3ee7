// Text in the system's narrow encoding.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <string>
#include <string_view>

/// Wide text in the system code page: on Windows the ANSI one, where what it has no character for is replaced;
/// elsewhere UTF-8. May be called from any number of threads at once; throws nothing but `std::bad_alloc`.
ZO_API std::string WideToSystem(std::wstring_view text);
