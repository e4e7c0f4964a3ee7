// The two hooks, from the host's side.
#include "TestSuiteVIF.h"

#include "RecordingHost.h"
#include "VendorInfoFile.h"
#include "msxml/ComPointer.h"
#include "msxml/ComTypes.h"
#include "support/CodePage.h"
#include "support/TempDir.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <exception>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testsupport::CRecordingHost;
using testsupport::TempDir;

constexpr TEST_STATUS kDone = 1;
constexpr TEST_STATUS kRefused = 0x40000000;

/// A host's exception whose text is null, which nothing forbids.
class WordlessError : public std::exception {
 public:
  const char* what() const noexcept override { return nullptr; }
};

/// The only field of that name.
CVIFField Only(const CVendorInfoFile& vif, const char* name) {
  const VifIndex any = CVIFField::UNSPECIFIED_INDEX;
  return vif.GetUniqueField(name, any, any, any);
}

class TestSuiteVifTest : public testing::Test {
 protected:
  /// Writes a file and has the operator choose it.
  /// \return its path as the host has it: narrow, on Windows in the code page of file functions
  std::string Choose(const std::filesystem::path& name, const std::string& content) {
    const std::string path = testsupport::QuotedPath(m_dir.Write(name, content));
    m_host.suiteLog.SetVifFileName(path.c_str());
    return path;
  }

  TempDir m_dir;
  CRecordingHost m_host;
};

// Initialize.

TEST_F(TestSuiteVifTest, InitializeLoadsTheChosenFileAndPublishesIt) {
  const std::string path = Choose("a.txt", "PID: 7\n");
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 Selected VIF: " + path + ".", "4000000 Initializing VIF..."));
  ASSERT_NE(CAppState::TestSuiteVIF(), nullptr);
  EXPECT_EQ(CAppState::TestSuiteVIF()->Count(), 1u);
  EXPECT_EQ(Only(*CAppState::TestSuiteVIF(), "PID").GetNumericValue(), 7u);
}

TEST_F(TestSuiteVifTest, InitializeLoadsXml) {
  Choose("a.xml", testsupport::XmlVif("<vif:TID>12</vif:TID>"));
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_NE(CAppState::TestSuiteVIF(), nullptr);
  EXPECT_STREQ(Only(*CAppState::TestSuiteVIF(), "TID").Description(), "12");
}

TEST_F(TestSuiteVifTest, LinesComeWithTheDefaultVerbosityAndWithoutAFormat) {
  Choose("a.json", "");
  m_host.Initialize();
  m_host.Cleanup();
  Choose("a.txt", "");
  m_host.Initialize();
  m_host.Cleanup();
  m_host.input.chooses = false;
  m_host.Initialize();
  EXPECT_EQ(m_host.log.Lines().size(), 7u);
  EXPECT_TRUE(m_host.log.AreAllPlain());
}

TEST_F(TestSuiteVifTest, OperatorIsAskedOnceWithPromptAndCaption) {
  int questions = 0;
  m_host.input.onChoice = [&] { ++questions; };
  Choose("a.txt", "");
  m_host.Initialize();
  EXPECT_EQ(questions, 1);
  EXPECT_EQ(m_host.input.question,
            L"Choose VIF for test suite: Select a Vendor Info File for the qualifying product under test");
  EXPECT_TRUE(m_host.input.wasPlain);
}

TEST_F(TestSuiteVifTest, InitializeWithoutAContextRefusesSilently) {
  EXPECT_EQ(TestSuiteVIF_Initialize(nullptr), kRefused);
  EXPECT_THAT(m_host.log.Lines(), IsEmpty());
  EXPECT_EQ(m_host.input.question, L"");
}

TEST_F(TestSuiteVifTest, InitializeWithoutALogRefusesSilently) {
  m_host.context.log = nullptr;
  EXPECT_EQ(m_host.Initialize(), kRefused);
  EXPECT_EQ(m_host.input.question, L"");
}

TEST_F(TestSuiteVifTest, MissingUserInputModuleIsFoundBeforeAMissingSuiteLog) {
  CAppState::SetUserInput(nullptr);
  CAppState::SetTestSuiteLog(nullptr);
  m_host.context.userInput = nullptr;
  EXPECT_EQ(m_host.Initialize(), kRefused);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("40000000 Internal error: NULL user input module."));
}

