// Checking a file by the public interface.
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <VendorInfoFile.h>
#include <analysis/Check.h>

#include <gmock/gmock.h>

#include <string>
#include <utility>
#include <vector>

namespace vifanalysis {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFlawed = "PID: 1\nPID: 2\nMy_Own: 1\n";

std::vector<std::string> Codes(const std::filesystem::path& path, const CheckOptions& options = {}) {
  std::vector<std::string> codes;
  for (const Finding& finding : CheckFile(path, options)) codes.push_back(finding.code);
  return codes;
}

std::string WhyNot(const std::filesystem::path& path) {
  try {
    CheckFile(path);
  } catch (const CCheckError& error) {
    return error.what();
  }
  return "checked";
}

TEST(CheckFileTest, HasFindingsOfTheFormAndOfWhatIsDeclared) {
  const testsupport::TempDir dir;
  EXPECT_THAT(Codes(dir.Write("a.txt", std::string(kFlawed) + "Product_Revision: 1\nCaptive_Cable: 4 ; <select>\n")),
              testing::IsSupersetOf({"declared-twice", "unknown-name", "unanswered"}));
}

/// The findings about loaded fields, each as the field at its position and the end of its element's path.
std::vector<std::pair<std::string, std::string>> BlamedFields(const std::filesystem::path& path) {
  const CVendorInfoFile vif(path);
  std::vector<std::pair<std::string, std::string>> blamed;
  for (const Finding& finding : CheckFile(path, {.notes = true})) {
    if (finding.position == Finding::kNoPosition) continue;
    std::string name = finding.element.substr(finding.element.find_last_of("/:") + 1);
    blamed.emplace_back(vif.Fields().at(finding.position).Name(), name.substr(0, name.find('[')));
  }
  return blamed;
}

TEST(CheckFileTest, TellsWhichLoadedFieldAFindingIsAbout) {
  const testsupport::TempDir dir;
  const auto text = BlamedFields(dir.Write("a.txt", "Lost line\nXID: 1\nPID: 2\nPID: 3\nMy_Own: 1\n"));
  EXPECT_THAT(text, testing::Contains(std::pair("PID", "PID")));
  const auto xml = BlamedFields(
      dir.Write("a.xml", testsupport::XmlVif("<vif:VIF_Specification>3.22</vif:VIF_Specification><vif:Component>"
                                             "<vif:PD_Port_Type value=\"3\"/><vif:PID/><vif:PID value=\"1\"/>"
                                             "<vif:Num_Src_PDOs value=\"1\"/></vif:Component>")));
  EXPECT_THAT(xml, testing::Contains(std::pair("Num_Src_PDOs", "Num_Src_PDOs")));
  for (const auto& [field, element] : text) EXPECT_EQ(field, element);
  for (const auto& [field, element] : xml) EXPECT_EQ(field, element);
}

TEST(CheckFileTest, DoesNotMissAnythingInAFileThatLoadsOnlyInPart) {
  const testsupport::TempDir dir;
  const std::string port =
      "<vif:VIF_Specification>3.22</vif:VIF_Specification><vif:Component><vif:PD_Port_Type value=\"3\"/>"
      "<vif:Num_Src_PDOs value=\"1\"/>";
  const std::string broken = "<vif:FooList><vif:Foo/></vif:FooList>";
  EXPECT_THAT(Codes(dir.Write("a.xml", testsupport::XmlVif(port + "</vif:Component>"))),
              testing::UnorderedElementsAre("role-incomplete", "count-mismatch"));
  EXPECT_THAT(Codes(dir.Write("a.xml", testsupport::XmlVif(port + broken + "</vif:Component>"))),
              ElementsAre("not-valid"));
}

TEST(CheckFileTest, KeepsWhatTheOptionsSay) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a.txt", kFlawed);
  EXPECT_THAT(Codes(path), ElementsAre("declared-twice", "unknown-name"));
  EXPECT_THAT(Codes(path, {.only = {"unknown-name"}}), ElementsAre("unknown-name"));
  EXPECT_THAT(Codes(path, {.only = {"UNKNOWN-name"}}), ElementsAre("unknown-name"));
  EXPECT_THAT(Codes(path, {.except = {"unknown-name"}}), ElementsAre("declared-twice"));
  EXPECT_THAT(Codes(path, {.only = {"no-index"}}), IsEmpty());
}

TEST(CheckFileTest, SaysWhyAFileCannotBeChecked) {
  const testsupport::TempDir dir;
  EXPECT_EQ(WhyNot(dir.Path() / "missing.txt"), "there is no such file");
  EXPECT_EQ(WhyNot(dir.Write("a.pdf", "")), "a VIF is a text (*.txt) or XML (*.xml) file");
  std::filesystem::create_directory(dir.Path() / "folder.txt");
  EXPECT_EQ(WhyNot(dir.Path() / "folder.txt"), "only a regular file can be read");
}

TEST(CheckFileTest, FindsAWrongCountOnce) {
  const testsupport::TempDir dir;
  EXPECT_THAT(Codes(dir.Write("a.txt", "Num_Src_PDOs: 9 ; 2 Src PDOs\n")), ElementsAre("count-mismatch"));
  EXPECT_THAT(Codes(dir.Write("a.txt", "Num_Src_PDOs: 0 ; 2 Src PDOs\n")), ElementsAre("text-against-value"));
}

TEST(CheckFileTest, HasNotesThatAreAskedForByCode) {
  const testsupport::TempDir dir;
  const std::filesystem::path path = dir.Write("a.txt", "$Vendor_Name: \"FIX-ME\"\nMy_Own: 1\n");
  EXPECT_THAT(Codes(path), ElementsAre("unknown-name"));
  EXPECT_THAT(Codes(path, {.only = {"Placeholder"}}), ElementsAre("placeholder"));
  EXPECT_THAT(Codes(path, {.only = {"placeholder"}, .except = {"placeholder"}}), IsEmpty());
}

TEST(CheckFileTest, FollowsNoEditionWhereTheFileNamesTwo) {
  const testsupport::TempDir dir;
  const std::string port = "PD_Port_Type: 3\nUSB_PD_Support: 1\n";
  const std::string edition = "$VIF_Specification: \"3.22\"\n";
  EXPECT_THAT(Codes(dir.Write("a.txt", edition + port)), testing::Contains("role-incomplete"));
  EXPECT_THAT(Codes(dir.Write("a.txt", edition + edition + port)), testing::Contains("role-incomplete"));
  EXPECT_THAT(Codes(dir.Write("a.txt", edition + "$VIF_Specification: \"1.11\"\n" + port)),
              testing::Not(testing::Contains("role-incomplete")));
}

}  // namespace
}  // namespace vifanalysis
