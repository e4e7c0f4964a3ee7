// Loads a VIF in a process of its own, and prints the number of its fields and the peak memory of the process in bytes.
//
//   load_probe FILE
#include "VendorInfoFile.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <string>

namespace {

/// Not getrusage's ru_maxrss, which includes what the process had before it became this program.
long PeakBytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    long kilobytes = 0;
    if (word == "VmHWM:" && status >> kilobytes) return kilobytes * 1024;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return EXIT_FAILURE;
  try {
    const CVendorInfoFile vif(argv[1]);
    std::printf("%zu %ld\n", vif.Count(), PeakBytes());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
