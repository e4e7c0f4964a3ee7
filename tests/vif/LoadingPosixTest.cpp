// Loading things that only POSIX systems have in their directories.
#include "BaseUtilities/Exceptions.h"
#include "VIFTextCheck.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/OrdinaryUser.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"
#include "support/Watchdog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testsupport::FieldTexts;
using testsupport::RunTimeErrorOf;
using testsupport::TempDir;

namespace fs = std::filesystem;
using testsupport::OrdinaryUser;

/// Guards against endless reading.
class Alarm {
  testsupport::CWatchdog m_watchdog{std::chrono::seconds(20)};
};

/// Changes the permissions of a file or directory while it lives.
class Permissions {
 public:
  Permissions(const fs::path& path, fs::perms permissions) : m_path(path), m_former(fs::status(path).permissions()) {
    fs::permissions(path, permissions);
  }
  Permissions(const Permissions&) = delete;
  Permissions(Permissions&&) = delete;
  Permissions& operator=(const Permissions&) = delete;
  Permissions& operator=(Permissions&&) = delete;
  ~Permissions() { fs::permissions(m_path, m_former); }

 private:
  fs::path m_path;
  fs::perms m_former;
};

constexpr fs::perms kOpenToAll = fs::perms::owner_all | fs::perms::group_exec | fs::perms::others_exec;

/// A named socket.
class Socket {
 public:
  explicit Socket(const fs::path& path) : m_socket(socket(AF_UNIX, SOCK_STREAM, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.native().copy(address.sun_path, sizeof address.sun_path - 1);
    // The socket interface takes addresses of every family as one generic type.
    if (bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
      throw std::system_error(errno, std::generic_category(), "bind");
    }
  }
  Socket(const Socket&) = delete;
  Socket(Socket&&) = delete;
  Socket& operator=(const Socket&) = delete;
  Socket& operator=(Socket&&) = delete;
  ~Socket() { close(m_socket); }

 private:
  int m_socket;
};

std::string LoadError(const fs::path& path) {
  return RunTimeErrorOf([&] { CVendorInfoFile vif(path); });
}

std::string CannotOpenText(const fs::path& path) { return "Couldn't open Vendor Info File: " + path.string() + "."; }

/// The filesystem error that loading the file throws, or one without a code if it throws none.
fs::filesystem_error LoadFileSystemError(const fs::path& path) {
  try {
    CVendorInfoFile vif(path);
  } catch (const fs::filesystem_error& error) {
    return error;
  }
  return {"<no exception>", std::error_code()};
}

// Not regular files.

TEST(LoadingPosixTest, PipeNamedLikeATextVifCannotBeOpened) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  ASSERT_EQ(mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
  const Alarm alarm;
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

TEST(LoadingPosixTest, SocketNamedLikeATextVifCannotBeOpened) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  const Socket socket(path);
  const Alarm alarm;
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

TEST(LoadingPosixTest, LinkToAnEndlessDeviceCannotBeOpened) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  fs::create_symlink("/dev/zero", path);
  const Alarm alarm;
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

TEST(LoadingPosixTest, FileThatCannotBeOpenedAddsNoComponent) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  ASSERT_EQ(mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
  const Alarm alarm;
  CVendorInfoFile vif;
  EXPECT_THROW(vif.Append(path.c_str()), CZoRunTimeException);
  EXPECT_EQ(vif.ComponentCount(), 0U);
  EXPECT_STREQ(vif.FileName(), L"");
}

// Links.

TEST(LoadingPosixTest, LinkToATextVifIsLoadedUnderTheNameOfTheLink) {
  const TempDir dir;
  const fs::path link = dir.Path() / "x.txt";
  fs::create_symlink(dir.Write("vif.doc", "USB_VID: 1"), link);
  const CVendorInfoFile vif(link);
  EXPECT_THAT(FieldTexts(*vif.GetFields()), ElementsAre("USB_VID=1 @6.1"));
  EXPECT_EQ(vif.FileName(), link.wstring());
}

TEST(LoadingPosixTest, LinkToNowhereDoesNotExist) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  fs::create_symlink(dir.Path() / "missing", path);
  EXPECT_EQ(LoadError(path), "VIF Does not exist. (name: " + path.string() + ")");
}

TEST(LoadingPosixTest, LinkToItselfFailsTheExistenceTest) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  fs::create_symlink(path, path);
  const fs::filesystem_error error = LoadFileSystemError(path);
  EXPECT_EQ(error.code(), std::errc::too_many_symbolic_link_levels);
  EXPECT_EQ(error.path1(), path);
  EXPECT_THAT(error.what(), HasSubstr("exists"));
}

