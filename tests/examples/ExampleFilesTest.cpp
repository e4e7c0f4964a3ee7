// What the example files promise: everything in them is understood, and their numbers are consistent.
#include "ExampleFolder.h"
#include "VIFTextCheck.h"
#include "VIFXmlCheck.h"
#include "VendorInfoFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

using testing::AnyOf;
using testing::Contains;
using testing::IsEmpty;
using testing::StrEq;

using Fields = std::vector<CVIFField>;

constexpr VifIndex kAny = CVIFField::UNSPECIFIED_INDEX;

const std::vector<std::string> kTextFiles = {"active-cable.txt", "dual-role-tablet.txt", "gan-charger-65w.txt"};
const std::vector<std::string> kXmlFiles = {"gan-charger-65w.xml", "two-port-laptop.xml", "usb4-dock.xml"};

std::string Bytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The number of the only field of that name and location; nothing if there is none, or more than one.
std::optional<std::uint64_t> Number(const Fields& fields, const char* name, const VifIndex& place = kAny) {
  std::optional<std::uint64_t> number;
  for (const CVIFField& field : fields) {
    if (!field.Match(name, place, kAny, kAny)) continue;
    if (number) return std::nullopt;
    number = field.GetULongNumericValue();
  }
  return number;
}

// The numbers of the groups at a location within the given group.
std::set<VifIndexNumber> Groups(const Fields& fields, EVifLocation location, const VifIndex& place = kAny) {
  std::set<VifIndexNumber> groups;
  for (const CVIFField& field : fields) {
    if (field.HasIndex(location) && field.Match(nullptr, place, kAny, kAny)) groups.insert(field.Index(location));
  }
  return groups;
}

// The numbers from 1 to the number of a field.
std::set<VifIndexNumber> UpTo(std::optional<std::uint64_t> count) {
  std::set<VifIndexNumber> numbers;
  for (std::size_t i = 1; i <= count.value_or(0); ++i) numbers.insert(i);
  return numbers;
}

class ExampleFile : public testing::TestWithParam<std::string> {
 protected:
  // The fields of each component.
  std::vector<Fields> Components() const {
    std::vector<Fields> components;
    for (std::size_t i = 1; i <= m_vif.ComponentCount(); ++i) components.push_back(*m_vif.GetComponent(i));
    return components;
  }

  const CVendorInfoFile m_vif{ExampleVif(GetParam())};
};

class TextExampleFile : public ExampleFile {};
class XmlExampleFile : public ExampleFile {};

TEST_P(TextExampleFile, HasOnlyUnderstoodLinesAndKnownNames) {
  std::vector<std::string> problems;
  CheckTextVif(ExampleVif(GetParam()), [&](const VifLineReport& report) { problems.emplace_back(report.text); });
  EXPECT_THAT(problems, IsEmpty());
}

TEST_P(XmlExampleFile, HasNoSkippedElement) {
  std::vector<std::string> passedOver;
  CheckXmlVif(ExampleVif(GetParam()), [&](const VifElementReport& report) {
    if (report.field == nullptr) passedOver.push_back(report.path);
  });
  EXPECT_THAT(passedOver, IsEmpty());
}

TEST_P(XmlExampleFile, HasNoUnknownName) {
  std::set<std::wstring> known;
  for (const VifFieldDef& definition : VifFieldDefs::GetVifFieldDefs()) known.insert(definition.name);
  const VifFieldList fields = m_vif.GetFields();
  for (const CVIFField& field : *fields) {
    const std::string name = field.Name();
    EXPECT_THAT(known, Contains(std::wstring(name.begin(), name.end())));
  }
}

TEST_P(ExampleFile, DeclaresNothingTwice) {
  std::set<std::string> seen;
  const VifFieldList fields = m_vif.GetFields();
  for (const CVIFField& field : *fields) {
    std::string key = field.Name();
    for (const auto& [location, number] : field.Indexes()) {
      key += ' ' + std::to_string(location) + ':' + std::to_string(number);
    }
    EXPECT_TRUE(seen.insert(key).second) << key;
  }
}

TEST_P(ExampleFile, HasAsManyPdosAsItStates) {
  for (const Fields& component : Components()) {
    EXPECT_EQ(Groups(component, eVifLocSrcPdo), UpTo(Number(component, "Num_Src_PDOs")));
    EXPECT_EQ(Groups(component, eVifLocSnkPdo), UpTo(Number(component, "Num_Snk_PDOs")));
  }
}

TEST_P(ExampleFile, HasAsManySvidsAndModesAsItStates) {
  for (const Fields& component : Components()) {
    EXPECT_EQ(Groups(component, eVifLocSopSvid), UpTo(Number(component, "Num_SVIDs_Max_SOP")));
    for (const VifIndexNumber svid : Groups(component, eVifLocSopSvid)) {
      const VifIndex place = {eVifLocSopSvid, svid};
      EXPECT_EQ(Groups(component, eVifLocSopSvidMode, place), UpTo(Number(component, "SVID_Num_Modes_Max_SOP", place)));
    }
    EXPECT_EQ(Groups(component, eVifLocCableSvid), UpTo(Number(component, "Cable_Num_SVIDs_Max")));
    for (const VifIndexNumber svid : Groups(component, eVifLocCableSvid)) {
      const VifIndex place = {eVifLocCableSvid, svid};
      EXPECT_EQ(Groups(component, eVifLocCableSvidMode, place), UpTo(Number(component, "SVID_Num_Modes_Max", place)));
    }
  }
}

