// The C interface compared with the C++ library that it calls.
#include "LoadWork.h"
#include "Samples.h"
#include "Subjects.h"
#include "vif.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace bench {

namespace {

struct FreeFile {
  void operator()(vif_file* file) const { vif_file_free(file); }
};
using File = std::unique_ptr<vif_file, FreeFile>;

void Require(vif_status status) {
  if (status != VIF_OK) throw std::runtime_error(vif_status_text(status));
}

File Load(const std::filesystem::path& path) {
  vif_file* file = nullptr;
  Require(vif_file_make(&file, nullptr));
  File owner(file);
  Require(vif_file_load(file, path.c_str(), nullptr, nullptr));
  return owner;
}

void LoadThroughC(benchmark::State& state) {
  const std::filesystem::path path = TwoPortLaptop();
  while (state.KeepRunning()) benchmark::DoNotOptimize(vif_file_field_count(Load(path).get()));
}

void LoadThroughCpp(benchmark::State& state) { LoadOver(state, TwoPortLaptop()); }

void ReadFields(benchmark::State& state) {
  const File file = Load(TwoPortLaptop());
  const std::size_t count = vif_file_field_count(file.get());
  vif_field field;
  field.size = sizeof(field);
  while (state.KeepRunning()) {
    for (std::size_t i = 0; i < count; ++i) {
      Require(vif_file_field(file.get(), i, &field));
      benchmark::DoNotOptimize(field.number);
    }
  }
}

}  // namespace

void AddCInterface(CRatioTable& table) {
  table.AddPair({"c/load", "load the XML VIF of the two-port laptop through the C interface",
                 "loading it by the C++ library", AtMost(1.05)},
                LoadThroughC, LoadThroughCpp);
  table.AddPair(
      {"c/fields", "read all its fields through the C interface", "loading it by the C++ library", AtMost(0.1)},
      ReadFields, LoadThroughCpp);
}

}  // namespace bench
