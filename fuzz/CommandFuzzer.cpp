// Runs the command with arbitrary arguments on a file with arbitrary content.
//
// Each line up to the first empty one is an argument. The rest is the file, which is available as "a.txt", "a.xml" and
// "a.pdf".
#include "Checks.h"
#include "Input.h"
#include "MemoryFile.h"
#include "ScratchDirectory.h"
#include "StandardOutput.h"

#include <TestUtilities/DOMDoc.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

/// The command's `main`, under another name.
int RunVif(int argc, char** argv);

namespace {

using fuzz::Require;

constexpr std::size_t kMostArguments = 16;

/// The files that arguments can name.
class CFiles {
 public:
  CFiles() {
    for (const char* name : {"a.txt", "a.xml", "a.pdf"}) {
      std::filesystem::create_symlink(m_content.Path(), Directory() / name);
    }
    std::filesystem::create_directory(Directory() / "d.txt");
    std::filesystem::create_symlink(CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd"),
                                    Directory() / "VendorInfoFile.xsd");
  }

  std::filesystem::path Directory() const { return m_directory.Inner(); }
  void SetContent(std::string_view content) const { m_content.Write(content); }

 private:
  fuzz::CScratchDirectory m_directory;
  fuzz::CMemoryFile m_content;
};

const CFiles& Files() {
  static const CFiles files;
  return files;
}

/// Replaces slashes, so that no argument leads out of the directory.
std::vector<std::string> TakeArguments(std::string_view& lines) {
  std::vector<std::string> arguments = {"vif"};
  while (arguments.size() < kMostArguments) {
    std::string argument(fuzz::TakeUpTo('\n', lines));
    if (argument.empty()) break;
    std::replace(argument.begin(), argument.end(), '/', '_');
    arguments.push_back(argument);
  }
  return arguments;
}

struct Outcome {
  int status = 0;
  std::string output;
  std::string errors;
};

Outcome Run(std::vector<std::string> arguments) {
  std::vector<char*> argv;
  argv.reserve(arguments.size() + 1);
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  const fuzz::CWorkingDirectory directory(Files().Directory());
  fuzz::CTakenOutput taken;
  const int status = RunVif(static_cast<int>(arguments.size()), argv.data());
  CDOMDoc::SetSchemaDirectory({});
  return {status, taken.Output(), taken.Errors()};
}

/// Whether nothing in the text could control a terminal.
bool IsHarmless(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    const bool isControl = (byte < ' ' && byte != '\n' && byte != '\t') || byte == 0x7F;
    const bool isHighControl = byte == 0xC2 && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0;
    if (isControl || isHighControl) return false;
  }
  return true;
}

bool IsOneLine(std::string_view text) { return text.find('\n') == text.size() - 1; }

void CheckErrors(const Outcome& outcome) {
  const std::string& errors = outcome.errors;
  Require(fuzz::IsUtf8(errors) && IsHarmless(errors), "the error is text for a terminal");
  Require(errors.empty() || (IsOneLine(errors) && errors.starts_with("vif: ")), "the error is one line");
  if (outcome.status == 0) fuzz::RequireSame(errors, std::string(), "success prints no error");
  if (outcome.status == 2) Require(!errors.empty(), "failure prints an error");
}

/// The formats for programs, JSON and CSV, may contain control characters.
void CheckOutput(const std::vector<std::string>& arguments, const Outcome& outcome) {
  const std::string& output = outcome.output;
  if (outcome.status == 2) fuzz::RequireSame(output, std::string(), "failure prints no output");
  Require(fuzz::IsUtf8(output), "the output is UTF-8");
  const bool hasJson = arguments.size() > 1 && (arguments[1] == "list" || arguments[1] == "check");
  if (hasJson && output.starts_with('{')) {
    Require(nlohmann::json::accept(output), "the output is JSON");
  } else if (!output.starts_with("name,value,")) {
    Require(IsHarmless(output), "the output is text for a terminal");
  }
}

}  // namespace

/// Creates the files, and makes sure that standard output is not a terminal, for which the command would use colours.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  Require(nowhere >= 0 && dup2(nowhere, STDOUT_FILENO) >= 0, "standard output can be discarded");
  Files().SetContent("Num_Src_PDOs: 3\n");
  const Outcome outcome = Run({"vif", "get", "a.txt", "num_src_pdos"});
  fuzz::RequireSame(outcome.output, std::string("3\n"), "the command finds the file and its output is captured");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(data, data + size);
  std::string_view rest = input;
  const std::vector<std::string> arguments = TakeArguments(rest);
  Files().SetContent(rest);
  const Outcome outcome = Run(arguments);
  Require(outcome.status >= 0 && outcome.status <= 2, "the exit status is one of three");
  CheckErrors(outcome);
  CheckOutput(arguments, outcome);
  return 0;
}
