// Checking how a text file becomes fields.
#include "Samples.h"
#include "VIFTextCheck.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <optional>

namespace {

using testsupport::ForEveryFailingAllocation;

/// How often each observer has been called. They allocate nothing, so that only the library's allocations fail.
struct Told {
  bool operator==(const Told&) const = default;

  std::size_t notUnderstood = 0;
  std::size_t unknown = 0;
  std::size_t other = 0;
  std::size_t fields = 0;
};

Told Check(const std::filesystem::path& path, const std::vector<VifFieldDef>* definitions) {
  Told told;
  const auto onLine = [&](const VifLineReport& report) {
    ++(report.problem == eVifLineNotUnderstood ? told.notUnderstood
       : report.problem == eVifLineUnknownName ? told.unknown
                                               : told.other);
  };
  CheckTextVif(path, onLine, definitions, [&](std::size_t, const CVIFField&) { ++told.fields; });
  return told;
}

TEST(CheckTextMemory, CheckTextVif) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a file with a long name.txt", testsupport::TextVif());
  ForEveryFailingAllocation([&] { return Check(path, nullptr); },
                            [](const std::optional<Told>& told) {
                              if (told) {
                                EXPECT_EQ(*told, (Told{1, 2, 0, testsupport::kTextFieldCount}));
                              }
                            });
}

TEST(CheckTextMemory, CheckTextVifWithTheCallersDefinitions) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a file with a long name.txt", testsupport::TextVif());
  const std::vector<VifFieldDef> definitions = {{L"PID", std::wregex(L"PID"), {eVifLocVif}}};
  ForEveryFailingAllocation([&] { return Check(path, &definitions); },
                            [](const std::optional<Told>& told) {
                              if (told) {
                                EXPECT_EQ(*told, (Told{1, 5, 0, testsupport::kTextFieldCount}));
                              }
                            });
}

TEST(CheckTextMemory, CheckTextVifWithoutObservers) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a file with a long name.txt", testsupport::TextVif());
  const auto operation = [&] {
    CheckTextVif(path, nullptr);
    return true;
  };
  ForEveryFailingAllocation(operation, [&](const std::optional<bool>&) {
    EXPECT_EQ(Check(path, nullptr).fields, testsupport::kTextFieldCount);
  });
}

}  // namespace
