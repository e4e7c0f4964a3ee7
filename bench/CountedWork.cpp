// Fixed work whose instructions are counted (scripts/check-instructions.sh).
//
//   counted_work CASE    writes files to the current directory
#include "Samples.h"
#include "VendorInfoFile.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <functional>
#include <iterator>
#include <string_view>

namespace {

using Work = std::function<std::size_t()>;

// Fixed names, because even the length of a name affects the count.
constexpr const char* kText = "counted.txt";
constexpr const char* kXml = "counted.xml";

constexpr VifIndex kAny = CVIFField::UNSPECIFIED_INDEX;

Work LoadText() {
  bench::WriteFile(kText, bench::TextVif(300));
  return [] { return CVendorInfoFile(kText).Count(); };
}

Work LoadXml() {
  bench::WriteFile(kXml, bench::XmlVif(2));
  return [] { return CVendorInfoFile(kXml).Count(); };
}

Work QueryLocation() {
  return [vif = CVendorInfoFile(bench::SampleFields(10'000))] {
    return vif.Count(nullptr, {eVifLocComponent, 3}, {eVifLocSrcPdo, 2}, kAny);
  };
}

Work QueryName() {
  return [vif = CVendorInfoFile(bench::SampleFields(10'000))] {
    return vif.GetUniqueField(bench::kUniqueName, kAny, kAny, kAny).IndexCount();
  };
}

Work QueryExpression() {
  return [vif = CVendorInfoFile(bench::SampleFields(1'000))] { return vif.Count("Src_PDO_.*", kAny, kAny, kAny); };
}

struct Case {
  std::string_view name;
  Work (*prepare)();
};

constexpr Case kCases[] = {{"load-text", LoadText},
                           {"load-xml", LoadXml},
                           {"query-location", QueryLocation},
                           {"query-name", QueryName},
                           {"query-expression", QueryExpression}};

}  // namespace

/// Instructions are counted while this runs. It stores the answer, so that it does not end in a tail call.
extern "C" __attribute__((noinline)) void CountedWork(const Work& work, std::size_t& answer) { answer = work(); }

/// Replaces libc's for libxml2, whose hash tables are seeded with the start time, which would affect how many
/// instructions a look-up takes.
extern "C" __attribute__((visibility("default"))) time_t time(time_t* result) noexcept {
  constexpr time_t always = 1'000'000'000;
  if (result != nullptr) *result = always;
  return always;
}

int main(int argc, char** argv) {
  try {
    const std::string_view name = argc == 2 ? argv[1] : "";
    const auto* const found =
        std::find_if(std::begin(kCases), std::end(kCases), [&](const Case& one) { return one.name == name; });
    if (found == std::end(kCases)) {
      for (const Case& one : kCases) std::fprintf(stderr, "%s\n", one.name.data());
      return EXIT_FAILURE;
    }
    const Work work = found->prepare();
    work();  // compiles schemas, fills caches, resolves symbols
    std::size_t answer = 0;
    CountedWork(work, answer);
    return answer > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
  }
}
