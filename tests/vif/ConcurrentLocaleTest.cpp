// Threads that query at once after the host has set a global locale. Useful under ThreadSanitizer: each round has a
// locale of its own, whose character tables are still unfilled.
#include "VendorInfoFile.h"

#include "support/InAllThreads.h"
#include "support/Latin1Locale.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <functional>
#include <locale>
#include <stdexcept>
#include <vector>

namespace {

using testing::Each;
using testsupport::InAllThreads;

constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr int kRounds = 40;

void ExpectAnswersInFreshLocales(const std::function<std::locale()>& makeLocale) {
  const std::array slots = {kUnused, kUnused, kUnused};
  const CVendorInfoFile vif(
      std::vector<CVIFField>{CVIFField(true, "Src_PDO_Voltage1", "1", slots), CVIFField(true, "Src_PDO", "2", slots)});
  for (int round = 0; round < kRounds; ++round) {
    const testsupport::CScopedGlobalLocale global(makeLocale());
    const auto counts = InAllThreads([&](std::size_t) { return vif.Count("Src_[[:alpha:]]+_.*[0-9]", slots); });
    EXPECT_THAT(counts, Each(1U));
  }
}

TEST(ConcurrentQueriesInALocale, OfTheSystemCompileTheirFirstExpressionsAtOnce) {
  for (const char* name : {"C.UTF-8", "C"}) {
    try {
      const std::locale available(name);
    } catch (const std::runtime_error&) {
      continue;  // only "C" exists everywhere
    }
    ExpectAnswersInFreshLocales([=] { return std::locale(name); });
  }
}

TEST(ConcurrentQueriesInALocale, OfTheHostsOwnFacetsCompileTheirFirstExpressionsAtOnce) {
  ExpectAnswersInFreshLocales(testsupport::Latin1Locale);
}

TEST(ConcurrentQueriesInALocale, ThatCombinesOthersCompileTheirFirstExpressionsAtOnce) {
  ExpectAnswersInFreshLocales(
      [] { return std::locale(std::locale::classic(), testsupport::Latin1Locale(), std::locale::ctype); });
}

}  // namespace
