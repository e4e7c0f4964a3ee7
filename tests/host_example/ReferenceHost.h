// Runs the reference host with a log of the test's own.
#pragma once

#include "support/RunProgram.h"
#include "support/TempDir.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

constexpr int kNothingFailed = 0;
constexpr int kChecksFailed = 1;
constexpr int kCouldNotRun = 2;

/// The path of an example VIF.
inline std::string Example(const std::string& name) { return std::string(VIF_EXAMPLES) + "/" + name; }

/// The reference host, and a directory for its files.
class CReferenceHost {
 public:
  ProgramResult Run(const std::vector<std::string>& arguments, const ProgramSetting& setting = {}) const {
    return RunProgram(Command(arguments), setting);
  }

  ProgramResult RunOnTerminal(const std::vector<std::string>& arguments, const std::string& typed) const {
    return testsupport::RunOnTerminal(Command(arguments), 200, typed);
  }

  std::string Dir() const { return NameOf(m_dir.Path()); }

  /// The name of a file in the directory.
  std::string File(const std::filesystem::path& name) const { return NameOf(m_dir.Path() / name); }

  /// Writes a file in the directory and returns its name.
  std::string Write(const std::filesystem::path& name, std::string_view content) const {
    return NameOf(m_dir.Write(name, content));
  }

  /// Creates a directory in the directory.
  std::filesystem::path Folder(const std::filesystem::path& name) const {
    std::filesystem::create_directory(m_dir.Path() / name);
    return m_dir.Path() / name;
  }

  std::string LogFile() const { return File("the.log"); }

  /// The lines of the log file, unchanged.
  std::vector<std::string> RawLog() const {
    std::ifstream file(m_dir.Path() / "the.log", std::ios::binary);
    return Lines({std::istreambuf_iterator<char>(file), {}});
  }

  /// The same without timestamps; a line that does not start with one becomes "no time: " and the line.
  std::vector<std::string> Log() const {
    const std::regex time("^[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}Z ");
    std::vector<std::string> lines = RawLog();
    for (std::string& line : lines) {
      std::smatch match;
      line = std::regex_search(line, match, time) ? match.suffix().str() : "no time: " + line;
    }
    return lines;
  }

 private:
  std::vector<std::string> Command(const std::vector<std::string>& arguments) const {
    std::vector<std::string> command = {REFERENCE_HOST, "--log", LogFile()};
    command.insert(command.end(), arguments.begin(), arguments.end());
    return command;
  }

  TempDir m_dir;
};

}  // namespace testsupport