TEST_F(TestSuiteVifTest, MissingSuiteLogIsAnInternalError) {
  CAppState::SetTestSuiteLog(nullptr);
  EXPECT_EQ(m_host.Initialize(), kRefused);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("40000000 Internal error: NULL test suite log."));
  EXPECT_EQ(m_host.input.question, L"");
}

TEST_F(TestSuiteVifTest, OperatorWhoCancelsIsTakenAtHisWord) {
  Choose("a.txt", "PID: 7\n");
  m_host.input.chooses = false;
  EXPECT_EQ(m_host.Initialize(), kRefused);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("40000000 No VIF selected for this test suite."));
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, MissingFileIsLoggedAndPublishesNothing) {
  const std::string path = (m_dir.Path() / "gone.txt").string();
  m_host.suiteLog.SetVifFileName(path.c_str());
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 Selected VIF: " + path + ".", "4000000 Initializing VIF...",
                                              "4000000 L Unexpected error creating " + path +
                                                  ": VIF Does not exist. (name: " + path + ")."));
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, InvalidFileIsLoggedAndPublishesNothing) {
  const std::string path = Choose("a.xml", "<VIF/>");
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[2],
            "4000000 L Unexpected error creating " + path + ": " + path + " is not a valid Vendor Info File..");
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, DocumentErrorIsLoggedByItsText) {
  const std::string path =
      Choose("a.xml", testsupport::XmlVif("<vif:Component><vif:Foo><vif:A/></vif:Foo></vif:Component>"));
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[2],
            "4000000 L Unexpected error creating " + path + ": Unexpected list element name: Foo.");
}

TEST_F(TestSuiteVifTest, EmptyFileNamePublishesAnEmptyVif) {
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 Selected VIF: .", "4000000 Initializing VIF..."));
  ASSERT_NE(CAppState::TestSuiteVIF(), nullptr);
  EXPECT_EQ(CAppState::TestSuiteVIF()->Count(), 0u);
}

TEST_F(TestSuiteVifTest, FileNamesAreNoFormats) {
  const std::string path = Choose("%s %n %ls.json", "");
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_THAT(m_host.log.Lines(),
              ElementsAre("4000000 Selected VIF: " + path + ".", "4000000 Initializing VIF...",
                          "4000000 L Unexpected error creating " + path +
                              ": Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)."));
}

TEST_F(TestSuiteVifTest, FileNamesMayBeOfAnyLanguage) {
  const std::string path = Choose(u8"\u7AEF\u53E3 \u00FC.json", "");
  m_host.Initialize();
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[0], "4000000 Selected VIF: " + path + ".");
  // A wide line takes what is narrow for UTF-8, on Windows, too, where it may be none.
  const std::string shown = Utf16ToUtf8(Utf8ToUtf16(path));
  EXPECT_THAT(m_host.log.Lines()[2], StartsWith("4000000 L Unexpected error creating " + shown + ": "));
}

TEST_F(TestSuiteVifTest, FileNameIsInTheCodePageOfFileFunctions) {
#ifdef _WIN32
  if (GetACP() != 1252) GTEST_SKIP() << "the system's code page is not 1252";
  EXPECT_THAT(Choose(u8"Ger\u00E4t \u20AC.txt", "PID: 7\n"), testing::EndsWith("Ger\xE4t \x80.txt"));
#else
  EXPECT_THAT(Choose(u8"Ger\u00E4t \u20AC.txt", "PID: 7\n"), testing::EndsWith("Ger\u00E4t \u20AC.txt"));
#endif
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_NE(CAppState::TestSuiteVIF(), nullptr);
  EXPECT_EQ(CAppState::TestSuiteVIF()->Count(), 1u);
  EXPECT_EQ(CAppState::TestSuiteVIF()->FileName(), (m_dir.Path() / "").wstring() + L"Ger\u00E4t \u20AC.txt");
}

