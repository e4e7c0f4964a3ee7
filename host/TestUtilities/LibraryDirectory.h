// Where this library lies.
#pragma once

#include <filesystem>

/// The directory that holds this library's file; empty when that cannot be found out.
std::filesystem::path LibraryDirectory();
