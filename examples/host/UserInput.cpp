#include "UserInput.h"

#include "Console.h"
#include "Printable.h"
#include "VifDirectory.h"

#include <BaseUtilities/PathText.h>
#include <BaseUtilities/StringConvert.h>
#include <TestUtilities/AppState.h>
#include <ZorvenLog/TestSuiteLog.h>

#include <charconv>
#include <iostream>
#include <optional>
#include <system_error>
#include <utility>

namespace host {

namespace {

using Files = std::vector<std::filesystem::path>;

/// The library takes the choice from the suite's log, not from the user-input module. The system's file functions must
/// understand the name, so it is the file's real name and not the printable text.
bool Record(const std::filesystem::path& file) {
  CTestSuiteLog* suiteLog = CAppState::TestSuiteLog();
  if (suiteLog == nullptr) return false;
  suiteLog->SetVifFileName(CSafeString(PathToUtf8(file)));
  return true;
}

std::string Trimmed(const std::string& line) {
  constexpr const char* blanks = " \t\r";
  const auto begin = line.find_first_not_of(blanks);
  return begin == std::string::npos ? std::string() : line.substr(begin, line.find_last_not_of(blanks) - begin + 1);
}

bool IsNumber(const std::string& answer) { return answer.find_first_not_of("0123456789") == std::string::npos; }

std::optional<std::filesystem::path> FileOfNumber(const std::string& answer, const Files& files) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(answer.data(), answer.data() + answer.size(), number);
  if (error == std::errc() && number >= 1 && number <= files.size()) return files[number - 1];
  std::cout << "The list has no number " << answer << ".\n";
  return std::nullopt;
}

std::optional<std::filesystem::path> FileOfPath(const std::string& answer) {
  std::filesystem::path file = PathFromUtf8(answer);
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(file, ignored)) {
    std::cout << "There is no file " << Printable(answer) << ".\n";
  } else if (!HasVifExtension(file)) {
    std::cout << Printable(answer) << " is not a VIF: its name must end in .txt or .xml.\n";
  } else {
    return file;
  }
  return std::nullopt;
}

}  // namespace

CTerminalInput::CTerminalInput(std::filesystem::path directory) : m_directory(std::move(directory)) {}

void CTerminalInput::ShowList(const Files& files) const {
  const std::string directory = Printable(PathToUtf8(m_directory));
  if (files.empty()) {
    std::cout << "There are no VIFs in " << directory << ".\n";
    return;
  }
  std::cout << "VIFs in " << directory << ":\n";
  for (std::size_t i = 0; i < files.size(); ++i) {
    std::cout << "  " << i + 1 << "  " << Printable(PathToUtf8(files[i].filename())) << '\n';
  }
}

bool CTerminalInput::ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long, unsigned long) {
  const Files files = ListVifs(m_directory);
  std::cout << Printable(Utf16ToUtf8(caption)) << '\n' << Printable(Utf16ToUtf8(prompt)) << '\n';
  ShowList(files);
  for (;;) {
    std::cout << "Number, or path of a file (nothing to cancel): " << std::flush;
    std::string line;
    if (!ReadLine(line)) std::cout << '\n';  // at the end of input the cursor is still after the question
    const std::string answer = Trimmed(line);
    if (answer.empty() || answer == "q" || answer == "Q") return false;
    const auto file = IsNumber(answer) ? FileOfNumber(answer, files) : FileOfPath(answer);
    if (file) return Record(*file);
  }
}

CGivenFile::CGivenFile(std::filesystem::path file) : m_file(std::move(file)) {}

bool CGivenFile::ChooseFile(const wchar_t*, const wchar_t*, unsigned long, unsigned long) { return Record(m_file); }

}  // namespace host
