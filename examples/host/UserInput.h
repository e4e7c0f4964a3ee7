// The two ways of choosing a VIF in this host.
#pragma once

#include <TestUtilities/TUUserInput.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// Asks on the terminal: a numbered list of files, or any path that the operator types.
///
/// Of a user-input module, the library calls only `ChooseFile`, and only that must be overridden.
class CTerminalInput : public CTUUserInput {
 public:
  /// \param directory the directory whose files are listed
  explicit CTerminalInput(std::filesystem::path directory);

  /// Asks until there is a usable answer. An empty line, "q" and the end of input mean that no file is chosen.
  bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags, unsigned long reserved) override;

 private:
  void ShowList(const std::vector<std::filesystem::path>& files) const;

  std::filesystem::path m_directory;
};

/// Does not ask: the file was given on the command line. The library says whether it exists and is a VIF.
class CGivenFile : public CTUUserInput {
 public:
  explicit CGivenFile(std::filesystem::path file);

  bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags, unsigned long reserved) override;

 private:
  std::filesystem::path m_file;
};

}  // namespace host
