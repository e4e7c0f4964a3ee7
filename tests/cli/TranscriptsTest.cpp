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

/// The lines that begin and end a transcript.
struct Fences {
  std::string_view begin;
  std::string_view end;
};

constexpr Fences kOfDocuments = {"```console", "```"};
constexpr Fences kOfManualPages = {"@transcript", "@end"};

/// All transcripts of a document, with "$ " before each command.
std::vector<Transcript> ReadTranscripts(const std::string& path, const Fences& fences) {
  std::ifstream file(path);
  std::stringstream content;
  content << file.rdbuf();
  std::vector<Transcript> transcripts;
  bool inside = false;
  for (const std::string& line : Lines(content.str())) {
    if (line == fences.begin || line == fences.end) {
      inside = line == fences.begin;
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
  const std::vector<Transcript> transcripts = ReadTranscripts(path, kOfDocuments);
  EXPECT_GE(transcripts.size(), atLeast);
  for (const Transcript& transcript : transcripts) {
    ExpectShown(testsupport::RunDocumented(transcript.command, folder), transcript);
  }
}

TEST(Transcripts, OfTheCommandAreTrue) { ExpectAllShown(std::string(VIF_DOCS) + "/command.md", 6); }

TEST(Transcripts, OfTheTutorialAreTrue) { ExpectAllShown(std::string(VIF_DOCS) + "/tutorial.md", 6, VIF_DOCS); }

/// The command, run where the files that it names are.
std::string Located(const std::string& command) {
  for (const auto& entry : std::filesystem::directory_iterator(VIF_DOCS)) {
    if (command.find(' ' + entry.path().filename().string()) != std::string::npos) return "cd ../../docs && " + command;
  }
  return command;
}

TEST(Transcripts, OfTheManualPagesAreTrue) {
  std::size_t count = 0;
  for (const auto& page : std::filesystem::directory_iterator(VIF_DOCS "/../manual/pages")) {
    for (const Transcript& transcript : ReadTranscripts(page.path().string(), kOfManualPages)) {
      ExpectShown(testsupport::RunDocumented(Located(transcript.command)), transcript);
      ++count;
    }
  }
  EXPECT_GE(count, 10U);
}

TEST(Transcripts, OfTheReadmeAreTrue) { ExpectAllShown(std::string(VIF_DOCS) + "/../README.md", 1); }

}  // namespace