TEST_F(TestSuiteVifTest, SecondInitializeReplacesTheVifAndDeletesNothing) {
  Choose("a.txt", "PID: 1\n");
  m_host.Initialize();
  CVendorInfoFile* first = CAppState::TestSuiteVIF();
  Choose("b.txt", "PID: 2\n");
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_NE(CAppState::TestSuiteVIF(), first);
  EXPECT_EQ(Only(*CAppState::TestSuiteVIF(), "PID").GetNumericValue(), 2u);
  EXPECT_EQ(Only(*first, "PID").GetNumericValue(), 1u);
  delete first;  // nobody else will
}

TEST_F(TestSuiteVifTest, FailedInitializeLeavesTheVifPublishedBefore) {
  Choose("a.txt", "PID: 1\n");
  m_host.Initialize();
  CVendorInfoFile* first = CAppState::TestSuiteVIF();
  Choose("b.json", "");
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), first);
}

// What the host's own modules throw.

TEST_F(TestSuiteVifTest, LogThatThrowsWhileLoadingIsAFailureToLoad) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [](std::size_t line) {
    if (line == 2) throw std::runtime_error("disk full");
  };
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  // The line that failed is not there; what came of it took its number and failed too.
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 Selected VIF: " + path + "."));
}

TEST_F(TestSuiteVifTest, FailureOfTheLogIsLoggedOnceItWorksAgain) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [&](std::size_t line) {
    if (line != 2) return;
    m_host.log.onLine = nullptr;
    throw std::runtime_error("disk full");
  };
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 Selected VIF: " + path + ".",
                                              "4000000 L Unexpected error creating " + path + ": disk full."));
}

TEST_F(TestSuiteVifTest, ComErrorIsLoggedByItsText) {
  Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [&](std::size_t line) {
    if (line != 2) return;
    m_host.log.onLine = nullptr;
    throw _com_error(E_FAIL);
  };
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 2u);
#ifdef _WIN32
  const std::string text = Utf16ToUtf8(_com_error(E_FAIL).ErrorMessage());  // in the system's own words
#else
  const std::string text = "Unspecified error";
#endif
  EXPECT_EQ(m_host.log.Lines()[1], "40000000 L Attempt to load valid VIF did not succeed: COM Exception - " + text);
}

TEST_F(TestSuiteVifTest, ComErrorThatTheSystemDoesNotKnowIsUnknown) {
  Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [&](std::size_t line) {
    if (line != 2) return;
    m_host.log.onLine = nullptr;
    throw _com_error(static_cast<HRESULT>(0x8BADF00D));
  };
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 2u);
#ifdef _WIN32
  // There, an error that the system does not know has a text, too.
  const std::string text = "COM Exception - Unknown error 0x8BADF00D";
#else
  const std::string text = "[Unknown COM Exception]";
#endif
  EXPECT_EQ(m_host.log.Lines()[1], "40000000 L Attempt to load valid VIF did not succeed: " + text);
}

TEST_F(TestSuiteVifTest, AnythingElseIsAnUnknownError) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [&](std::size_t line) {
    if (line != 2) return;
    m_host.log.onLine = nullptr;
    throw 5;
  };
  EXPECT_EQ(m_host.Initialize(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 2u);
  EXPECT_EQ(m_host.log.Lines()[1], "4000000 L Unexpected error creating " + path + ": <unknown error>.");
}

TEST_F(TestSuiteVifTest, ExceptionWithoutATextIsAnUnknownError) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [&](std::size_t line) {
    if (line != 2) return;
    m_host.log.onLine = nullptr;
    throw WordlessError();
  };
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  ASSERT_EQ(m_host.log.Lines().size(), 2u);
  EXPECT_EQ(m_host.log.Lines()[1], "4000000 L Unexpected error creating " + path + ": <unknown error>.");
}

