// What comparing costs for one field in files of different sizes.
#include "Samples.h"
#include "Subjects.h"

#include <analysis/Differences.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace bench {

namespace {

using Fields = std::vector<CVIFField>;

/// Two lists of fields to compare.
using Pair = std::pair<Fields, Fields>;

/// Fields of all kinds of groups, every tenth of which has another value.
Pair ChangedFields(std::size_t count) {
  Fields before = SampleFields(count);
  Fields after = before;
  for (std::size_t i = 0; i < after.size(); i += 10) {
    after[i] = CVIFField(true, after[i].Name(), "12345", after[i].Indexes());
  }
  return {std::move(before), std::move(after)};
}

Fields Pdos(std::size_t count, std::uint64_t firstVoltage, const std::string& current) {
  Fields fields;
  const VifIndex none = CVIFField::UNSPECIFIED_INDEX;
  for (std::size_t i = 0; i < count; ++i) {
    const VifIndex component = {eVifLocComponent, 1};
    const VifIndex pdo = {eVifLocSrcPdo, i + 1};
    fields.emplace_back(true, "Src_PDO_Supply_Type", "0", component, pdo, none);
    fields.emplace_back(true, "Src_PDO_Voltage", std::to_string(firstVoltage + i), component, pdo, none);
    fields.emplace_back(true, "Src_PDO_Max_Current", current, component, pdo, none);
  }
  return fields;
}

/// PDOs of which no two are equal, so that aligning them takes longest.
Pair ChangedPdos(std::size_t fields) { return {Pdos(fields / 3, 0, "300"), Pdos(fields / 3, 1'000'000, "325")}; }

Work TimePerField(Pair (*make)(std::size_t fields), std::size_t count) {
  return [=](benchmark::State& state) {
    const Pair pair = make(count);
    if (vifanalysis::Compare(pair.first, pair.second).IsEmpty()) throw std::runtime_error("nothing differs");
    state.counters[kFields] = static_cast<double>(pair.first.size() + pair.second.size());
    while (state.KeepRunning()) benchmark::DoNotOptimize(vifanalysis::Compare(pair.first, pair.second));
  };
}

}  // namespace

void AddDifferences(CRatioTable& table) {
  table.AddSpread({"growth/diff/time", "time per field, comparing 1,000 to 1,000,000 fields of all kinds",
                   "least of these sizes", AtMost(2.0)},
                  {{"1,000", TimePerField(ChangedFields, 1'000)},
                   {"10,000", TimePerField(ChangedFields, 10'000)},
                   {"100,000", TimePerField(ChangedFields, 100'000)},
                   {"1,000,000", TimePerField(ChangedFields, 1'000'000)}});
  table.AddSpread({"growth/diff/pdos", "time per field, comparing 333 to 333,333 PDOs without equal ones",
                   "least of these sizes", AtMost(2.0)},
                  {{"1,000", TimePerField(ChangedPdos, 1'000)},
                   {"10,000", TimePerField(ChangedPdos, 10'000)},
                   {"100,000", TimePerField(ChangedPdos, 100'000)},
                   {"1,000,000", TimePerField(ChangedPdos, 1'000'000)}});
}

}  // namespace bench
