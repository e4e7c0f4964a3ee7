// What all example programs have in common. Separate tests check the output of each.
#include "support/RunProgram.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace {

class ExampleProgram : public testing::TestWithParam<const char*> {};

TEST_P(ExampleProgram, AcceptsAFileWithANameInAnyLanguage) {
  const testsupport::TempDir dir;
  const auto file = dir.Write(u8"Gr\u00F6\u00DFe \u96FB\u529B \U0001F50C.txt", "PID: 1\n");
  const testsupport::ProgramResult result = testsupport::RunProgram({GetParam(), testsupport::NameOf(file)});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "");
}

TEST_P(ExampleProgram, NamesAMissingFile) {
  const testsupport::TempDir dir;
  const std::string file = testsupport::NameOf(dir.Path() / u8"Gr\u00F6\u00DFe \u96FB.txt");
  const testsupport::ProgramResult result = testsupport::RunProgram({GetParam(), file});
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.error.find(": VIF Does not exist. (name: " + file + ")"), std::string::npos) << result.error;
}

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(Readme, ShowsHowToCheckAFileAsTheExampleDoesIt) {
  const std::string folder = EXAMPLES_FOLDER;
  const std::string program = Content(folder + "/programs/check_file.cpp");
  const std::string code = program.substr(program.find("#include"));
  EXPECT_NE(Content(folder + "/../README.md").find("```cpp\n" + code + "```"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(All, ExampleProgram, testing::Values(LIST_FIELDS, OWN_FIELD_NAMES, SOURCE_PDOS));

}  // namespace
