// Runs the commands that the documentation shows and compares what they print.
#include "support/VifCommand.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using testsupport::Lines;

/// A command of the documentation, without its prompt, and what it is said to print.
struct Transcript {
  std::string command;
  std::string output;
};

/// All transcripts of a document: the lines between ```console and ```, each command behind "$ ".
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

TEST(Transcripts, OfTheCommandAreTrue) {
  const std::vector<Transcript> transcripts = ReadTranscripts(std::string(VIF_DOCS) + "/command.md");
  EXPECT_GE(transcripts.size(), 6U);
  for (const Transcript& transcript : transcripts) {
    // As in a shell in the folder of the examples, with the command on the path.
    const testsupport::ProgramResult result = testsupport::RunProgram(
        {"/bin/sh", "-c", "cd \"$1\" && PATH=\"$(dirname \"$2\"):$PATH\" && exec 2>&1 && eval \"$0\"",
         transcript.command, VIF_EXAMPLES, VIF_COMMAND});
    EXPECT_EQ(Lines(result.output), Lines(transcript.output)) << "$ " << transcript.command;
  }
}

}  // namespace
