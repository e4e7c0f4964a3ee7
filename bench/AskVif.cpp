// Loads an XML VIF and asks it ten questions, over and over: what python/bench/compare.py compares the
// Python package with. Prints the processor time of one round in microseconds, and the sum of the answers.
#include <VendorInfoFile.h>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <exception>

namespace {

constexpr VifIndex kAny = CVIFField::UNSPECIFIED_INDEX;

std::uint64_t Number(const CVendorInfoFile& vif, const char* name, VifIndexNumber component, VifIndexNumber pdo) {
  const VifIndex index = pdo != 0 ? VifIndex{eVifLocSrcPdo, pdo} : kAny;
  return vif.GetUniqueField(name, {eVifLocComponent, component}, index, kAny).GetULongNumericValue();
}

/// What python/bench/compare.py asks, in the same order.
std::uint64_t Ask(const CVendorInfoFile& vif) {
  std::uint64_t sum = std::strlen(vif.GetUniqueField("Vendor_Name", kAny, kAny, kAny).Description());
  sum += Number(vif, "PD_Port_Type", 1, 0);
  sum += Number(vif, "Num_Src_PDOs", 1, 0);
  sum += Number(vif, "PD_Power_As_Source", 1, 0);
  sum += Number(vif, "Src_PDO_Voltage", 1, 1);
  sum += Number(vif, "Src_PDO_Max_Current", 1, 1);
  sum += Number(vif, "Src_PDO_Voltage", 1, 2);
  sum += Number(vif, "Src_PDO_Max_Current", 1, 2);
  sum += vif.GetFields("Src_PDO_Voltage", {eVifLocComponent, 1}, kAny, kAny)->size();
  sum += vif.Count("SVID_SOP", {VifIndex{eVifLocComponent, 1}, kAny, kAny});
  return sum;
}

}  // namespace

int main(int argc, char** argv) {
  unsigned rounds = 0;
  if (argc != 3 || std::from_chars(argv[2], argv[2] + std::strlen(argv[2]), rounds).ec != std::errc() || rounds == 0) {
    std::fputs("usage: ask_vif FILE ROUNDS\n", stderr);
    return 2;
  }
  try {
    std::uint64_t sum = Ask(CVendorInfoFile(argv[1]));  // compiles the schemas
    const std::clock_t begin = std::clock();
    for (unsigned i = 0; i < rounds; ++i) sum = Ask(CVendorInfoFile(argv[1]));
    const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    std::printf("%.3f %ju\n", seconds * 1e6 / rounds, static_cast<std::uintmax_t>(sum));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "ask_vif: %s\n", error.what());
    return 1;
  }
  return 0;
}
