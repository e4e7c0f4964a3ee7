// Runs without questions to the operator: the hooks, the log and the exit status.
#include "ReferenceHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using testsupport::CReferenceHost;
using testsupport::Example;
using testsupport::kChecksFailed;
using testsupport::kCouldNotRun;
using testsupport::kNothingFailed;

class HostRun : public testing::Test {
 protected:
  CReferenceHost m_host;
};

class HostRunOverExample : public testing::TestWithParam<std::string> {
 protected:
  CReferenceHost m_host;
};

TEST_P(HostRunOverExample, FindsNothingWrong) {
  EXPECT_EQ(m_host.Run({"--vif", Example(GetParam())}).status, kNothingFailed);
  EXPECT_THAT(m_host.Log(), Contains(HasSubstr(" 0 failed")));
}

INSTANTIATE_TEST_SUITE_P(Examples, HostRunOverExample,
                         testing::Values("active-cable.txt", "dual-role-tablet.txt", "gan-charger-65w.txt",
                                         "gan-charger-65w.xml", "two-port-laptop.xml", "usb4-dock.xml"));

TEST_F(HostRun, LogsFromTheChoiceToTheCleanup) {
  const std::string vif = Example("usb4-dock.xml");
  m_host.Run({"--vif", vif});
  EXPECT_THAT(m_host.Log(),
              ElementsAre("0x04000000 INFO  Selected VIF: " + vif + ".", "0x04000000 INFO  Initializing VIF...",
                          "0x00000001 PASS  Source PDOs: nothing wrong; source PDOs: 6",
                          "0x00000001 PASS  Number of source PDOs: nothing wrong; components with source PDOs: 3",
                          "0x00000004 N/A   Sink PDOs: the VIF has no sink PDOs",
                          "0x00000004 N/A   Number of sink PDOs: the VIF has no components with sink PDOs",
                          "0x00000001 PASS  Number of PCIe endpoints: nothing wrong; USB4 routers: 2",
                          "0x00000001 PASS  USB4 router of a port: nothing wrong; components with a USB4 router: 2",
                          "0x00000001 PASS  SOP modes: nothing wrong; components with modal operation: 1",
                          "0x04000000 INFO  Checks: 5 passed, 0 failed, 2 not applicable, 0 not run.",
                          "0x04000000 INFO  Deleting Test Suite VIF: " + vif));
}

TEST_F(HostRun, ShowsOnStandardOutputWhatItWritesToTheLogFile) {
  const auto result = m_host.Run({"--vif", Example("gan-charger-65w.txt")});
  EXPECT_EQ(testsupport::Lines(result.output), m_host.RawLog());
  EXPECT_EQ(result.error, "");
}

TEST_F(HostRun, AddsToAnExistingLog) {
  m_host.Write("the.log", "an earlier run\n");
  m_host.Run({"--vif", Example("gan-charger-65w.txt")});
  EXPECT_EQ(m_host.RawLog().front(), "an earlier run");
  EXPECT_GT(m_host.RawLog().size(), 1u);
}

TEST_F(HostRun, CleansUpAfterFailedChecks) {
  const std::string vif = m_host.Write("a.txt", "Num_Src_PDOs: 1\n");
  EXPECT_EQ(m_host.Run({"--vif", vif}).status, kChecksFailed);
  EXPECT_EQ(m_host.Log().back(), "0x04000000 INFO  Deleting Test Suite VIF: " + vif);
}

TEST_F(HostRun, MissingVifCannotBeRun) {
  const std::string vif = m_host.File("missing.txt");
  EXPECT_EQ(m_host.Run({"--vif", vif}).status, kCouldNotRun);
  EXPECT_THAT(m_host.Log(),
              ElementsAre("0x04000000 INFO  Selected VIF: " + vif + ".", "0x04000000 INFO  Initializing VIF...",
                          AllOf(StartsWith("0x04000000 INFO  Unexpected error creating " + vif),
                                HasSubstr("VIF Does not exist."))));
}

TEST_F(HostRun, InvalidXmlVifCannotBeRun) {
  const std::string vif = m_host.Write("a.xml", "<VIF/>");
  EXPECT_EQ(m_host.Run({"--vif", vif}).status, kCouldNotRun);
  EXPECT_THAT(m_host.Log().back(), HasSubstr("is not a valid Vendor Info File"));
}

