// Checks one file.
#pragma once

#include "Finding.h"
#include "Rules.h"

#include <filesystem>
#include <string>

namespace cli {

/// Reads a file and applies all rules for its form.
/// \throws Failure when it cannot be read; that it is not a valid VIF is a finding
CheckedFile CheckFile(const std::string& fileName);

/// The fields of a file, and the findings of reading it.
struct FileContent {
  FoundFields fields;
  Findings findings;
};

/// Reads a text file.
/// \throws CZoRunTimeException as `CheckTextVif` does
FileContent ReadTextFile(const std::filesystem::path& path);

/// Reads an XML file. The reasons why it is not valid are findings.
/// \throws Failure, or what `CheckXmlVif` throws, when it cannot be read for a reason that is not in the file
FileContent ReadXmlFile(const std::filesystem::path& path);

}  // namespace cli
