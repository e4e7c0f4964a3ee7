// Loading the library into a fresh process, compared with the same library without its field definitions.
#include "ChildProcess.h"
#include "Subjects.h"

#include <sstream>
#include <stdexcept>
#include <string>

namespace bench {

namespace {

struct Library {
  std::string path;
  std::size_t definitions;
};

struct Loaded {
  double nanoseconds = 0;
  double bytes = 0;
};

Loaded Load(const Library& library) {
  std::istringstream output(OutputOf({BENCH_LIBRARY_PROBE, library.path}));
  Loaded loaded;
  std::size_t definitions = 0;
  if (!(output >> loaded.nanoseconds >> loaded.bytes >> definitions) || definitions != library.definitions) {
    throw std::runtime_error(library.path + " has the wrong number of definitions");
  }
  return loaded;
}

Work TimeOf(const Library& library) {
  return [=](benchmark::State& state) {
    while (state.KeepRunning()) state.SetIterationTime(Load(library).nanoseconds / 1e9);
  };
}

Work BytesOf(const Library& library) {
  return [=](benchmark::State& state) {
    double bytes = 0;
    while (state.KeepRunning()) bytes = Load(library).bytes;
    state.counters[kBytes] = bytes;
  };
}

}  // namespace

void AddLibraryLoad(CRatioTable& table) {
  const Library full = {BENCH_LIBRARY, 271};
  const Library empty = {BENCH_EMPTY_TABLE, 0};
  const std::string without("the same without the field definitions");
  const CRatioTable::Pair time =
      table.AddPair({"library/time", "load the library", without, {}}, TimeOf(full), TimeOf(empty));
  time.ours->UseManualTime();
  time.other->UseManualTime();
  const CRatioTable::Pair bytes = table.AddPair({"library/memory", "memory of the library once loaded", without, {}},
                                                BytesOf(full), BytesOf(empty));
  bytes.ours->Iterations(1);
  bytes.other->Iterations(1);
}

}  // namespace bench
