// Threads that load files at once, each into its own object. Most useful under ThreadSanitizer, with each test in a
// process of its own, so that its threads are the first to compile the schemas and expressions and to create everything
// else that is created only once.
#include "BaseUtilities/Exceptions.h"
#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/InAllThreads.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using testsupport::InAllThreads;
using testsupport::kThreads;
using testsupport::TempDir;
using testsupport::XmlVif;

constexpr int kRounds = 10;

std::string Joined(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += text + '\n';
  return joined;
}

/// The fields loaded, or the failure.
std::string LoadOutcome(const std::filesystem::path& path) {
  try {
    return Joined(testsupport::FieldTexts(*CVendorInfoFile(path).GetFields()));
  } catch (const CVIFInvalidFile& error) {
    return std::string("not valid: ") + error.what();
  } catch (const CZoDOMDocException&) {
    return "cannot be resolved";
  } catch (const std::exception& error) {
    return error.what();
  }
}

/// Loads one file repeatedly in each thread. Outcomes are checked only afterwards, so that the threads are the first to
/// need what is created only once.
void ExpectOwnOutcomes(const std::vector<std::filesystem::path>& files) {
  const auto outcomes = InAllThreads([&](std::size_t thread) {
    std::vector<std::string> mine;
    for (int round = 0; round < kRounds; ++round) mine.push_back(LoadOutcome(files[thread]));
    return mine;
  });
  for (std::size_t thread = 0; thread < kThreads; ++thread) {
    EXPECT_EQ(outcomes[thread], std::vector<std::string>(kRounds, LoadOutcome(files[thread]))) << files[thread];
  }
}

/// A VIF of one component, whose source PDO has that number.
std::string Component(std::size_t number) {
  const std::string digits = std::to_string(number);
  return XmlVif("<vif:Component><vif:PD_Power_As_Source value=\"" + digits + "\"/><vif:SrcPdoList><vif:SrcPDO>" +
                "<vif:Src_PDO_Voltage value=\"" + digits + "\"/></vif:SrcPDO></vif:SrcPdoList></vif:Component>");
}

TEST(ConcurrentLoads, CompileTheSchemasAtOnceForDifferentFiles) {
  const TempDir dir;
  std::vector<std::filesystem::path> files;
  for (std::size_t i = 0; i < kThreads; ++i) files.push_back(dir.Write(std::to_string(i) + ".xml", Component(i)));
  ExpectOwnOutcomes(files);
  EXPECT_EQ(LoadOutcome(files[3]), "PD_Power_As_Source=3 @6.1\nSrc_PDO_Voltage=3 @6.1 @7.1\n");
}

TEST(ConcurrentLoads, FailAndSucceedSideBySide) {
  const TempDir dir;
  const std::vector<std::filesystem::path> files = {
      dir.Write("a.xml", Component(1)),
      dir.Write("b.xml", XmlVif("<vif:TID/>")),
      dir.Write("c.xml", XmlVif("<vif:Component><vif:PD_Power_As_Source value=\"x\"/></vif:Component>")),
      dir.Write("d.xml", XmlVif("<vif:Component><vif:Foo><vif:X/></vif:Foo></vif:Component>")),
      dir.Write("e.txt", "Component 1\nSource PDO 2:\nSrc_PDO_Voltage2: 100 ; V\n"),
      dir.Write("f.txt", "Vendor_Name: \"x\"\nUnknown_Name_1: 7\n"),
      dir.Path() / "g.txt",
      dir.Write("h.md", ""),
  };
  ExpectOwnOutcomes(files);
}

}  // namespace
