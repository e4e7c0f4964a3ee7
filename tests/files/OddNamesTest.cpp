// Files with names that nobody gives by accident.
#include "FileTest.h"
#include "support/RunTimeErrorOf.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace {

using testsupport::CheckText;
using testsupport::CheckXml;
using testsupport::ReadOutcome;

namespace fs = std::filesystem;

/// All bytes that a name can contain, one by one.
std::vector<std::string> NameBytes() {
  std::vector<std::string> bytes;
  for (int byte = 1; byte < 256; ++byte) {
    if (byte != '/') bytes.emplace_back(1, static_cast<char>(byte));
  }
  return bytes;
}

class OddNamesTest : public testsupport::CFileTest {
 protected:
  void SetUp() override {}  // no calls are intercepted

  /// Whether a file of that name can be created here: file systems may have their own rules.
  static bool Write(const fs::path& file, std::string_view content) {
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    return stream.flush().good();
  }

  /// Expects that the file is loaded and checked like one with an ordinary name.
  void ExpectIsRead(const fs::path& file) {
    EXPECT_EQ(Append(file).error, "");
    EXPECT_EQ(NewComponents(), 1U);
    const bool isText = file.extension() == ".txt";
    const ReadOutcome checked = isText ? CheckText(file) : CheckXml(file);
    EXPECT_EQ(checked.error, "");
    EXPECT_FALSE(checked.found.empty());
  }
};

TEST_F(OddNamesTest, AnyByteMayBeInThem) {
  std::size_t count = 0;
  for (const std::string& byte : NameBytes()) {
    for (const char* extension : {".txt", ".xml"}) {
      const fs::path file = Dir().Path() / ("x" + byte + extension);
      if (!Write(file, extension == std::string(".txt") ? kText : kXml)) continue;
      SCOPED_TRACE(testing::PrintToString(byte));
      ExpectIsRead(file);
      const bool isAscii = static_cast<unsigned char>(byte[0]) < 0x80;
      const std::wstring wideByte(1, isAscii ? static_cast<wchar_t>(byte[0]) : L'\uFFFD');
      EXPECT_EQ(CVendorInfoFile(file).FileName(),
                (Dir().Path() / "x").wstring() + wideByte + fs::path(extension).wstring());
      ++count;
    }
  }
  EXPECT_GT(count, 180U);
}

TEST_F(OddNamesTest, AnyByteIsQuotedUnchanged) {
  for (const std::string& byte : NameBytes()) {
    const fs::path text = Dir().Path() / ("x" + byte + ".txt");
    const fs::path xml = Dir().Path() / ("x" + byte + ".xml");
    EXPECT_EQ(Append(text), Ended(NoFile(text)));
    EXPECT_EQ(Append(xml), Ended(NoFile(xml)));
    EXPECT_EQ(CheckText(text), Ended(NotOpened(text)));
    EXPECT_EQ(CheckXml(xml), Ended(Invalid(xml, "The file cannot be opened: " + ErrorText(ENOENT) + ".")));
    if (!Write(xml, "<")) continue;
    EXPECT_TRUE(Append(xml).error.starts_with(Invalid(xml, "")));
  }
}

TEST_F(OddNamesTest, LongestComponentsAreRead) {
  for (const char* extension : {".txt", ".xml"}) {
    const fs::path file = Dir().Path() / (std::string(251, 'n') + extension);
    ASSERT_TRUE(Write(file, extension == std::string(".txt") ? kText : kXml));
    ExpectIsRead(file);
  }
}

TEST_F(OddNamesTest, TooLongComponentsFailTheExistenceTest) {
  for (const std::size_t size : {252U, 5000U, 1'000'000U}) {
    const fs::path file = Dir().Path() / (std::string(size, 'n') + ".txt");
    EXPECT_EQ(Append(file), Ended("filesystem error: " + ErrorText(ENAMETOOLONG)));
    EXPECT_EQ(CheckText(file), Ended(NotOpened(file)));
    EXPECT_EQ(CheckXml(file), Ended(Invalid(file, "The file cannot be opened: " + ErrorText(ENAMETOOLONG) + ".")));
  }
}

