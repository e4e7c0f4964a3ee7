// Loading things that only Windows has.
#include "BaseUtilities/Exceptions.h"
#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "msxml/ComPointer.h"
#include "support/AppendFile.h"
#include "support/CodePage.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"
#include "support/Watchdog.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

#include <chrono>
#include <filesystem>
#include <ios>
#include <string>
#include <system_error>
#include <vector>

namespace {

using testing::EndsWith;
using testing::StartsWith;
using testsupport::AppendFile;
using testsupport::QuotedPath;
using testsupport::RunTimeErrorOf;
using testsupport::TempDir;

namespace fs = std::filesystem;

/// A system handle.
class CHandle {
 public:
  CHandle(HANDLE handle, const char* what) : m_handle(handle) {
    if (m_handle == INVALID_HANDLE_VALUE) {
      throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
    }
  }
  CHandle(const CHandle&) = delete;
  CHandle& operator=(const CHandle&) = delete;
  ~CHandle() { CloseHandle(m_handle); }

 private:
  HANDLE m_handle;
};

/// Nobody else can open the file while this lives.
class CExclusiveUse : CHandle {
 public:
  explicit CExclusiveUse(const fs::path& path)
      : CHandle(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr),
                "file") {}
};

/// Keeps the file open for writing and allows readers.
class CSharedUse : CHandle {
 public:
  explicit CSharedUse(const fs::path& path)
      : CHandle(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                            FILE_ATTRIBUTE_NORMAL, nullptr),
                "file") {}
};

/// A pipe that nobody writes to.
class CSilentPipe : CHandle {
 public:
  explicit CSilentPipe(const fs::path& path)
      : CHandle(CreateNamedPipeW(path.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 4, 0, 0, 0, nullptr), "pipe") {}
};

fs::path PipePath(const std::string& extension) {
  return R"(\\.\pipe\vif-test-)" + std::to_string(GetCurrentProcessId()) + extension;
}

/// While it lives, narrow names are in the OEM code page.
class COemFileNames {
 public:
  COemFileNames() { SetFileApisToOEM(); }
  COemFileNames(const COemFileNames&) = delete;
  COemFileNames& operator=(const COemFileNames&) = delete;
  ~COemFileNames() { SetFileApisToANSI(); }
};

/// While it lives, this process cannot use COM, which the test environment has initialised.
class CWithoutCom {
 public:
  CWithoutCom() { CoUninitialize(); }
  CWithoutCom(const CWithoutCom&) = delete;
  CWithoutCom& operator=(const CWithoutCom&) = delete;
  ~CWithoutCom() { CoInitializeEx(nullptr, COINIT_MULTITHREADED); }
};

std::string LoadError(const fs::path& path) {
  return RunTimeErrorOf([&] { const CVendorInfoFile vif(path); });
}

std::vector<std::string> InvalidReasons(const fs::path& path) {
  std::vector<std::string> reasons;
  try {
    const CVendorInfoFile vif(path);
  } catch (const CVIFInvalidFile& error) {
    for (const DOMDocProblem& problem : error.Problems()) reasons.push_back(problem.reason);
  }
  return reasons;
}

// Not regular files.

TEST(LoadingWindowsTest, PipeNamedLikeAVifIsNotWaitedFor) {
  const testsupport::CWatchdog watchdog(std::chrono::seconds(20));
  for (const char* extension : {".txt", ".xml"}) {
    const fs::path path = PipePath(extension);
    const CSilentPipe pipe(path);
    EXPECT_THROW(CVendorInfoFile{path}, CZoRunTimeException) << extension;
  }
}

TEST(LoadingWindowsTest, DeviceWithAnExtensionIsNotRead) {
  const testsupport::CWatchdog watchdog(std::chrono::seconds(20));
  for (const char* name : {"NUL.txt", "NUL.xml", "CON.txt"}) {
    EXPECT_THROW(CVendorInfoFile{name}, CZoRunTimeException) << name;
  }
}

// Access.

TEST(LoadingWindowsTest, TextFileThatAnotherHasOpenExclusivelyCannotBeOpened) {
  const TempDir dir;
  const fs::path path = dir.Write("x.txt", "USB_VID: 1");
  const CExclusiveUse use(path);
  EXPECT_EQ(LoadError(path), "Couldn't open Vendor Info File: " + QuotedPath(path) + ".");
}

