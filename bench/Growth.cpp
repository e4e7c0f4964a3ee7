// What one field costs in files of different sizes.
#include "ChildProcess.h"
#include "LoadWork.h"
#include "Samples.h"
#include "Subjects.h"
#include "VendorInfoFile.h"

#include <algorithm>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace bench {

namespace {

/// One form of VIFs.
struct Form {
  std::string name;
  std::string extension;
  std::string (*content)(std::size_t size);  // with about that many lines or elements
};

std::string XmlVifOfElements(std::size_t elements) {
  constexpr std::size_t elementsOfTwoComponents = 290;  // of the laptop, roughly
  const std::size_t pairs = (elements + elementsOfTwoComponents / 2) / elementsOfTwoComponents;
  return XmlVif(2 * std::max<std::size_t>(pairs, 1));
}

Work TimePerField(const Form& form, std::size_t size) {
  return [=](benchmark::State& state) {
    const CTempFile file(form.content(size), form.extension);
    state.counters[kFields] = static_cast<double>(CVendorInfoFile(file.Path()).Count());
    LoadOver(state, file.Path());
  };
}

struct Loaded {
  double fields = 0;
  double peakBytes = 0;
};

/// Loads a file in a separate process.
Loaded Load(const CTempFile& file) {
  std::istringstream output(OutputOf({BENCH_LOAD_PROBE, file.Path().string()}));
  Loaded loaded;
  if (!(output >> loaded.fields >> loaded.peakBytes)) throw std::runtime_error("the load probe printed nothing");
  return loaded;
}

/// Without what a process needs that loads next to nothing.
Work PeakPerField(const Form& form, std::size_t size) {
  return [=](benchmark::State& state) {
    const CTempFile smallest(form.content(0), form.extension);
    const CTempFile file(form.content(size), form.extension);
    while (state.KeepRunning()) {
      const Loaded small = Load(smallest);
      const Loaded large = Load(file);
      state.counters[kBytes] = (large.peakBytes - small.peakBytes) / (large.fields - small.fields);
    }
  };
}

using SizedWork = Work (*)(const Form& form, std::size_t size);

std::vector<std::pair<std::string, Work>> OfAllSizes(SizedWork work, const Form& form) {
  return {{"1,000", work(form, 1'000)},
          {"10,000", work(form, 10'000)},
          {"100,000", work(form, 100'000)},
          {"1,000,000", work(form, 1'000'000)}};
}

void AddForm(CRatioTable& table, const Form& form, const std::string& what) {
  table.AddSpread({"growth/" + form.name + "/time", "time per field, " + what, "least of these sizes", AtMost(1.15)},
                  OfAllSizes(TimePerField, form));
  const std::vector<Benchmark*> peaks =
      table.AddSpread({"growth/" + form.name + "/memory", "peak memory per field, " + what, "least of these sizes", {}},
                      OfAllSizes(PeakPerField, form));
  for (Benchmark* const peak : peaks) peak->Iterations(1)->Repetitions(3);
}

}  // namespace

void AddGrowth(CRatioTable& table) {
  AddForm(table, {"text", ".txt", TextVif}, "text VIFs of 1,000 to 1,000,000 lines");
  AddForm(table, {"xml", ".xml", XmlVifOfElements}, "XML VIFs of 1,000 to 1,000,000 elements");
}

}  // namespace bench
