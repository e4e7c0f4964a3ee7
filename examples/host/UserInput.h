// The two ways in which this host has a VIF chosen.
#pragma once

#include <TestUtilities/TUUserInput.h>

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// Asks on the terminal: a numbered list of files, or any path that the operator types.
///
/// Of the operations of a user-input module the library calls only `ChooseFile`, and only this one must be overridden.
class CTerminalInput : public CTUUserInput {
 public:
  /// \param directory where the files to be listed are
  explicit CTerminalInput(std::filesystem::path directory);

  /// Asks until there is an answer that will do. An empty line, "q" and the end of input mean that no file is chosen.
  bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags, unsigned long reserved) override;

 private:
  void ShowList(const std::vector<std::filesystem::path>& files) const;

  std::filesystem::path m_directory;
};

/// Nobody is asked: the file was given on the command line. Whether it is there, and is a VIF, is for the library to
/// say.
class CGivenFile : public CTUUserInput {
 public:
  explicit CGivenFile(std::filesystem::path file);

  bool ChooseFile(const wchar_t* prompt, const wchar_t* caption, unsigned long flags, unsigned long reserved) override;

 private:
  std::filesystem::path m_file;
};

}  // namespace host
