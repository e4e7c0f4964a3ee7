// Loading XML files into a CVendorInfoFile.
#include "BaseUtilities/Exceptions.h"
#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <string>
#include <thread>
#include <vector>

namespace {

using testing::ElementsAre;
using testsupport::AppendFile;
using testsupport::RunTimeErrorOf;
using testsupport::TempDir;
using testsupport::XmlVif;

std::vector<std::string> Texts(const CVendorInfoFile& vif) { return testsupport::FieldTexts(*vif.GetFields()); }

/// A VIF of one component whose source power is that number.
std::string Component(int power) {
  return XmlVif("<vif:Component><vif:PD_Power_As_Source value=\"" + std::to_string(power) + "\"/></vif:Component>");
}

TEST(LoadingXmlTest, ExtensionMayBeInAnyLetterCase) {
  const TempDir dir;
  for (const char* name : {"a.xml", "b.XML", "c.Xml", "d.txt.xml"}) {
    EXPECT_THAT(Texts(CVendorInfoFile(dir.Write(name, Component(7)))), ElementsAre("PD_Power_As_Source=7 @6.1"))
        << name;
  }
}

TEST(LoadingXmlTest, FileNameIsKept) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write("dock 1.xml", Component(7));
  EXPECT_EQ(CVendorInfoFile(path).FileName(), path.wstring());
}

TEST(LoadingXmlTest, TextAndXmlFilesAreNumberedConsecutively) {
  const TempDir dir;
  const std::filesystem::path first = dir.Write("a.txt", "PID: 1\n");
  CVendorInfoFile vif;
  AppendFile(vif, first);
  AppendFile(vif, dir.Write("b.xml", Component(2)));
  AppendFile(vif, dir.Write("c.txt", "PID: 3\n"));
  EXPECT_THAT(Texts(vif), ElementsAre("PID=1 @6.1", "PD_Power_As_Source=2 @6.2", "PID=3 @6.3"));
  EXPECT_EQ(vif.ComponentCount(), 3u);
  EXPECT_EQ(vif.FileName(), first.wstring());
}

TEST(LoadingXmlTest, MostlyBlankFileAllocatesNoMoreThanItsFieldsNeed) {
  const TempDir dir;
  const std::string component = "<vif:Component><vif:PD_Power_As_Source value=\"7\"/></vif:Component>";
  const CVendorInfoFile vif(dir.Write("x.xml", XmlVif(component + std::string(100'000, ' '))));
  ASSERT_EQ(vif.Count(), 1U);
  EXPECT_LE(vif.Fields().capacity(), 2U);
}

TEST(LoadingXmlTest, OwnDefinitionsAreNotUsed) {
  const TempDir dir;
  std::vector<VifFieldDef> table = {{L"Renamed", std::wregex(L"PD_Power_As_Source"), {}}};
  EXPECT_THAT(Texts(CVendorInfoFile(dir.Write("a.xml", Component(7)), &table)),
              ElementsAre("PD_Power_As_Source=7 @6.1"));
}

TEST(LoadingXmlTest, InvalidFileCreatesNoObject) {
  const TempDir dir;
  const std::filesystem::path path = dir.Write("a.xml", XmlVif("<vif:USB_VID_SOP value=\"18d1\"/>"));
  EXPECT_EQ(RunTimeErrorOf([&] { CVendorInfoFile vif(path); }), path.string() + " is not a valid Vendor Info File.");
  EXPECT_THROW(CVendorInfoFile{path}, CVIFInvalidFile);
}

TEST(LoadingXmlTest, InvalidFileLeavesTheObjectUnchanged) {
  const TempDir dir;
  CVendorInfoFile vif(dir.Write("a.xml", Component(7)));
  const std::filesystem::path path = dir.Write("b.xml", "<VIF/>");
  EXPECT_EQ(RunTimeErrorOf([&] { AppendFile(vif, path); }), path.string() + " is not a valid Vendor Info File.");
  EXPECT_THAT(Texts(vif), ElementsAre("PD_Power_As_Source=7 @6.1"));
  EXPECT_EQ(vif.ComponentCount(), 1u);
}

TEST(LoadingXmlTest, InvalidFirstFileLeavesTheObjectWithoutAName) {
  const TempDir dir;
  CVendorInfoFile vif;
  EXPECT_THROW(AppendFile(vif, dir.Write("b.xml", "<VIF/>")), CVIFInvalidFile);
  EXPECT_STREQ(vif.FileName(), L"");
}

TEST(LoadingXmlTest, FailureInAComponentKeepsWhatCameBefore) {
  const TempDir dir;
  CVendorInfoFile vif(dir.Write("a.xml", Component(7)));
  const std::filesystem::path path =
      dir.Write("b.xml", XmlVif("<vif:TID>9</vif:TID><vif:Component><vif:A value=\"1\"/></vif:Component>"
                                "<vif:Component><vif:B value=\"2\"/><vif:Foo><vif:X/></vif:Foo></vif:Component>"));
  EXPECT_THROW(AppendFile(vif, path), CZoDOMDocException);
  EXPECT_THAT(Texts(vif), ElementsAre("PD_Power_As_Source=7 @6.1", "TID=\"\" ; 9 @1.0", "A=1 @6.2", "B=2 @6.3"));
  EXPECT_EQ(vif.ComponentCount(), 3u);
}

TEST(LoadingXmlTest, DirectoryIsNotValid) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "d.xml";
  std::filesystem::create_directory(path);
  EXPECT_EQ(RunTimeErrorOf([&] { CVendorInfoFile vif(path); }), path.string() + " is not a valid Vendor Info File.");
}

TEST(LoadingXmlTest, ConcurrentLoadsOfManyThreadsAreIndependent) {
  const TempDir dir;
  std::vector<std::filesystem::path> files;
  for (int i = 0; i < 8; ++i) files.push_back(dir.Write(std::to_string(i) + ".xml", Component(i)));
  std::vector<std::vector<std::string>> loaded(files.size());
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < files.size(); ++i) {
    threads.emplace_back([&, i] {
      for (int round = 0; round < 20; ++round) loaded[i] = Texts(CVendorInfoFile(files[i]));
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 0; i < files.size(); ++i) {
    EXPECT_THAT(loaded[i], ElementsAre("PD_Power_As_Source=" + std::to_string(i) + " @6.1"));
  }
}

}  // namespace
