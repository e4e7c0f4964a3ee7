// Files that vanish, or turn into something else, while they are read.
#include "FileTest.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>

namespace {

using testsupport::CFileCalls;
using testsupport::CheckText;
using testsupport::CheckXml;
using testsupport::FileCall;
using testsupport::FileCallFate;
using testsupport::FileScript;
using testsupport::ReadOutcome;

namespace fs = std::filesystem;

/// Does something right before a call.
FileScript Before(FileCall::Kind kind, std::function<void()> action) {
  return [=](const FileCall& call) -> FileCallFate {
    if (call.kind == kind && call.number == 1) action();
    return {};
  };
}

/// A way for a file to vanish.
struct Departure {
  const char* name;
  void (*perform)(const fs::path& file);
  bool isGone;             ///< nothing has the name afterwards
  const char* xmlProblem;  ///< why whatever has the name then cannot be read as XML
};

const Departure kDepartures[] = {
    {"deleted", [](const fs::path& file) { fs::remove(file); }, true, "cannot be opened: No such file or directory"},
    {"renamed", [](const fs::path& file) { fs::rename(file, file.parent_path() / "away"); }, true,
     "cannot be opened: No such file or directory"},
    {"directory deleted", [](const fs::path& file) { fs::remove_all(file.parent_path()); }, true,
     "cannot be opened: No such file or directory"},
    {"directory turned into a file",
     [](const fs::path& file) {
       fs::remove_all(file.parent_path());
       std::ofstream(file.parent_path()).put('x');
     },
     true, "cannot be opened: Not a directory"},
    {"turned into a directory",
     [](const fs::path& file) {
       fs::remove(file);
       fs::create_directory(file);
     },
     false, "is not a regular file"},
    {"turned into a pipe",
     [](const fs::path& file) {
       fs::remove(file);
       if (mkfifo(file.c_str(), S_IRUSR | S_IWUSR) != 0) throw std::runtime_error("no pipe");
     },
     false, "is not a regular file"},
    {"turned into a device",
     [](const fs::path& file) {
       fs::remove(file);
       fs::create_symlink("/dev/zero", file);
     },
     false, "is not a regular file"},
};

class VanishingFileTest : public testsupport::CFileTest {
 protected:
  /// Reads a file in a directory of its own; it vanishes before the first call of that kind.
  template <typename Read>
  ReadOutcome ReadWhileItVanishes(const char* name, const Departure& departure, FileCall::Kind kind, const Read& read) {
    const fs::path file = Prepare(name);
    const CFileCalls calls(file, Before(kind, [&] { departure.perform(file); }));
    return read(file);
  }

  fs::path Prepare(const char* name) const {
    const fs::path directory = Dir().Path() / "d";
    fs::remove_all(directory);
    fs::create_directory(directory);
    return Dir().Write(fs::path("d") / name, fs::path(name).extension() == ".txt" ? kText : kXml);
  }
};

TEST_F(VanishingFileTest, TextThatVanishesBeforeTheExistenceTestIsMissing) {
  for (const Departure& departure : kDepartures) {
    const ReadOutcome outcome = ReadWhileItVanishes("x.txt", departure, FileCall::Kind::Stat, Appending());
    const fs::path file = Dir().Path() / "d" / "x.txt";
    EXPECT_EQ(outcome, Ended(departure.isGone ? NoFile(file) : NotOpened(file))) << departure.name;
    EXPECT_EQ(NewComponents(), 0U);
  }
}

TEST_F(VanishingFileTest, TextThatVanishesBeforeItIsOpenedCannotBeOpened) {
  for (const Departure& departure : kDepartures) {
    const ReadOutcome outcome = ReadWhileItVanishes("x.txt", departure, FileCall::Kind::Open, Appending());
    EXPECT_EQ(outcome, Ended(NotOpened(Dir().Path() / "d" / "x.txt"))) << departure.name;
    EXPECT_EQ(NewComponents(), 0U);
  }
}

TEST_F(VanishingFileTest, CheckOfTextThatVanishesBeforeItIsOpenedCannotOpenIt) {
  for (const Departure& departure : kDepartures) {
    EXPECT_EQ(ReadWhileItVanishes("x.txt", departure, FileCall::Kind::Open, CheckText),
              Ended(NotOpened(Dir().Path() / "d" / "x.txt")))
        << departure.name;
  }
}

TEST_F(VanishingFileTest, TextThatVanishesWhileItIsReadIsReadToItsEnd) {
  const ReadOutcome whole = Append(WriteText());
  const ReadOutcome checked = CheckText(TextPath());
  for (const Departure& departure : kDepartures) {
    EXPECT_EQ(ReadWhileItVanishes("x.txt", departure, FileCall::Kind::Read, Appending()), whole) << departure.name;
    EXPECT_EQ(ReadWhileItVanishes("x.txt", departure, FileCall::Kind::Read, CheckText), checked) << departure.name;
  }
}

TEST_F(VanishingFileTest, XmlThatVanishesBeforeTheExistenceTestIsMissing) {
  for (const Departure& departure : kDepartures) {
    const ReadOutcome outcome = ReadWhileItVanishes("x.xml", departure, FileCall::Kind::Stat, Appending());
    const fs::path file = Dir().Path() / "d" / "x.xml";
    EXPECT_EQ(outcome, Ended(departure.isGone ? NoFile(file)
                                              : Invalid(file, std::string("The file ") + departure.xmlProblem + ".")))
        << departure.name;
  }
}

TEST_F(VanishingFileTest, XmlThatVanishesBeforeItIsOpenedIsNotValid) {
  for (const Departure& departure : kDepartures) {
    const ReadOutcome outcome = ReadWhileItVanishes("x.xml", departure, FileCall::Kind::Open, Appending());
    const ReadOutcome expected =
        Ended(Invalid(Dir().Path() / "d" / "x.xml", std::string("The file ") + departure.xmlProblem + "."));
    EXPECT_EQ(outcome, expected) << departure.name;
    EXPECT_EQ(NewComponents(), 0U);
    EXPECT_EQ(ReadWhileItVanishes("x.xml", departure, FileCall::Kind::Open, CheckXml), expected) << departure.name;
  }
}

TEST_F(VanishingFileTest, XmlThatVanishesWhileItIsReadIsReadToItsEnd) {
  const ReadOutcome whole = Append(WriteXml());
  const ReadOutcome checked = CheckXml(XmlPath());
  for (const Departure& departure : kDepartures) {
    EXPECT_EQ(ReadWhileItVanishes("x.xml", departure, FileCall::Kind::Read, Appending()), whole) << departure.name;
    EXPECT_EQ(ReadWhileItVanishes("x.xml", departure, FileCall::Kind::Read, CheckXml), checked) << departure.name;
  }
}

}  // namespace