TEST_P(ExampleFile, HasAsManyPcieEndpointsAsItsRoutersState) {
  const VifFieldList fields = m_vif.GetFields();
  for (const VifIndexNumber router : Groups(*fields, eVifLocRouter)) {
    const VifIndex place = {eVifLocRouter, router};
    EXPECT_EQ(Groups(*fields, eVifLocRouterPcie, place), UpTo(Number(*fields, "USB4_Num_PCIe_Endpoints", place)));
  }
}

TEST_P(ExampleFile, HasTheRoutersThatItsPortsBelongTo) {
  const std::set<VifIndexNumber> routers = Groups(*m_vif.GetFields(), eVifLocRouter);
  for (const Fields& component : Components()) {
    const std::optional<std::uint64_t> router = Number(component, "USB4_Router_Index");
    if (!router) continue;
    EXPECT_THAT(routers, Contains(*router));
  }
}

// In text VIFs the format stops at "5000 mV"; editors of XML VIFs also write "5000 mV (Factor = 50)".
TEST_P(ExampleFile, SpellsOutItsMillivoltsMilliamperesAndMilliwatts) {
  for (const Fields& component : Components()) {
    for (const CVIFField& field : component) {
      if (!field.Match("S.._PDO_(Min_|Max_|Op_)?(Voltage|Current|Power)", kAny, kAny, kAny)) continue;
      const EVifLocation side = field.HasIndex(eVifLocSrcPdo) ? eVifLocSrcPdo : eVifLocSnkPdo;
      const char* type = side == eVifLocSrcPdo ? "Src_PDO_Supply_Type" : "Snk_PDO_Supply_Type";
      const bool programmable = Number(component, type, {side, field.Index(side)}) == 3u;
      const bool voltage = field.Match(".*Voltage", kAny, kAny, kAny);
      const bool current = field.Match(".*Current", kAny, kAny, kAny);
      const std::uint64_t unit = voltage ? (programmable ? 100 : 50) : current ? (programmable ? 50 : 10) : 250;
      const char* symbol = voltage ? " mV" : current ? " mA" : " mW";
      const std::string text = std::to_string(field.GetULongNumericValue() * unit) + symbol;
      EXPECT_THAT(field.Description(), AnyOf(StrEq(text), StrEq(text + " (Factor = " + std::to_string(unit) + ')')))
          << field.Name();
    }
  }
}

TEST_P(ExampleFile, StatesThePowerOfItsStrongestFixedPdo) {
  const auto strongest = [](const Fields& fields, EVifLocation side, const std::string& prefix, const char* current) {
    std::uint64_t most = 0;
    for (const VifIndexNumber pdo : Groups(fields, side)) {
      const VifIndex place = {side, pdo};
      if (Number(fields, (prefix + "_Supply_Type").c_str(), place) != 0u) continue;
      const auto milliwatts = Number(fields, (prefix + "_Voltage").c_str(), place).value_or(0) * 50 *
                              Number(fields, (prefix + current).c_str(), place).value_or(0) * 10 / 1000;
      most = std::max(most, milliwatts);
    }
    return most;
  };
  for (const Fields& component : Components()) {
    EXPECT_EQ(strongest(component, eVifLocSrcPdo, "Src_PDO", "_Max_Current"),
              Number(component, "PD_Power_As_Source").value_or(0));
    EXPECT_EQ(strongest(component, eVifLocSnkPdo, "Snk_PDO", "_Op_Current"),
              Number(component, "PD_Power_As_Sink").value_or(0));
  }
}

// The name of the file, with underscores for characters that test names cannot contain.
std::string TestName(const testing::TestParamInfo<std::string>& file) {
  std::string name = file.param;
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(Text, ExampleFile, testing::ValuesIn(kTextFiles), TestName);
INSTANTIATE_TEST_SUITE_P(Xml, ExampleFile, testing::ValuesIn(kXmlFiles), TestName);
INSTANTIATE_TEST_SUITE_P(All, TextExampleFile, testing::ValuesIn(kTextFiles), TestName);
INSTANTIATE_TEST_SUITE_P(All, XmlExampleFile, testing::ValuesIn(kXmlFiles), TestName);

TEST(ExampleFiles, AreAllTested) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(ExampleVif(""))) {
    names.push_back(entry.path().filename().string());
  }
  std::vector<std::string> tested = kTextFiles;
  tested.insert(tested.end(), kXmlFiles.begin(), kXmlFiles.end());
  EXPECT_THAT(names, testing::UnorderedElementsAreArray(tested));
}

TEST(ExampleFiles, KeepTheLineEndsOfTheirEditors) {
  const std::string crLf = Bytes(ExampleVif("dual-role-tablet.txt"));
  EXPECT_GT(std::count(crLf.begin(), crLf.end(), '\n'), 0);
  for (std::size_t lf = crLf.find('\n'); lf != std::string::npos; lf = crLf.find('\n', lf + 1)) {
    EXPECT_EQ(crLf[lf - 1], '\r');
  }
  EXPECT_EQ(Bytes(ExampleVif("gan-charger-65w.txt")).find('\r'), std::string::npos);
  EXPECT_EQ(Bytes(ExampleVif("active-cable.txt")).find('\r'), std::string::npos);
}

}  // namespace
