// Runs the documented commands and compares their output.
#include "DocumentedCommand.h"
#include "support/RunProgram.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testsupport::Lines;

/// A documented command, without its prompt, and the output shown for it.
struct Transcript {
  std::string command;
  std::string output;
};

/// All transcripts of a document: the lines between ```console and ```, with "$ " before each command.
std::vector<Transcript> ReadTranscripts(const std::string& path) {
  std::ifstream file(path);
  std::stringstream content;
  content << file.rdbuf();
  std::vector<Transcript> transcripts;
  bool inside = false;
  for (const std::string& line : Lines(content.str())) {
    if (line.starts_with("```")) {
      inside = line == "```console";
    } else if (inside && line.starts_with("$ ")) {
      transcripts.push_back({line.substr(2), {}});
    } else if (inside && !transcripts.empty()) {
      transcripts.back().output += line + '\n';
    }
  }
  return transcripts;
}

void ExpectShown(const std::vector<std::string>& shown, const Transcript& transcript) {
  const std::vector<std::string> told = Lines(transcript.output);
#ifdef _WIN32
  constexpr std::string_view notValid = " [not-valid]";
  if (!told.empty() && told.front().ends_with(notValid)) {  // MSXML words the reason, and gives only the first
    ASSERT_EQ(shown.size(), 2U);
    const std::string file = told.front().substr(0, told.front().find(':') + 1);
    EXPECT_TRUE(shown.front().starts_with(file) && shown.front().ends_with(notValid)) << shown.front();
    EXPECT_EQ(shown.back(), "1 error");
    return;
  }
#endif
  EXPECT_EQ(shown, told) << "$ " << transcript.command;
}

void ExpectAllShown(const std::string& path, std::size_t atLeast,
                    const std::filesystem::path& folder = testsupport::ExampleFolder()) {
  const std::vector<Transcript> transcripts = ReadTranscripts(path);
  EXPECT_GE(transcripts.size(), atLeast);
  for (const Transcript& transcript : transcripts) {
    ExpectShown(testsupport::RunDocumented(transcript.command, folder), transcript);
  }
}

TEST(Transcripts, OfTheCommandAreTrue) { ExpectAllShown(std::string(VIF_DOCS) + "/command.md", 6); }

TEST(Transcripts, OfTheTutorialAreTrue) { ExpectAllShown(std::string(VIF_DOCS) + "/tutorial.md", 6, VIF_DOCS); }

TEST(Transcripts, OfTheReadmeAreTrue) { ExpectAllShown(std::string(VIF_DOCS) + "/../README.md", 1); }

}  // namespace