TEST_F(OddNamesTest, LongPathsAreRead) {
  fs::path directory = Dir().Path();
  while (directory.native().size() < 3850) directory /= std::string(200, 'd');
  fs::create_directories(directory);
  for (const char* name : {"x.txt", "x.xml"}) {
    ASSERT_TRUE(Write(directory / name, fs::path(name).extension() == ".txt" ? kText : kXml));
    ExpectIsRead(directory / name);
  }
}

TEST_F(OddNamesTest, PathsBeyondTheSystemsLimitFailTheExistenceTest) {
  std::string path = Dir().Path().native();
  while (path.size() < 5000) path += "/.";
  EXPECT_EQ(Append(path + "/x.txt"), Ended("filesystem error: " + ErrorText(ENAMETOOLONG)));
  EXPECT_EQ(Append(path + "/x.xml"), Ended("filesystem error: " + ErrorText(ENAMETOOLONG)));
}

TEST_F(OddNamesTest, RelativeNamesAreReadInADirectoryTooDeepForAnyPath) {
  const fs::path former = fs::current_path();
  const fs::path directory = std::string(200, 'd');
  constexpr int depth = 25;
  fs::current_path(Dir().Path());
  for (int i = 0; i < depth; ++i) {
    fs::create_directory(directory);
    fs::current_path(directory);
  }
  EXPECT_TRUE(Write("x.txt", kText));
  EXPECT_TRUE(Write("x.xml", kXml));
  ExpectIsRead("x.txt");
  ExpectIsRead("x.xml");
  fs::current_path(former);
}

TEST_F(OddNamesTest, AbsoluteNamesAreReadFromADeletedDirectory) {
  Write(TextPath(), kText);
  Write(XmlPath(), kXml);
  const fs::path former = fs::current_path();
  fs::create_directory(Dir().Path() / "gone");
  fs::current_path(Dir().Path() / "gone");
  fs::remove(Dir().Path() / "gone");
  ExpectIsRead(TextPath());
  ExpectIsRead(XmlPath());
  EXPECT_EQ(Append("x.txt"), Ended(NoFile("x.txt")));
  EXPECT_EQ(Append("x.xml"), Ended(NoFile("x.xml")));
  fs::current_path(former);
}

TEST_F(OddNamesTest, NamesThatAreOnlyAnExtensionHaveNone) {
  for (const char* name : {".txt", ".xml"}) {
    const fs::path file = Dir().Path() / name;
    ASSERT_TRUE(Write(file, kText));
    EXPECT_EQ(Append(file), Ended("Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)"));
  }
}

TEST_F(OddNamesTest, NamesThatEndInABlankOrADotHaveAnotherExtension) {
  for (const char* name : {"x.txt ", "x.txt.", "x.xml ", "x.xml.", "x.txt\n", "x. txt", "-", "--help"}) {
    const fs::path file = Dir().Path() / name;
    ASSERT_TRUE(Write(file, kText));
    EXPECT_EQ(Append(file), Ended("Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)"));
  }
}

// Quoted text.

TEST_F(OddNamesTest, PlaceholdersAreQuotedUnchanged) {
  constexpr const char* formats = "%s%n%1$s%d{}{0}";
  const fs::path file = Dir().Path() / (std::string(formats) + ".txt");
  ASSERT_TRUE(Write(file, "PID: 1\nPID: 2\n"));
  const CVendorInfoFile vif(file);
  const VifIndex any = CVIFField::UNSPECIFIED_INDEX;
  EXPECT_EQ(testsupport::RunTimeErrorOf([&] { vif.GetUniqueField("%s%n%1$s", any, any, any); }),
            "Couldn't find field in \"" + file.native() + "\" that matched with \"%s%n%1$s\".");
  EXPECT_EQ(testsupport::RunTimeErrorOf([&] { vif.GetSingleField("P.D|%n", any, any, any); }),
            "2 fields in \"" + file.native() + "\" matched with \"P.D|%n\".");
}

TEST_F(OddNamesTest, PlaceholdersInXmlAreQuotedUnchanged) {
  constexpr const char* formats = "%s%n%1$s{}{0}%";
  Write(XmlPath(), std::string(kXmlHead) + "<Component><PID_SOP value='" + formats + "'/></Component></VIF>");
  const std::string error = Append(XmlPath()).error;
  EXPECT_NE(error.find(std::string("'") + formats + "' is not a valid value"), std::string::npos) << error;
}

}  // namespace
