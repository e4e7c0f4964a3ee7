// Constructing objects, except from XML files.
#include "Outcome.h"
#include "Samples.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"
#include "vif/QueryOutcome.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace {

using testsupport::COutcome;
using testsupport::FieldTexts;
using testsupport::ForEveryFailingAllocation;

/// Constructs with memory running out; a resulting object must hold exactly these fields.
template <typename Construct>
void ExpectConstructionSurvivesFailures(const std::vector<std::string>& expected, const Construct& construct) {
  ForEveryFailingAllocation(construct, [&](const std::optional<CVendorInfoFile>& vif) {
    if (vif) {
      EXPECT_EQ(FieldTexts(*vif->GetFields()), expected);
    }
  });
}

/// Constructs from a file that is refused; if memory suffices, the refusal must have the expected message.
void ExpectRefusalSurvivesFailures(const std::filesystem::path& path, const std::string& expected) {
  const auto load = [&] { return CVendorInfoFile(path).Count(); };
  EXPECT_EQ(testsupport::OutcomeOf(load), expected);
  ForEveryFailingAllocation([&] { return COutcome(load); },
                            [&](const auto& outcome) {
                              if (outcome) {
                                EXPECT_EQ(testsupport::OutcomeOf([&] { return outcome->Get(); }), expected);
                              }
                            });
}

TEST(ConstructionMemory, Empty) {
  ExpectConstructionSurvivesFailures({}, [] { return CVendorInfoFile(); });
}

TEST(ConstructionMemory, FromNullAndFromAnEmptyPath) {
  ExpectConstructionSurvivesFailures({}, [] { return CVendorInfoFile(nullptr); });
  ExpectConstructionSurvivesFailures({}, [] { return CVendorInfoFile(std::filesystem::path()); });
}

TEST(ConstructionMemory, FromAFieldList) {
  const std::vector<CVIFField> fields = testsupport::SampleFields();
  const std::vector<std::string> expected = FieldTexts(fields);
  ExpectConstructionSurvivesFailures(expected, [&] { return CVendorInfoFile(fields); });
  EXPECT_EQ(FieldTexts(fields), expected);
}

TEST(ConstructionMemory, FromATextFile) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a file with a long name.txt", testsupport::TextVif());
  const std::vector<std::string> expected = FieldTexts(*CVendorInfoFile(path).GetFields());
  ASSERT_EQ(expected.size(), testsupport::kTextFieldCount);
  ExpectConstructionSurvivesFailures(expected, [&] { return CVendorInfoFile(path); });
}

// Longer than a single read, and with a line that is also longer.
TEST(ConstructionMemory, FromALongTextFile) {
  const testsupport::TempDir dir;
  std::string text = "$Vendor_Name: \"" + std::string(200'000, 'v') + "\"\n";
  for (int i = 0; i < 100; ++i) text += testsupport::TextVif();
  const std::filesystem::path path = dir.Write("long.txt", text);
  const std::vector<std::string> expected = FieldTexts(*CVendorInfoFile(path).GetFields());
  ASSERT_EQ(expected.size(), 100 * testsupport::kTextFieldCount + 1);
  constexpr std::size_t everyUpTo = 200;
  ForEveryFailingAllocation([] { return std::optional<CVendorInfoFile>(); },
                            [&](std::optional<CVendorInfoFile>& vif) { vif.emplace(path); },
                            [&](const std::optional<CVendorInfoFile>& vif, bool isDone) {
                              if (isDone) {
                                EXPECT_EQ(FieldTexts(*vif->GetFields()), expected);
                              }
                            },
                            everyUpTo);
}

TEST(ConstructionMemory, FromATextFileWithTheCallersDefinitions) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a.txt", testsupport::TextVif());
  std::vector<VifFieldDef> definitions = {{L"Src_PDO_Voltage_Of_A_Name_That_Is_Long",
                                           std::wregex(L"Src_PDO_Voltage([0-9]+)"),
                                           {eVifLocComponent, eVifLocSrcPdo}},
                                          {L"Nothing", std::wregex(L"(Name_Of_)?Nothing_.*"), {}}};
  const std::vector<std::string> expected = FieldTexts(*CVendorInfoFile(path, &definitions).GetFields());
  ExpectConstructionSurvivesFailures(expected, [&] { return CVendorInfoFile(path, &definitions); });
}

TEST(ConstructionMemory, FromAFileThatDoesNotExist) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Path() / "no file of that name.txt";
  ExpectRefusalSurvivesFailures(path, "CZoRunTimeException: VIF Does not exist. (name: " + path.string() + ")");
}

TEST(ConstructionMemory, FromAFileOfAnotherType) {
  const testsupport::TempDir dir;
  ExpectRefusalSurvivesFailures(dir.Write("a file with a long name.jpeg", ""),
                                "CZoRunTimeException: Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)");
}

TEST(ConstructionMemory, FromADirectory) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Path() / "a directory with a long name.txt";
  std::filesystem::create_directory(path);
  ExpectRefusalSurvivesFailures(path, "CZoRunTimeException: Couldn't open Vendor Info File: " + path.string() + ".");
}

}  // namespace
