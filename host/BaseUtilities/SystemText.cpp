#include "BaseUtilities/SystemText.h"

#ifdef _WIN32

#include "CodePageWindows.h"

namespace {

thread_local int t_utf8Count = 0;  // of living objects

}  // namespace

CUtf8Text::CUtf8Text() noexcept { ++t_utf8Count; }

CUtf8Text::~CUtf8Text() { --t_utf8Count; }

bool IsSystemTextUtf8() noexcept { return t_utf8Count > 0; }

std::string WideToSystem(std::wstring_view text) { return WideToCodePage(text, IsSystemTextUtf8() ? CP_UTF8 : CP_ACP); }

#else

#include "BaseUtilities/StringConvert.h"

std::string WideToSystem(std::wstring_view text) { return Utf16ToUtf8(text); }

#endif
