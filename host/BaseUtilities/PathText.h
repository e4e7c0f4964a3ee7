// File names as text, and text as file names.
//
// On Windows a path is wide text; elsewhere it is bytes, which are UTF-8 only by convention. All functions may be
// called from any number of threads at once and throw only `std::bad_alloc`, unless a comment says otherwise.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <filesystem>
#include <string>
#include <string_view>

/// The path that a UTF-8 name stands for. Outside Windows it consists of the same bytes, so that files whose names are
/// not UTF-8 can be named.
ZO_API std::filesystem::path PathFromUtf8(std::string_view name);

/// The UTF-8 name of a path; outside Windows, the path's own bytes.
ZO_API std::string PathToUtf8(const std::filesystem::path& path);

/// The path that a name in the system's narrow text stands for: on Windows in the code page of file functions,
/// elsewhere the name's own bytes. Not every standard library uses that code page when it converts a name.
ZO_API std::filesystem::path PathFromSystem(std::string_view name);

/// The name of a path in the system's narrow text, for messages and extensions. On Windows, characters that the code
/// page of file functions lacks are replaced.
ZO_API std::string PathToSystem(const std::filesystem::path& path);

/// A path as wide text for people to read: bytes that are not UTF-8 become U+FFFD.
ZO_API std::wstring PathToWide(const std::filesystem::path& path);

/// A path as wide text that `PathFromLosslessWide` turns back into the same path: outside Windows, each byte that is
/// not part of valid UTF-8 becomes the lone surrogate U+DC00 + byte.
ZO_API std::wstring PathToLosslessWide(const std::filesystem::path& path);

/// The path that such a text stands for.
ZO_API std::filesystem::path PathFromLosslessWide(std::wstring_view wide);
