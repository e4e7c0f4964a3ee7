// How the command prints odd file names and odd text in files.
#include "support/TempDir.h"
#include "support/VifCommand.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace {

using testing::HasSubstr;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::Vif;

namespace fs = std::filesystem;

/// How a byte of a name is printed.
std::string Printed(unsigned char byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  switch (byte) {
    case '\n': return "\\n";
    case '\r': return "\\r";
    case '\t': return "\\t";
    default: break;
  }
  if (byte < 0x20 || byte == 0x7F) return std::string("\\x") + digits[byte >> 4U] + digits[byte & 0xFU];
  if (byte >= 0x80) return "\uFFFD";
  return {static_cast<char>(byte)};
}

/// A byte that a name can contain.
struct NameByte {
  std::string text;
  std::string printed;
};

std::vector<NameByte> NameBytes() {
  std::vector<NameByte> bytes;
  for (unsigned byte = 1; byte < 256; ++byte) {
    if (byte == '/') continue;
    bytes.push_back({{static_cast<char>(byte)}, Printed(static_cast<unsigned char>(byte))});
  }
  return bytes;
}

class CommandNamesTest : public testing::Test {
 protected:
  /// Runs the command in the directory of the files.
  ProgramResult Run(const std::vector<std::string>& arguments) const {
    return Vif(arguments, {.directory = m_dir.Path()});
  }

  /// Expects no output but one line with the reason for the failure.
  void ExpectRefusal(const std::vector<std::string>& arguments, const std::string& reason) const {
    const ProgramResult result = Run(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "vif: " + reason + "\n");
  }

  /// Creates a file.
  /// \return false where the file system does not allow the name
  bool Write(const std::string& name, std::string_view content) const {
    try {
      m_dir.Write(name, content);
    } catch (const std::exception&) {
      return false;
    }
    return true;
  }

  const testsupport::TempDir& Dir() const { return m_dir; }

 private:
  testsupport::TempDir m_dir;
};

TEST_F(CommandNamesTest, AnyByteMayBeInAName) {
  std::vector<std::string> arguments = {"check"};
  std::vector<std::string> printed;
  for (const NameByte& byte : NameBytes()) {
    if (Write("x" + byte.text + ".txt", "oops")) {
      arguments.push_back("x" + byte.text + ".txt");
      printed.push_back("x" + byte.printed + ".txt:1: error: ");
    }
    if (Write("x" + byte.text + ".xml", "oops")) {
      arguments.push_back("x" + byte.text + ".xml");
      printed.push_back("x" + byte.printed + ".xml:1:1: error: ");
    }
  }
  ASSERT_GT(printed.size(), 2U * 90);
  const ProgramResult result = Run(arguments);
  EXPECT_EQ(result.status, 1);
  const std::vector<std::string> lines = Lines(result.output);
  ASSERT_EQ(lines.size(), printed.size() + 1);
  for (std::size_t i = 0; i < printed.size(); ++i) EXPECT_TRUE(lines[i].starts_with(printed[i])) << lines[i];
}

TEST_F(CommandNamesTest, AnyByteMayBeInTheNameOfALoadedFile) {
  std::vector<std::string> arguments = {"list", "--format=csv"};
  std::size_t count = 0;
  for (const NameByte& byte : NameBytes()) {
    if (!Write("x" + byte.text + ".txt", "A: 1")) continue;
    arguments.push_back("x" + byte.text + ".txt");
    ++count;
  }
  const ProgramResult result = Run(arguments);
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(Lines(result.output).size(), count + 1);
}

TEST_F(CommandNamesTest, AnyByteMayBeInTheNameOfAMissingFile) {
  for (const NameByte& byte : NameBytes()) {
    // One byte beyond ASCII stands for all of them, and letters need no test.
    const bool isSeldom = byte.printed.size() > 1 || std::ispunct(static_cast<unsigned char>(byte.text[0])) != 0;
    if (!isSeldom || (byte.printed == "\uFFFD" && byte.text != "\xFF")) continue;
    ExpectRefusal({"list", "x" + byte.text + ".txt"}, "VIF Does not exist. (name: x" + byte.printed + ".txt)");
  }
}

TEST_F(CommandNamesTest, RefusalQuotesAnyName) {
  constexpr const char* library = "Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)";
  constexpr const char* check = "a VIF is a text (*.txt) or XML (*.xml) file";
  for (const char* name : {"-", ".txt", ".xml", "VIF", "text", "a", "file", "x.txt.", "x.txt ", "x.txt\n", "%s%n",
                           "--x", "--help", "*.txt)"}) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(Write(name, "A: 1"));
    std::string printed = name;
    if (printed.ends_with('\n')) printed = "x.txt\\n";
    for (const char* command : {"list", "show", "get"}) ExpectRefusal({command, "--", name}, printed + ": " + library);
    ExpectRefusal({"check", "--", name}, printed + ": " + check);
  }
}

TEST_F(CommandNamesTest, RefusalQuotesAnyNameOfAMissingFile) {
  for (const std::string name : {"-", "VIF", "such", "a", "file", "%s%n%1$s", "{}", "{0}.txt"}) {
    ExpectRefusal({"list", "--", name}, "VIF Does not exist. (name: " + name + ")");
    ExpectRefusal({"check", "--", name}, name + ": there is no such file");
  }
}

TEST_F(CommandNamesTest, NamesThatBeginLikeOptionsFollowTwoDashes) {
  for (const std::string name : {"-x.txt", "--.txt", "--help.txt", "--format=json.txt", "--src-pdo.txt"}) {
    ASSERT_TRUE(Write(name, "A: 1"));
    for (const char* command : {"list", "show", "get", "check"}) {
      const ProgramResult result = Run({command, "--", name});
      EXPECT_LE(result.status, 1) << command << ' ' << name << ": " << result.error;
      EXPECT_EQ(result.error, "");
      EXPECT_NE(result.output, "");
    }
  }
}

