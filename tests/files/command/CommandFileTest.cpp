// The command with files that misbehave.
#include "support/TempDir.h"
#include "support/VifCommand.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace {

using testsupport::Lines;
using testsupport::ProgramResult;

namespace fs = std::filesystem;

using Variables = std::vector<std::string>;

const std::string kText = "$Vendor_Name: \"Acme\"\nUSB_VID_SOP: 1\nPID_SOP: 2\n";
const std::string kXml = testsupport::XmlVif("<vif:Component><vif:USB_VID_SOP value=\"1\"/></vif:Component>");

const std::vector<std::vector<std::string>> kReaders = {{"list"}, {"list", "--format=json"}, {"show"}, {"get"}};

std::string ErrorText(int number) { return std::generic_category().message(number); }

Variables Fails(const char* call, int error) {
  return {std::string("VIF_TEST_CALL=") + call, "VIF_TEST_ERROR=" + std::to_string(error)};
}

Variables FailsAfter(std::size_t readable, int error = EIO) {
  Variables variables = Fails("read", error);
  variables.push_back("VIF_TEST_READABLE=" + std::to_string(readable));
  return variables;
}

class CommandFileTest : public testing::Test {
 protected:
  void SetUp() override {
#ifdef IS_THREAD_SANITIZED
    GTEST_SKIP() << "the sanitizer's library must be loaded first";
#endif
#ifndef __GLIBC__
    GTEST_SKIP() << "the calls have the names of the GNU C library";
#endif
  }

  fs::path WriteText(const std::string& text = kText) const { return Write("x.txt", text); }
  fs::path WriteXml() const { return Write("x.xml", kXml); }

  /// Runs the command while the environment variables control the calls on the file.
  static ProgramResult Run(std::vector<std::string> command, const fs::path& file, const Variables& variables,
                           const fs::path& watched = {}) {
    // A sanitizer in a shared library insists on being loaded first.
    std::vector<std::string> line = {"/usr/bin/env",
                                     std::string("LD_PRELOAD=") + SCRIPTED_CALLS,
                                     "ASAN_OPTIONS=verify_asan_link_order=0",
                                     "VIF_TEST_FILE=" + (watched.empty() ? file : watched).native(),
                                     "timeout",
                                     "20"};
    line.insert(line.begin() + 4, variables.begin(), variables.end());
    line.emplace_back(VIF_COMMAND);
    line.insert(line.end(), command.begin(), command.end());
    line.push_back(file.native());
    return testsupport::RunProgram(line);
  }

  /// Expects no output but one line with the reason for the failure.
  static void ExpectRefusal(const ProgramResult& result, const std::string& reason) {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.error, "vif: " + reason + "\n");
  }

  const testsupport::TempDir& Dir() const { return m_dir; }

 private:
  fs::path Write(const char* name, const std::string& content) const {
    fs::remove_all(m_dir.Path() / name);
    return m_dir.Write(name, content);
  }

  testsupport::TempDir m_dir;
};

TEST_F(CommandFileTest, TextThatCannotBeOpened) {
  const fs::path file = WriteText();
  for (const char* call : {"open", "status"}) {
    for (std::vector<std::string> reader : {std::vector<std::string>{"list"}, {"show"}, {"get"}, {"check"}}) {
      ExpectRefusal(Run(reader, file, Fails(call, EIO)), "Couldn't open Vendor Info File: " + file.native() + ".");
    }
  }
}

TEST_F(CommandFileTest, XmlThatCannotBeOpened) {
  const fs::path file = WriteXml();
  for (const char* call : {"open", "status"}) {
    for (const int error : {EIO, EMFILE, EACCES}) {
      const std::string reason = "The file cannot be opened: " + ErrorText(error) + ".";
      for (const std::vector<std::string>& reader : kReaders) {
        ExpectRefusal(Run(reader, file, Fails(call, error)),
                      file.native() + " is not a valid Vendor Info File. " + reason);
      }
      ExpectRefusal(Run({"check"}, file, Fails(call, error)), file.native() + ": " + reason);
    }
  }
}

TEST_F(CommandFileTest, FileThatCannotBeExamined) {
  for (const fs::path& file : {WriteText(), WriteXml()}) {
    const fs::filesystem_error error("exists", file, std::error_code(EIO, std::generic_category()));
    for (const std::vector<std::string>& reader : kReaders) {
      ExpectRefusal(Run(reader, file, Fails("stat", EIO)), error.what());
    }
    ExpectRefusal(Run({"check"}, file, Fails("stat", EIO)), file.native() + ": " + ErrorText(EIO));
  }
}

