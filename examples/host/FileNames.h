// Names of files as text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

/// The file that a name stands for which came from the command line or the operator. On Windows it is UTF-8, as the
/// program's manifest says; elsewhere any bytes.
std::filesystem::path PathOf(std::string_view name);

/// The opposite. Where a name is no proper text, U+FFFD stands for what is none.
std::string NameOf(const std::filesystem::path& path);

}  // namespace host
