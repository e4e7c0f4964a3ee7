// Measures the library next to something of known cost and prints the ratios. The exit status is 0 whatever they are,
// and 1 if something could not be measured.
#include "Subjects.h"

#include <malloc.h>

#include <cstdlib>

namespace {

/// Makes the process keep the memory that it frees. Otherwise large files, and only those, would pay at every load for
/// the pages that the system hands out and takes back, and what counts as large would depend on what was measured
/// before.
void KeepFreedMemory() {
  constexpr int never = -1;
  mallopt(M_TRIM_THRESHOLD, never);
  mallopt(M_MMAP_MAX, 0);
}

}  // namespace

int main(int argc, char** argv) {
  KeepFreedMemory();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  bench::CRatioTable table;
  bench::AddTextLoad(table);
  bench::AddXmlLoad(table);
  bench::AddWholeProcess(table);
  bench::AddQueries(table);
  bench::AddLibraryLoad(table);
  bench::AddGrowth(table);
  bench::AddCheck(table);
  bench::AddDifferences(table);
  bench::AddCInterface(table);
  const std::size_t count = benchmark::RunSpecifiedBenchmarks(&table);
  return count > 0 && !table.HasFailed() ? EXIT_SUCCESS : EXIT_FAILURE;
}
