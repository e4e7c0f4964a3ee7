// Following how an XML file becomes fields.
#include "ComMemory.h"
#include "Samples.h"
#include "VIFXmlCheck.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace {

/// How often the observer received each fate, and the sums of the lengths of paths, of lines and of columns. It
/// allocates nothing, so that only the library's allocations fail.
struct Told {
  bool operator==(const Told&) const = default;

  std::array<std::size_t, 6> fates{};
  std::size_t pathLength = 0;
  std::size_t lines = 0;
  std::size_t columns = 0;
};

Told Check(const std::filesystem::path& path) {
  Told told;
  CheckXmlVif(path, [&](const VifElementReport& report) {
    ++told.fates.at(static_cast<std::size_t>(report.fate));
    told.pathLength += report.path.size();
    told.lines += report.line;
    told.columns += report.column;
  });
  return told;
}

/// A document with elements of all fates but the last.
std::string DocumentOfFates() {
  return testsupport::XmlVif(
      "<vif:VIF_App><vif:Vendor>a vendor</vif:Vendor><vif:Description>an application</vif:Description></vif:VIF_App>"
      "<vif:TID>12345</vif:TID><vif:Component><vif:Port_Label>a label</vif:Port_Label></vif:Component>"
      "<vif:Component/>");
}

/// Checks a file; whenever the check completes, everything has been reported.
/// \param fates how often each fate is reported
void ExpectCheckBearsFailures(const std::string& text, const std::array<std::size_t, 6>& fates) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a file with a long name.xml", text);
  const Told expected = Check(path);
  EXPECT_EQ(expected.fates, fates);
  testsupport::ForEveryFailingAllocation([&] { return testsupport::WithComErrors([&] { return Check(path); }); },
                                         [&](const std::optional<Told>& told) {
                                           if (told) {
                                             EXPECT_EQ(*told, expected);
                                           }
                                         });
}

TEST(CheckXmlMemory, CheckXmlVif) {
  ExpectCheckBearsFailures(testsupport::XmlDocumentText(), {testsupport::kXmlFieldCount});
}

TEST(CheckXmlMemory, CheckXmlVifWithSkippedElements) { ExpectCheckBearsFailures(DocumentOfFates(), {3, 0, 1, 1}); }

}  // namespace
