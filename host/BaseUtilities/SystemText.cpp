#include "BaseUtilities/SystemText.h"

#ifdef _WIN32

#include "CodePageWindows.h"

std::string WideToSystem(std::wstring_view text) { return WideToCodePage(text, CP_ACP); }

#else

#include "BaseUtilities/StringConvert.h"

std::string WideToSystem(std::wstring_view text) { return Utf16ToUtf8(text); }

#endif
