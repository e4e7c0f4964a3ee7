// Finds all there is to say about one file.
#pragma once

#include "Finding.h"
#include "Rules.h"

#include <filesystem>
#include <string>

namespace cli {

/// Reads a file and holds all rules for its form against it.
/// \throws Failure when it cannot be read; that it is no valid VIF is a finding, not a failure
CheckedFile CheckFile(const std::string& fileName);

/// What reading a file gives: its fields, and what is found on the way.
struct FileContent {
  FoundFields fields;
  Findings findings;
};

/// Reads a text file.
/// \throws CZoRunTimeException as `CheckTextVif` does
FileContent ReadTextFile(const std::filesystem::path& path);

/// Reads an XML file. The reasons why it is not valid are findings.
/// \throws Failure when it is not the file's fault that it cannot be read, and what `CheckXmlVif` throws then
FileContent ReadXmlFile(const std::filesystem::path& path);

}  // namespace cli
