// File names as text.
#pragma once

#include <filesystem>
#include <string>

namespace vif {

/// The path as narrow text for messages and extensions: on Windows in the code page of file functions, with what
/// it cannot express replaced; elsewhere the name's own bytes.
std::string NarrowPathText(const std::filesystem::path& path);

/// The path as wide text; bytes that are not UTF-8 become U+FFFD.
std::wstring WidePathText(const std::filesystem::path& path);

/// The path that a UTF-8 name stands for. Outside Windows the name's bytes are taken as they are, so that a file
/// can be named whose name is not UTF-8. Null counts as empty.
std::filesystem::path PathFromUtf8(const char* name);

}  // namespace vif
