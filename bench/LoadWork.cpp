#include "LoadWork.h"

#include "VendorInfoFile.h"

namespace bench {

void LoadOver(benchmark::State& state, const std::filesystem::path& path) {
  while (state.KeepRunning()) {
    const CVendorInfoFile vif(path);
    benchmark::DoNotOptimize(vif.Count());
  }
}

}  // namespace bench
