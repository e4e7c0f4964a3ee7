// The work of loading a file.
#pragma once

#include <benchmark/benchmark.h>

#include <filesystem>

namespace bench {

/// Loads the file repeatedly.
void LoadOver(benchmark::State& state, const std::filesystem::path& path);

}  // namespace bench