TEST_F(CommandNamesTest, NamesThatAreSpecialElsewhereAreOrdinaryHere) {
  for (const std::string name :
       {"*.txt",  "?.txt",  "[a].txt",   "[a,b].txt", "{a,b}.txt",  "%%.txt",    "%s%n.txt", "a,b.txt",
        "@a.txt", "~.txt",  "$HOME.txt", "`id`.txt",  "\"a\".txt",  "'a'.txt",   "..txt",    "...txt",
        " .txt",  "\\.txt", "C:a.txt",   "a;b.txt",   "file:a.txt", "http:a.txt"}) {
    ASSERT_TRUE(Write(name, "PID: 7"));
    const ProgramResult result = Run({"get", name, "PID"});
    EXPECT_EQ(result.status, 0) << name << ": " << result.error;
    EXPECT_EQ(result.output, "7\n");
    EXPECT_EQ(Lines(Run({"show", name}).output).front(), name);
  }
}

TEST_F(CommandNamesTest, LongestNamesAreRead) {
  const std::string name = std::string(251, 'n') + ".txt";
  ASSERT_TRUE(Write(name, "PID: 7"));
  EXPECT_EQ(Run({"get", name, "PID"}).output, "7\n");
  EXPECT_EQ(Run({"check", name}).status, 0);
}

TEST_F(CommandNamesTest, TooLongNamesAreQuotedWhole) {
  for (const std::string& name : {std::string(252, 'n') + ".txt", std::string(100'000, 'n') + ".xml"}) {
    const fs::filesystem_error error("exists", name, std::make_error_code(std::errc::filename_too_long));
    for (const char* command : {"list", "show", "get"}) ExpectRefusal({command, name}, error.what());
    ExpectRefusal({"check", name}, name + ": " + error.code().message());
  }
}

TEST_F(CommandNamesTest, LongPathsAreRead) {
  std::string directory;
  while (directory.size() < 3700) directory += std::string(200, 'd') + "/";
  fs::create_directories(Dir().Path() / directory);
  ASSERT_TRUE(Write(directory + "x.txt", "PID: 7"));
  ASSERT_TRUE(Write(directory + "x.xml", testsupport::XmlVif("<vif:PID_SOP value=\"7\"/>")));
  for (const char* name : {"x.txt", "x.xml"}) {
    for (const char* command : {"list", "show", "check"}) {
      const ProgramResult result = Run({command, directory + name});
      EXPECT_LE(result.status, 1) << result.error;
      EXPECT_EQ(result.error, "");
    }
  }
  std::string beyond;
  while (beyond.size() < 5000) beyond += "d/";
  beyond += "x.txt";
  ExpectRefusal({"check", beyond}, beyond + ": " + std::make_error_code(std::errc::filename_too_long).message());
}

// Text.

constexpr const char* kFormats = "%s%n%1$s%d{}{0}%";

TEST_F(CommandNamesTest, PlaceholdersInLinesAreQuotedUnchanged) {
  ASSERT_TRUE(Write("x.txt", "PID: " + std::string(kFormats) + "\n" + kFormats + ": 1\n" + kFormats + "\n"));
  const std::vector<std::string> lines = Lines(Run({"check", "x.txt"}).output);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_THAT(lines[0], HasSubstr(kFormats));
  EXPECT_THAT(lines[1], HasSubstr(std::string("'") + kFormats + "' yields no field"));
  EXPECT_THAT(lines[2], HasSubstr(std::string("'") + kFormats + "' yields no field"));
}

TEST_F(CommandNamesTest, PlaceholdersInXmlAreQuotedUnchanged) {
  const std::string value = kFormats;
  ASSERT_TRUE(
      Write("x.xml", testsupport::XmlVif("<vif:Component><vif:PID_SOP value=\"" + value + "\"/></vif:Component>")));
  EXPECT_THAT(Run({"check", "x.xml"}).output, HasSubstr("'" + value + "' is not a valid value"));
  EXPECT_THAT(Run({"list", "x.xml"}).error, HasSubstr("'" + value + "' is not a valid value"));
}

TEST_F(CommandNamesTest, PlaceholdersInFieldsArePrintedUnchanged) {
  const std::string value = kFormats;
  ASSERT_TRUE(Write("x.txt", "$A: \"" + value + "\" ; " + value + "\n"));
  ASSERT_TRUE(Write("x.xml", testsupport::XmlVif("<vif:Vendor_Name>" + value + "</vif:Vendor_Name>")));
  EXPECT_EQ(Run({"get", "x.txt", "\\$A"}).output, value + "\n");
  for (const char* name : {"x.txt", "x.xml"}) {
    for (const char* format : {"table", "json", "csv"}) {
      EXPECT_THAT(Run({"list", std::string("--format=") + format, name}).output, HasSubstr(value));
    }
    EXPECT_THAT(Run({"show", name}).output, HasSubstr(value));
  }
}

TEST_F(CommandNamesTest, PlaceholdersInNamesAndPatternsAreQuotedUnchanged) {
  ASSERT_TRUE(Write("%s%n.txt", "PID: 1\nPID: 2\n"));
  for (const auto& [pattern, count] :
       {std::pair("%s%n", "Couldn't find field in"), std::pair("P.D|%s", "2 fields in")}) {
    const ProgramResult result = Run({"get", "--unique", "%s%n.txt", pattern});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, HasSubstr(count + std::string(" \"%s%n.txt\"")));
    EXPECT_THAT(result.error, HasSubstr(std::string("\"") + pattern + "\""));
  }
}

}  // namespace
