// Paths as the host's wide text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The wide form of a path. Off Windows a path is bytes: each that is no part of valid UTF-8 becomes the lone surrogate
/// U+DC00 + byte, so that every path comes back from `WideToPath` as it was.
std::wstring PathToWide(const std::filesystem::path& path);

/// The path that a wide text stands for.
std::filesystem::path WideToPath(std::wstring_view wide);