TEST(LoadingWindowsTest, XmlFileThatAnotherHasOpenExclusivelySaysWhy) {
  const TempDir dir;
  const fs::path path = dir.Write("x.xml", testsupport::XmlVif(""));
  const CExclusiveUse use(path);
  EXPECT_THAT(InvalidReasons(path), testing::ElementsAre(StartsWith("The file cannot be opened: ")));
}

TEST(LoadingWindowsTest, FileThatAnotherIsWritingIsRead) {
  const TempDir dir;
  for (const fs::path& path :
       {dir.Write("x.txt", "USB_VID: 1"), dir.Write("x.xml", testsupport::XmlVif("<vif:TID>1</vif:TID>"))}) {
    const CSharedUse use(path);
    EXPECT_EQ(CVendorInfoFile(path).Count(), 1U) << path;
  }
}

// Names.

TEST(LoadingWindowsTest, NameNeedNotBeValidUtf16) {
  const TempDir dir;
  for (const wchar_t* name : {L"\xD83D.txt", L"\xDE00\xD83D.xml"}) {
    const fs::path path = dir.Path() / name;
    EXPECT_EQ(LoadError(path), "VIF Does not exist. (name: " + QuotedPath(path) + ")");
    try {
      dir.Write(name, path.extension() == ".xml" ? testsupport::XmlVif("") : "");
    } catch (const std::ios_base::failure&) {
      GTEST_SKIP() << "this system does not allow such names";
    }
    EXPECT_EQ(CVendorInfoFile(path).FileName(), path.native());
  }
}

TEST(LoadingWindowsTest, SeparatorsMayBeSlashes) {
  const TempDir dir;
  dir.Write("x.txt", "USB_VID: 1");
  const std::wstring path = dir.Path().generic_wstring() + L"/x.txt";
  EXPECT_EQ(CVendorInfoFile(path).FileName(), path);
}

TEST(LoadingWindowsTest, MessagesReplaceWhatTheCodePageLacks) {
  if (GetACP() != 1252) GTEST_SKIP() << "the system's code page is not 1252";
  const TempDir dir;
  EXPECT_THAT(LoadError(dir.Path() / u8"Ger\u00E4t \u20AC \u4E2D.txt"), EndsWith("Ger\xE4t \x80 ?.txt)"));
  EXPECT_THAT(LoadError(dir.Write(u8"\u00E4 \U0001F50C.xml", "")),
              EndsWith("\xE4 ??.xml is not a valid Vendor Info File."));
}

TEST(LoadingWindowsTest, MessagesAreInTheCodePageOfFileFunctions) {
  if (GetOEMCP() != 437 && GetOEMCP() != 850) GTEST_SKIP() << "the console's code page is neither 437 nor 850";
  const TempDir dir;
  const COemFileNames names;
  EXPECT_THAT(LoadError(dir.Path() / u8"Ger\u00E4t.txt"), EndsWith("Ger\x84t.txt)"));
}

// COM.

TEST(LoadingWindowsTest, XmlFileWithoutComFailsToCreateTheObject) {
  const TempDir dir;
  const fs::path path = dir.Write("a %s.xml", testsupport::XmlVif(""));
  const CWithoutCom noCom;
  try {
    const CVendorInfoFile vif(path);
    FAIL() << "the file was loaded";
  } catch (const CZoDOMDocException& error) {
    EXPECT_THAT(error.what(),
                StartsWith("Vendor Info File Create Exception (file name: \"" + path.string() + "\") - "));
  }
}

TEST(LoadingWindowsTest, AppendPassesTheErrorOfCom) {
  const TempDir dir;
  const fs::path path = dir.Write("a.xml", testsupport::XmlVif(""));
  const CWithoutCom noCom;
  CVendorInfoFile vif;
  try {
    AppendFile(vif, path);
    FAIL() << "the file was loaded";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), CO_E_NOTINITIALIZED);
  }
  EXPECT_STREQ(vif.FileName(), L"");
}

TEST(LoadingWindowsTest, TextFileNeedsNoCom) {
  const TempDir dir;
  const CWithoutCom noCom;
  EXPECT_EQ(CVendorInfoFile(dir.Write("x.txt", "USB_VID: 1")).Count(), 1U);
}

TEST(LoadingWindowsTest, ComIsUsableAgain) {
  const TempDir dir;
  { const CWithoutCom noCom; }
  EXPECT_EQ(CVendorInfoFile(dir.Write("x.xml", testsupport::XmlVif("<vif:TID>1</vif:TID>"))).Count(), 1U);
}

}  // namespace
