// Files that cannot be opened or examined.
#include "FileTest.h"
#include "support/RunTimeErrorOf.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

namespace {

using testsupport::CFileCalls;
using testsupport::CheckText;
using testsupport::CheckXml;
using testsupport::FileCall;
using testsupport::FileCallFate;
using testsupport::FileScript;
using testsupport::ReadOutcome;

constexpr int kErrors[] = {EACCES, EPERM, EIO,    ELOOP, ENOMEM,  ENAMETOOLONG, EMFILE,
                           ENFILE, ENXIO, ESTALE, EBUSY, ETXTBSY, EAGAIN,       ENODEV};

FileScript Fails(FileCall::Kind kind, int error) {
  return [=](const FileCall& call) { return FileCallFate{call.kind == kind ? error : 0}; };
}

/// A signal interrupts the first call of that kind.
FileScript IsInterrupted(FileCall::Kind kind) {
  return [=](const FileCall& call) { return FileCallFate{call.kind == kind && call.number == 1 ? EINTR : 0}; };
}

/// While it lives, no further file can be opened.
class NoDescriptors {
 public:
  NoDescriptors() {
    getrlimit(RLIMIT_NOFILE, &m_former);
    const rlimit none = {0, m_former.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
  }
  NoDescriptors(const NoDescriptors&) = delete;
  NoDescriptors& operator=(const NoDescriptors&) = delete;
  ~NoDescriptors() { setrlimit(RLIMIT_NOFILE, &m_former); }

 private:
  rlimit m_former = {};
};

class OpenErrorTest : public testsupport::CFileTest {
 protected:
  static std::string CannotBeOpened(int error) { return "The file cannot be opened: " + ErrorText(error) + "."; }
};

TEST_F(OpenErrorTest, TextCannotBeOpenedWhateverTheReason) {
  const ReadOutcome whole = Append(WriteText());
  for (const int error : kErrors) {
    {
      const CFileCalls calls(TextPath(), Fails(FileCall::Kind::Open, error));
      EXPECT_EQ(Append(TextPath()), Ended(NotOpened(TextPath()))) << error;
      EXPECT_EQ(NewComponents(), 0U);
      EXPECT_EQ(CheckText(TextPath()), Ended(NotOpened(TextPath()))) << error;
    }
    EXPECT_EQ(Append(TextPath()), whole);
  }
}

TEST_F(OpenErrorTest, XmlSaysWhyItCannotBeOpened) {
  const ReadOutcome whole = Append(WriteXml());
  for (const int error : kErrors) {
    {
      const CFileCalls calls(XmlPath(), Fails(FileCall::Kind::Open, error));
      EXPECT_EQ(Append(XmlPath()), Ended(Invalid(XmlPath(), CannotBeOpened(error))));
      EXPECT_EQ(NewComponents(), 0U);
      EXPECT_EQ(CheckXml(XmlPath()), Ended(Invalid(XmlPath(), CannotBeOpened(error))));
    }
    EXPECT_EQ(Append(XmlPath()), whole);
  }
}

TEST_F(OpenErrorTest, StatusOfTheOpenFileIsNeededToReadIt) {
  WriteText();
  WriteXml();
  for (const int error : kErrors) {
    {
      const CFileCalls calls(TextPath(), Fails(FileCall::Kind::Status, error));
      EXPECT_EQ(Append(TextPath()), Ended(NotOpened(TextPath()))) << error;
      EXPECT_EQ(calls.Count(FileCall::Kind::Read), 0U);
    }
    const CFileCalls calls(XmlPath(), Fails(FileCall::Kind::Status, error));
    EXPECT_EQ(Append(XmlPath()), Ended(Invalid(XmlPath(), CannotBeOpened(error))));
    EXPECT_EQ(calls.Count(FileCall::Kind::Read), 0U);
  }
}

TEST_F(OpenErrorTest, OtherErrorsOfTheExistenceTestAreThrownUnchanged) {
  for (const auto& file : {WriteText(), WriteXml()}) {
    for (const int error : kErrors) {
      const CFileCalls calls(file, Fails(FileCall::Kind::Stat, error));
      EXPECT_EQ(Append(file), Ended("filesystem error: " + ErrorText(error)));
      EXPECT_EQ(NewComponents(), 0U);
    }
  }
}

TEST_F(OpenErrorTest, FileThatTheExistenceTestDoesNotFindIsMissing) {
  for (const auto& file : {WriteText(), WriteXml()}) {
    for (const int error : {ENOENT, ENOTDIR}) {
      const CFileCalls calls(file, Fails(FileCall::Kind::Stat, error));
      EXPECT_EQ(Append(file), Ended(NoFile(file)));
    }
  }
}

TEST_F(OpenErrorTest, InterruptedOpenIsRetried) {
  for (const auto& file : {WriteText(), WriteXml()}) {
    const ReadOutcome whole = Append(file);
    const CFileCalls calls(file, IsInterrupted(FileCall::Kind::Open));
    EXPECT_EQ(Append(file), whole) << file;
  }
}

TEST_F(OpenErrorTest, FilesCannotBeOpenedWithoutDescriptors) {
#ifdef IS_SANITIZED
  GTEST_SKIP() << "the sanitizer opens a pipe of its own to examine memory";
#endif
  WriteText();
  WriteXml();
  const ReadOutcome text = Append(TextPath());
  const ReadOutcome xml = Append(XmlPath());
  {
    const NoDescriptors noDescriptors;
    EXPECT_EQ(Append(TextPath()), Ended(NotOpened(TextPath())));
    EXPECT_EQ(Append(XmlPath()), Ended(Invalid(XmlPath(), CannotBeOpened(EMFILE))));
  }
  EXPECT_EQ(Append(TextPath()), text);
  EXPECT_EQ(Append(XmlPath()), xml);
}

}  // namespace