TEST_F(CommandFileTest, TextThatCannotBeReadToItsEndGivesNoPartialAnswer) {
  const fs::path file = WriteText();
  for (std::size_t readable = 0; readable <= kText.size(); readable += 7) {
    const std::string before = kText.substr(0, readable);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    for (const std::vector<std::string>& reader : kReaders) {
      ExpectRefusal(Run(reader, file, FailsAfter(readable)),
                    file.native() + ": reading the file failed in line " + std::to_string(line));
    }
  }
}

TEST_F(CommandFileTest, CheckSaysWhereReadingFailed) {
  const fs::path file = WriteText();
  for (const int error : {EIO, EAGAIN}) {
    const ProgramResult result = Run({"check"}, file, FailsAfter(kText.find("PID"), error));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(Lines(result.output),
                testing::ElementsAre(
                    file.native() + ":3: error: reading the file failed; the rest of it is not checked [read-failed]",
                    "1 error"));
  }
}

TEST_F(CommandFileTest, CheckMissesNothingAfterTheLineWhereReadingFailed) {
  const std::string text = "$VIF_Specification: \"3.22\"\nPD_Port_Type: 3\nNum_Src_PDOs: 1\nSrc_PDO_Voltage2: 180\n";
  const fs::path file = WriteText(text + "PID_SOP: 1\n");
  EXPECT_EQ(Lines(Run({"check"}, file, {}).output).size(), 4U);
  EXPECT_THAT(Lines(Run({"check"}, file, FailsAfter(text.size())).output),
              testing::ElementsAre(
                  file.native() + ":5: error: reading the file failed; the rest of it is not checked [read-failed]",
                  "1 error"));
}

TEST_F(CommandFileTest, XmlThatCannotBeReadToItsEnd) {
  const fs::path file = WriteXml();
  const std::string reason = "The file cannot be read: " + ErrorText(EIO) + ".";
  for (std::size_t readable = 0; readable <= kXml.size(); readable += 29) {
    for (const std::vector<std::string>& reader : kReaders) {
      ExpectRefusal(Run(reader, file, FailsAfter(readable)),
                    file.native() + " is not a valid Vendor Info File. " + reason);
    }
    ExpectRefusal(Run({"check"}, file, FailsAfter(readable)), file.native() + ": " + reason);
  }
}

TEST_F(CommandFileTest, FilesReadInPiecesGiveTheSame) {
  for (const fs::path& file : {WriteText(), WriteXml()}) {
    for (const std::vector<std::string>& reader : {std::vector<std::string>{"list"}, {"show"}, {"get"}, {"check"}}) {
      const ProgramResult whole = Run(reader, file, {});
      EXPECT_EQ(whole.status, 0);
      const ProgramResult result = Run(reader, file, {"VIF_TEST_PIECE=1"});
      EXPECT_EQ(result.status, 0);
      EXPECT_EQ(result.output, whole.output);
    }
  }
}

TEST_F(CommandFileTest, FileThatTurnsIntoAPipeIsNotWaitedFor) {
  for (const char* opening : {"1", "2"}) {
    for (const std::vector<std::string>& reader : {std::vector<std::string>{"list"}, {"check"}}) {
      for (const fs::path& file : {WriteText(), WriteXml()}) {
        const ProgramResult result = Run(reader, file, {std::string("VIF_TEST_PIPE=") + opening});
        EXPECT_LE(result.status, 2) << result.error;  // not the status of a timeout
        fs::remove(file);
      }
    }
  }
}

TEST_F(CommandFileTest, CheckOfXmlThatCannotBeReadDoesNotWaitForAPipeOfThatName) {
  const fs::path file = WriteXml();
  Variables variables = Fails("status", EIO);
  variables.emplace_back("VIF_TEST_PIPE=2");
  ExpectRefusal(Run({"check"}, file, variables),
                file.native() + ": The file cannot be opened: " + ErrorText(EIO) + ".");
}

TEST_F(CommandFileTest, SchemaThatCannotBeUsed) {
  const fs::path schemas = Dir().Path() / "schemas";
  fs::create_directory(schemas);
  for (const char* name : {"VendorInfoFile.xsd", "VendorInfoFileOptionalContent.xsd"}) {
    fs::copy_file(fs::path(VIF_SCHEMAS) / name, schemas / name);
  }
  const fs::path file = WriteXml();
  const fs::path schema = schemas / "VendorInfoFile.xsd";
  for (const char* reader : {"list", "show", "get", "check"}) {
    const std::vector<std::string> command = {reader, "--schemas", schemas.native()};
    const std::string begin = file.native() + ": Couldn't load the schema " + schema.native() + ": The file cannot be ";
    ExpectRefusal(Run(command, file, Fails("open", EIO), schema), begin + "opened: " + ErrorText(EIO) + ".");
    ExpectRefusal(Run(command, file, FailsAfter(5000), schema), begin + "read: " + ErrorText(EIO) + ".");
    EXPECT_EQ(Run(command, file, {"VIF_TEST_PIECE=3"}, schema).status, 0);
  }
}

}  // namespace
