// Text in the system's narrow encoding.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <string>
#include <string_view>

/// Wide text in the system code page: on Windows the ANSI one, where characters that it lacks are replaced; elsewhere
/// UTF-8. May be called from any number of threads at once; throws only `std::bad_alloc`.
ZO_API std::string WideToSystem(std::wstring_view text);

/// While an object lives, the system's narrow text is UTF-8 on its thread: for the function above, for the paths of
/// `PathText.h`, and so for the texts and messages of the library. For callers who know nothing of code pages. Objects
/// may be nested. Outside Windows, where that text is UTF-8 anyway, this does nothing.
class CUtf8Text {
 public:
#ifdef _WIN32
  ZO_API CUtf8Text() noexcept;
  ZO_API ~CUtf8Text();
#else
  CUtf8Text() noexcept {}  // NOLINT(modernize-use-equals-default): so that an object is not an unused variable
  ~CUtf8Text() {}          // NOLINT(modernize-use-equals-default)
#endif
  CUtf8Text(const CUtf8Text&) = delete;
  CUtf8Text& operator=(const CUtf8Text&) = delete;
};

#ifdef _WIN32
/// Whether such an object lives on this thread.
bool IsSystemTextUtf8() noexcept;
#endif
