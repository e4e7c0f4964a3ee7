// The rules find nothing in clean examples.
#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const std::filesystem::path& path : CleanExamples()) names.push_back(path.filename().string());
  return names;
}

std::string TestName(const testing::TestParamInfo<std::string>& info) {
  std::string name = info.param;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '.'; }, '_');
  return name;
}

class CleanExampleTest : public testing::TestWithParam<std::string> {};

TEST_P(CleanExampleTest, HasNoFindings) {
  const CExample example(GetParam());
  EXPECT_FALSE(example.Fields().empty());
  EXPECT_THAT(example.Findings(), testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(AllExamples, CleanExampleTest, testing::ValuesIn(Names()), TestName);

}  // namespace
}  // namespace vifanalysis
