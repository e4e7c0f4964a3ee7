// Loading text VIFs, compared with the obvious reader and with a floor: reading the file, splitting it at line ends and
// at the first colon, and keeping three strings per line.
#include "LoadWork.h"
#include "ObviousReader.h"
#include "Samples.h"
#include "Subjects.h"
#include "VendorInfoFile.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

namespace {

bool IsSame(const CVIFField& one, const CVIFField& other) {
  return one.IsNumeric() == other.IsNumeric() && std::string_view(one.Name()) == other.Name() &&
         std::string_view(one.Value()) == other.Value() && std::string_view(one.Description()) == other.Description() &&
         one.Indexes() == other.Indexes() && one.GetNumericValue() == other.GetNumericValue();
}

/// The comparison is worthless unless both readers do the same. This sample contains every line of the others.
void RequireSameFields() {
  const CTempFile file(TextVif(300), ".txt");
  const VifFieldList ours = CVendorInfoFile(file.Path()).GetFields();
  const std::vector<CVIFField> other = ReadObviously(file.Path());
  if (ours->empty() || !std::equal(ours->begin(), ours->end(), other.begin(), other.end(), IsSame)) {
    throw std::runtime_error("the obvious reader and the library yield different fields");
  }
}

void LoadObviously(benchmark::State& state, const std::filesystem::path& path) {
  [[maybe_unused]] static const bool isChecked = (RequireSameFields(), true);
  while (state.KeepRunning()) benchmark::DoNotOptimize(ReadObviously(path).size());
}

struct ThreeStrings {
  std::string name;
  std::string value;
  std::string rest;
};

void SplitAtColons(benchmark::State& state, const std::filesystem::path& path) {
  while (state.KeepRunning()) {
    std::ifstream in(path);
    std::vector<ThreeStrings> records;
    for (std::string line; std::getline(in, line);) {
      const std::size_t colon = line.find(':');
      if (colon == std::string::npos) continue;
      records.push_back({line.substr(0, colon), line.substr(colon + 1), line});
    }
    benchmark::DoNotOptimize(records.data());
  }
}

using LoadFile = void (*)(benchmark::State& state, const std::filesystem::path& path);

Work OnLines(LoadFile load, std::size_t lines) {
  return [=](benchmark::State& state) {
    const CTempFile file(TextVif(lines), ".txt");
    load(state, file.Path());
  };
}

}  // namespace

void AddTextLoad(CRatioTable& table) {
  constexpr std::size_t few = 300;
  constexpr std::size_t many = 100'000;
  const std::string loadFew("load a text VIF of 300 lines");
  const std::string loadMany("load a text VIF of 100,000 lines");

  const std::string obvious("the same reader with `std::regex`");
  const Goal manyTimes = AtLeastTimesAsFast(300);
  table.AddPair({"text/300/regex", loadFew, obvious, manyTimes}, OnLines(LoadOver, few), OnLines(LoadObviously, few));
  const CRatioTable::Pair slow = table.AddPair({"text/100000/regex", loadMany, obvious, manyTimes},
                                               OnLines(LoadOver, many), OnLines(LoadObviously, many));
  slow.other->Iterations(1)->Repetitions(3);  // many seconds each

  const std::string floor("split at line ends and colons, keep three strings a line");
  table.AddPair({"text/300/floor", loadFew, floor, AtMost(2)}, OnLines(LoadOver, few), OnLines(SplitAtColons, few));
  table.AddPair({"text/100000/floor", loadMany, floor, AtMost(2)}, OnLines(LoadOver, many),
                OnLines(SplitAtColons, many));
}

}  // namespace bench
