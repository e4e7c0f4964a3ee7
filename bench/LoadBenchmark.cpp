// How the cost of loading a text VIF grows with its length. Beside it, in the same run, a floor: reading the file,
// splitting it at line ends and at the first colon, and keeping three strings a line.
#include <VendorInfoFile.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace {

/// A text VIF of that many lines, in the mixture that real files have, in a file that is removed at the end.
class SampleFile {
 public:
  explicit SampleFile(std::int64_t lines)
      : m_path(std::filesystem::temp_directory_path() /
               ("vif-benchmark-" + std::to_string(std::random_device()()) + ".txt")) {
    std::ofstream out(m_path, std::ios::binary);
    for (std::int64_t i = 0; i < lines; ++i) out << kLines[static_cast<std::size_t>(i) % std::size(kLines)] << "\r\n";
  }
  ~SampleFile() { std::filesystem::remove(m_path); }
  SampleFile(const SampleFile&) = delete;
  SampleFile& operator=(const SampleFile&) = delete;

  const std::filesystem::path& Path() const { return m_path; }

 private:
  static constexpr const char* kLines[] = {
      ";;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;;",
      "Src_PDO_Supply_Type2: 0 ; Fixed",
      "Src_PDO_Voltage2: 180 ; 9000 mV",
      "Src_PDO_Max_Current2: 300 ; 3000 mA",
      "$Vendor_Name: \"A maker; of things\" ; who made it",
      "Captive_Cable: NO",
      "Unchunked_Extended_Messages_Supported: YES",
      "SVID2_Mode1_Recog_Mask_SOP: 0x00FFFFFF",
      "USB_VID_SOP: 0x1A2B",
      "Type_C_Supports_VCONN_Powered_Accessory: NO",
  };

  std::filesystem::path m_path;
};

void LoadTextVif(benchmark::State& state) {
  const SampleFile file(state.range(0));
  for (auto _ : state) {
    const CVendorInfoFile vif(file.Path());
    benchmark::DoNotOptimize(vif.Count());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

struct ThreeStrings {
  std::string name;
  std::string value;
  std::string rest;
};

void SplitAtColons(benchmark::State& state) {
  const SampleFile file(state.range(0));
  for (auto _ : state) {
    std::ifstream in(file.Path());
    std::vector<ThreeStrings> records;
    for (std::string line; std::getline(in, line);) {
      const std::size_t colon = line.find(':');
      if (colon == std::string::npos) continue;
      records.push_back({line.substr(0, colon), line.substr(colon + 1), line});
    }
    benchmark::DoNotOptimize(records.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(LoadTextVif)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(SplitAtColons)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

}  // namespace
