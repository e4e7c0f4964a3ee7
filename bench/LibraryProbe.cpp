// Loads a shared library in a process of its own, and prints the nanoseconds that takes, the bytes by which the
// resident memory grows, and the number of the library's field definitions.
//
//   library_probe LIBRARY
#include "VIFFieldDefs.h"

#include <dlfcn.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

long ResidentBytes() {
  long total = 0;
  long resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * sysconf(_SC_PAGESIZE);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return EXIT_FAILURE;
  ResidentBytes();  // so that the memory for reading it is already resident
  const long bytesBefore = ResidentBytes();
  const auto begin = std::chrono::steady_clock::now();
  void* const library = dlopen(argv[1], RTLD_NOW);
  const auto end = std::chrono::steady_clock::now();
  const long bytesAfter = ResidentBytes();
  if (library == nullptr) {
    std::fprintf(stderr, "%s\n", dlerror());
    return EXIT_FAILURE;
  }
  using GetDefinitions = const std::vector<VifFieldDef>& (*)();
  const auto getDefinitions = reinterpret_cast<GetDefinitions>(dlsym(library, "_ZN12VifFieldDefs15GetVifFieldDefsEv"));
  if (getDefinitions == nullptr) return EXIT_FAILURE;
  const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(end - begin).count();
  std::printf("%lld %ld %zu\n", static_cast<long long>(nanoseconds), bytesAfter - bytesBefore, getDefinitions().size());
  return EXIT_SUCCESS;
}