TEST_F(HostRun, EscapesControlCharactersOfFileNamesAndLogsALineForEachLine) {
#ifdef _WIN32  // names cannot contain characters below U+0020 there
  const std::string vif = m_host.Write(u8"a\u0085\u009B31m.txt", "");
  const std::string escaped = "a\\u0085\\u009b31m.txt";
#else
  const std::string vif = m_host.Write("a\n\x1b[31m.txt", "");
  const std::string escaped = "a\\u000a\\u001b[31m.txt";
#endif
  const auto result = m_host.Run({"--vif", vif});
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_EQ(result.output.find('\x1b'), std::string::npos);
  EXPECT_EQ(result.output.find("\u009B"), std::string::npos);
  EXPECT_THAT(m_host.Log().front(), HasSubstr(escaped));
  EXPECT_THAT(m_host.Log(), Not(Contains(HasSubstr("no time"))));
}

TEST_F(HostRun, AcceptsAVifWithANameInAnyLanguage) {
  const std::string vif = m_host.Write(u8"Gr\u00F6\u00DFe \u96FB\u529B \U0001F50C.txt", "");
  EXPECT_EQ(m_host.Run({"--vif", vif}).status, kNothingFailed);
  EXPECT_EQ(m_host.Log().front(), "0x04000000 INFO  Selected VIF: " + vif + ".");
  EXPECT_EQ(m_host.Log().back(), "0x04000000 INFO  Deleting Test Suite VIF: " + vif);
}

TEST_F(HostRun, WritesALogWithANameInAnyLanguage) {
  const std::string log = m_host.File(u8"Gr\u00F6\u00DFe \u96FB.log");
  EXPECT_EQ(m_host.Run({"--log", log, "--vif", Example("active-cable.txt")}).status, kNothingFailed);
  EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(std::u8string(log.begin(), log.end()))));
}

TEST_F(HostRun, UsesTheLibraryThatItIsGiven) {
  const std::filesystem::path library = VIF_LIBRARY_FILE;
  const std::filesystem::path folder = m_host.Folder(u8"\u96FB");
  std::filesystem::copy_file(library, folder / library.filename());
  const std::string copy = testsupport::NameOf(folder / library.filename());
  const auto result = m_host.Run({"--library", copy, "--vif", Example("gan-charger-65w.txt")});
  EXPECT_EQ(result.status, kNothingFailed) << result.output;
}

TEST_F(HostRun, MissingLibraryIsNamed) {
  EXPECT_EQ(m_host.Run({"--library", "/missing/lib.so", "--vif", "a.txt"}).status, kCouldNotRun);
  EXPECT_THAT(m_host.Log(), ElementsAre(StartsWith("0x40000000 ERROR Cannot load /missing/lib.so: ")));
}

TEST_F(HostRun, LibraryWithoutTheHooksIsRefused) {
  const std::string library = HOST_LIBRARY_FILE;
  EXPECT_EQ(m_host.Run({"--library", library, "--vif", "a.txt"}).status, kCouldNotRun);
  EXPECT_THAT(m_host.Log(), ElementsAre("0x40000000 ERROR " + library + " has no function TestSuiteVIF_Initialize"));
}

TEST_F(HostRun, LogThatCannotBeOpenedPreventsTheRun) {
  const auto result = m_host.Run({"--log", "/missing/the.log", "--vif", Example("gan-charger-65w.txt")});
  EXPECT_EQ(result.status, kCouldNotRun);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, "reference_host: Cannot write to the log /missing/the.log\n");
}

TEST_F(HostRun, RunWhoseLogIsLostHasNoResult) {
#ifdef _WIN32
  GTEST_SKIP() << "needs a file that can be opened but not written to";
#else
  const auto result = m_host.Run({"--log", "/dev/full", "--vif", Example("gan-charger-65w.txt")});
  EXPECT_EQ(result.status, kCouldNotRun);
  EXPECT_EQ(result.error, "reference_host: the log could not be written\n");
#endif
}

TEST_F(HostRun, RunWhoseOutputIsLostHasNoResult) {
  const auto result = m_host.Run({"--vif", Example("gan-charger-65w.txt")}, {.canWrite = false});
  EXPECT_EQ(result.status, kCouldNotRun);
  EXPECT_EQ(result.error, "reference_host: the log could not be written\n");
}

}  // namespace
