// Files of kinds that only POSIX systems have, named like XML VIFs.
#include "HostileXml.h"
#include "support/OrdinaryUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>

namespace {

using testing::ElementsAre;
using testing::StartsWith;

namespace fs = std::filesystem;

using testsupport::kBegin;
using testsupport::kEnd;
using HostileXmlPosixTest = testsupport::HostileXmlTest;

TEST_F(HostileXmlPosixTest, PipeIsNotWaitedFor) {
  const fs::path path = Dir().Path() / "p.xml";
  ASSERT_EQ(mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
  EXPECT_FALSE(AppendFile(path));
  EXPECT_THAT(Reasons(), ElementsAre("The file is not a regular file."));
}

TEST_F(HostileXmlPosixTest, EndlessDeviceIsNotRead) {
  const fs::path path = Dir().Path() / "z.xml";
  fs::create_symlink("/dev/zero", path);
  EXPECT_FALSE(AppendFile(path));
  EXPECT_THAT(Reasons(), ElementsAre("The file is not a regular file."));
}

TEST_F(HostileXmlPosixTest, SocketCannotBeOpened) {
  const fs::path path = Dir().Path() / "s.xml";
  const int bound = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.native().copy(address.sun_path, sizeof address.sun_path - 1);
  // The socket interface takes addresses of every family as one generic type.
  ASSERT_EQ(bind(bound, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_FALSE(AppendFile(path));
  EXPECT_THAT(Reasons(), ElementsAre(StartsWith("The file cannot be opened: ")));
  close(bound);
}

TEST_F(HostileXmlPosixTest, FileThatMayNotBeReadSaysWhy) {
  const fs::path path = Dir().Write("x.xml", kBegin + kEnd);
  fs::permissions(path, fs::perms::none);
  const testsupport::OrdinaryUser user;
  EXPECT_FALSE(AppendFile(path));
  EXPECT_THAT(Reasons(), ElementsAre("The file cannot be opened: Permission denied."));
}

TEST_F(HostileXmlPosixTest, ReadErrorSaysWhy) {
  const fs::path path = Dir().Path() / "x.xml";
  fs::create_symlink("/proc/self/mem", path);  // a regular file whose first byte is never readable
  if (!fs::is_regular_file(path)) GTEST_SKIP() << "only Linux has this file";
  EXPECT_FALSE(AppendFile(path));
  EXPECT_THAT(Reasons(), testing::Contains(StartsWith("The file cannot be read: ")));
}

}  // namespace