TEST_F(TestSuiteVifTest, OutOfMemoryReachesTheHost) {
  Choose("a.txt", "PID: 1\n");
  m_host.log.onLine = [](std::size_t line) {
    if (line == 2) throw std::bad_alloc();
  };
  EXPECT_THROW(m_host.Initialize(), std::bad_alloc);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, LogThatAlwaysThrowsLetsNothingOut) {
  m_host.log.onLine = [](std::size_t) { throw std::runtime_error("disk full"); };
  Choose("a.txt", "PID: 1\n");
  EXPECT_EQ(m_host.Initialize(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  m_host.input.chooses = false;
  EXPECT_EQ(m_host.Initialize(), kRefused);
  CAppState::SetTestSuiteLog(nullptr);
  EXPECT_EQ(m_host.Initialize(), kRefused);
  CAppState::SetUserInput(nullptr);
  EXPECT_EQ(m_host.Initialize(), kRefused);
}

TEST_F(TestSuiteVifTest, UserInputThatThrowsIsARefusal) {
  m_host.input.onChoice = [] { throw std::runtime_error("no display"); };
  EXPECT_EQ(m_host.Initialize(), kRefused);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 L Unexpected error creating <unknown file>: no display."));
}

// Cleanup.

TEST_F(TestSuiteVifTest, CleanupWithdrawsTheVifAndDeletesIt) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.Initialize();
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[2], "4000000 L Deleting Test Suite VIF: " + path);
}

TEST_F(TestSuiteVifTest, CleanupOfAnEmptyVifHasNoName) {
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_THAT(m_host.log.Lines(), ElementsAre("4000000 L Deleting Test Suite VIF: "));
}

TEST_F(TestSuiteVifTest, CleanupWithNothingPublishedWritesNothing) {
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_THAT(m_host.log.Lines(), IsEmpty());
}

TEST_F(TestSuiteVifTest, CleanupWithoutAContextOrALogDeletesAllTheSame) {
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  EXPECT_EQ(TestSuiteVIF_Cleanup(nullptr), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  m_host.context.log = nullptr;
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, CleanupDoesNotNeedTheHostsModules) {
  CAppState::SetUserInput(nullptr);
  CAppState::SetTestSuiteLog(nullptr);
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, VifIsWithdrawnBeforeTheLogIsWritten) {
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  bool wasWithdrawn = false;
  m_host.log.onLine = [&](std::size_t) { wasWithdrawn = CAppState::TestSuiteVIF() == nullptr; };
  m_host.Cleanup();
  EXPECT_TRUE(wasWithdrawn);
}

TEST_F(TestSuiteVifTest, LogThatThrowsDoesNotKeepTheVif) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.Initialize();
  m_host.log.onLine = [&](std::size_t) {
    m_host.log.onLine = nullptr;
    throw std::runtime_error("disk full");
  };
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[2], "4000000 L Unexpected error deleting " + path + ": disk full.");
}

TEST_F(TestSuiteVifTest, CleanupLogsAnExceptionWithoutATextAsUnknown) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.Initialize();
  m_host.log.onLine = [&](std::size_t) {
    m_host.log.onLine = nullptr;
    throw WordlessError();
  };
  EXPECT_EQ(m_host.Cleanup(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[2], "4000000 L Unexpected error deleting " + path + ": <unknown>.");
}

TEST_F(TestSuiteVifTest, AnythingElseThatCleanupMeetsIsUnknown) {
  const std::string path = Choose("a.txt", "PID: 1\n");
  m_host.Initialize();
  m_host.log.onLine = [&](std::size_t) {
    m_host.log.onLine = nullptr;
    throw 5;
  };
  EXPECT_EQ(m_host.Cleanup(), kDone);
  ASSERT_EQ(m_host.log.Lines().size(), 3u);
  EXPECT_EQ(m_host.log.Lines()[2], "4000000 L Unexpected error deleting " + path + ": <unknown>.");
}

TEST_F(TestSuiteVifTest, CleanupLetsOutOfMemoryOutButKeepsNothing) {
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  m_host.log.onLine = [](std::size_t) { throw std::bad_alloc(); };
  EXPECT_THROW(m_host.Cleanup(), std::bad_alloc);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

TEST_F(TestSuiteVifTest, LogThatAlwaysThrowsLetsNothingOutOfCleanup) {
  CAppState::TestSuiteVIF(new CVendorInfoFile);
  m_host.log.onLine = [](std::size_t) { throw std::runtime_error("disk full"); };
  EXPECT_EQ(m_host.Cleanup(), kDone);
  EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
}

}  // namespace
