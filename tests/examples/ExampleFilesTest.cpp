// What the example files promise: that every line is understood, and that the numbers agree with each other.
#include "VIFTextCheck.h"
#include "VendorInfoFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

using testing::IsEmpty;

constexpr VifIndex kAny = CVIFField::UNSPECIFIED_INDEX;

std::filesystem::path Vif(const std::string& name) { return std::filesystem::path(EXAMPLES_FOLDER) / "vif" / name; }

std::string Bytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class ExampleFile : public testing::TestWithParam<const char*> {
 protected:
  // The number of the only field of that name and place; nothing when there is none, or more than one.
  std::optional<std::uint64_t> Number(const char* name, const VifIndex& place = kAny) const {
    std::optional<std::uint64_t> number;
    for (const CVIFField& field : *m_fields) {
      if (!field.Match(name, place, kAny, kAny)) continue;
      if (number) return std::nullopt;
      number = field.GetULongNumericValue();
    }
    return number;
  }

  // The numbers of the groups at a location inside the given place.
  std::set<std::size_t> Groups(EVifLocation location, const VifIndex& place = kAny) const {
    std::set<std::size_t> groups;
    for (const CVIFField& field : *m_fields) {
      if (field.HasIndex(location) && field.Match(nullptr, place, kAny, kAny)) groups.insert(field.Index(location));
    }
    return groups;
  }

  // The numbers 1 to count, where count is a field's number.
  static std::set<std::size_t> UpTo(std::optional<std::uint64_t> count) {
    std::set<std::size_t> numbers;
    for (std::size_t i = 1; i <= count.value_or(0); ++i) numbers.insert(i);
    return numbers;
  }

  VifFieldList m_fields = CVendorInfoFile(Vif(GetParam())).GetFields();
};

TEST_P(ExampleFile, HasNoLineThatIsNotUnderstoodAndNoUnknownName) {
  std::vector<std::string> problems;
  CheckTextVif(Vif(GetParam()), [&](const VifLineReport& report) { problems.emplace_back(report.text); });
  EXPECT_THAT(problems, IsEmpty());
}

TEST_P(ExampleFile, DeclaresNothingTwice) {
  std::set<std::string> seen;
  for (const CVIFField& field : *m_fields) {
    std::string key = field.Name();
    for (const auto& [location, number] : field.Indexes()) {
      key += ' ' + std::to_string(location) + ':' + std::to_string(number);
    }
    EXPECT_TRUE(seen.insert(key).second) << key;
  }
}

TEST_P(ExampleFile, HasAsManyPdosAsItSays) {
  EXPECT_EQ(Groups(eVifLocSrcPdo), UpTo(Number("Num_Src_PDOs")));
  EXPECT_EQ(Groups(eVifLocSnkPdo), UpTo(Number("Num_Snk_PDOs")));
}

TEST_P(ExampleFile, HasAsManySvidsAndModesAsItSays) {
  EXPECT_EQ(Groups(eVifLocSopSvid), UpTo(Number("Num_SVIDs_Max_SOP")));
  for (const std::size_t svid : Groups(eVifLocSopSvid)) {
    const VifIndex place = {eVifLocSopSvid, svid};
    EXPECT_EQ(Groups(eVifLocSopSvidMode, place), UpTo(Number("SVID_Num_Modes_Max_SOP", place)));
  }
  EXPECT_EQ(Groups(eVifLocCableSvid), UpTo(Number("Cable_Num_SVIDs_Max")));
  for (const std::size_t svid : Groups(eVifLocCableSvid)) {
    const VifIndex place = {eVifLocCableSvid, svid};
    EXPECT_EQ(Groups(eVifLocCableSvidMode, place), UpTo(Number("SVID_Num_Modes_Max", place)));
  }
}

TEST_P(ExampleFile, SpellsOutItsMillivoltsMilliamperesAndMilliwatts) {
  for (const CVIFField& field : *m_fields) {
    if (!field.Match("S.._PDO_(Min_|Max_|Op_)?(Voltage|Current|Power)", kAny, kAny, kAny)) continue;
    const EVifLocation side = field.HasIndex(eVifLocSrcPdo) ? eVifLocSrcPdo : eVifLocSnkPdo;
    const char* type = side == eVifLocSrcPdo ? "Src_PDO_Supply_Type" : "Snk_PDO_Supply_Type";
    const bool programmable = Number(type, {side, field.Index(side)}) == 3u;
    const bool voltage = field.Match(".*Voltage", kAny, kAny, kAny);
    const bool current = field.Match(".*Current", kAny, kAny, kAny);
    const std::uint64_t unit = voltage ? (programmable ? 100 : 50) : current ? (programmable ? 50 : 10) : 250;
    const char* symbol = voltage ? " mV" : current ? " mA" : " mW";
    EXPECT_EQ(field.Description(), std::to_string(field.GetULongNumericValue() * unit) + symbol) << field.Name();
  }
}

TEST_P(ExampleFile, StatesThePowerOfItsStrongestFixedPdo) {
  const auto strongest = [&](EVifLocation side, const std::string& prefix, const char* current) {
    std::uint64_t most = 0;
    for (const std::size_t pdo : Groups(side)) {
      const VifIndex place = {side, pdo};
      if (Number((prefix + "_Supply_Type").c_str(), place) != 0u) continue;
      const auto milliwatts = Number((prefix + "_Voltage").c_str(), place).value_or(0) * 50 *
                              Number((prefix + current).c_str(), place).value_or(0) * 10 / 1000;
      most = std::max(most, milliwatts);
    }
    return most;
  };
  EXPECT_EQ(strongest(eVifLocSrcPdo, "Src_PDO", "_Max_Current"), Number("PD_Power_As_Source").value_or(0));
  EXPECT_EQ(strongest(eVifLocSnkPdo, "Snk_PDO", "_Op_Current"), Number("PD_Power_As_Sink").value_or(0));
}

INSTANTIATE_TEST_SUITE_P(All, ExampleFile,
                         testing::Values("gan-charger-65w.txt", "dual-role-tablet.txt", "active-cable.txt"),
                         [](const auto& file) {
                           const std::string name = file.param;
                           return name.substr(0, name.find('-'));
                         });

TEST(ExampleFiles, AreAllTested) {
  const std::filesystem::directory_iterator folder(std::filesystem::path(EXAMPLES_FOLDER) / "vif");
  std::set<std::string> names;
  for (const auto& entry : folder) names.insert(entry.path().filename().string());
  EXPECT_THAT(names, testing::ElementsAre("active-cable.txt", "dual-role-tablet.txt", "gan-charger-65w.txt",
                                          "gan-charger-65w.xml", "two-port-laptop.xml", "usb4-dock.xml"));
}

TEST(ExampleFiles, KeepTheLineEndsOfTheirEditors) {
  const std::string crLf = Bytes(Vif("dual-role-tablet.txt"));
  EXPECT_GT(std::count(crLf.begin(), crLf.end(), '\n'), 0);
  for (std::size_t lf = crLf.find('\n'); lf != std::string::npos; lf = crLf.find('\n', lf + 1)) {
    EXPECT_EQ(crLf[lf - 1], '\r');
  }
  EXPECT_EQ(Bytes(Vif("gan-charger-65w.txt")).find('\r'), std::string::npos);
  EXPECT_EQ(Bytes(Vif("active-cable.txt")).find('\r'), std::string::npos);
}

}  // namespace
