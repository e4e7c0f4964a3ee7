// Text as the system's narrow text.
#pragma once

#include <string>
#include <string_view>

namespace vif {

/// Wide text in the system code page: on Windows the ANSI one, with what it cannot express replaced; elsewhere UTF-8.
std::string SystemText(std::wstring_view text);

#ifdef _WIN32
/// Wide text in a code page of Windows, with what it cannot express replaced.
std::string CodePageText(std::wstring_view text, unsigned int codePage);
#endif

}  // namespace vif