TEST(LoadingPosixTest, ErrorOfTheExistenceTestPassesThroughAppendToo) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  fs::create_symlink(path, path);
  CVendorInfoFile vif;
  EXPECT_THROW(vif.Append(path.c_str()), fs::filesystem_error);
  EXPECT_STREQ(vif.FileName(), L"");
}

// Names.

TEST(LoadingPosixTest, NameMayBeAnyBytes) {
  const TempDir dir;
  const fs::path path = dir.Write("\xFFg\xC3\xA4\xE4.txt", "USB_VID: 1");
  CVendorInfoFile vif(path);
  vif.Append(path.c_str());
  EXPECT_THAT(FieldTexts(*vif.GetFields()), ElementsAre("USB_VID=1 @6.1", "USB_VID=1 @6.2"));
  EXPECT_EQ(vif.FileName(), dir.Path().wstring() + L"/\uFFFDg\u00E4\uFFFD.txt");
}

TEST(LoadingPosixTest, MessagesQuoteAnyBytes) {
  const TempDir dir;
  const fs::path path = dir.Path() / "\xFF%s\n\r%n.txt";
  EXPECT_EQ(LoadError(path), "VIF Does not exist. (name: " + path.native() + ")");
  fs::create_directory(path);
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

TEST(LoadingPosixTest, NamesWithPlaceholdersAndLineFeedsAreLoaded) {
  const TempDir dir;
  const fs::path path = dir.Write("%s\n%n\n.txt", "USB_VID: 1");
  const CVendorInfoFile vif(path);
  EXPECT_EQ(vif.Count(), 1U);
  EXPECT_EQ(vif.FileName(), path.wstring());
}

// Permissions.

TEST(LoadingPosixTest, ForbiddenStatusIsTheErrorOfTheExistenceTest) {
  const TempDir dir;
  fs::create_directory(dir.Path() / "closed");
  const fs::path path = dir.Write("closed/x.txt", "USB_VID: 1");
  const Permissions open(dir.Path(), kOpenToAll);
  const Permissions closed(path.parent_path(), fs::perms::none);
  const OrdinaryUser user;
  const fs::filesystem_error error = LoadFileSystemError(path);
  EXPECT_EQ(error.code(), std::errc::permission_denied);
  EXPECT_EQ(error.path1(), path);
  EXPECT_THAT(error.what(), HasSubstr("exists"));
}

TEST(LoadingPosixTest, FileThatMayNotBeReadCannotBeOpened) {
  const TempDir dir;
  const fs::path path = dir.Write("x.txt", "USB_VID: 1");
  const Permissions open(dir.Path(), kOpenToAll);
  const Permissions closed(path, fs::perms::none);
  const OrdinaryUser user;
  EXPECT_EQ(LoadError(path), CannotOpenText(path));
}

// Read errors.

#ifdef __linux__
TEST(LoadingPosixTest, ReadErrorEndsTheReadQuietly) {
  const TempDir dir;
  const fs::path path = dir.Path() / "x.txt";
  fs::create_symlink("/proc/self/mem", path);  // a regular file whose first byte is never readable
  const Alarm alarm;
  const CVendorInfoFile vif(path);
  EXPECT_EQ(vif.Count(), 0U);
  EXPECT_EQ(vif.ComponentCount(), 1U);
}

TEST(LoadingPosixTest, ReadErrorIsReportedByTheCheck) {
  const Alarm alarm;
  std::vector<EVifLineProblem> problems;
  CheckTextVif("/proc/self/mem", [&](const VifLineReport& report) { problems.push_back(report.problem); });
  EXPECT_THAT(problems, ElementsAre(eVifLineReadFailed));
}
#endif

}  // namespace
