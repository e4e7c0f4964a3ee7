// The two forms of a file, read into fields with their places.
#pragma once

#include "FoundField.h"

#include <filesystem>

namespace vifanalysis {

/// What reading a file gives: its fields, and what is found on the way.
struct FileContent {
  FoundFields fields;
  Findings findings;
};

/// Reads a text file.
/// \throws CZoRunTimeException as `CheckTextVif` does
FileContent ReadTextFile(const std::filesystem::path& path);

/// Reads an XML file. The reasons why it is not valid are findings.
/// \throws CCheckError when it is not the file's fault that it cannot be read, and what `CheckXmlVif` throws then
FileContent ReadXmlFile(const std::filesystem::path& path);

}  // namespace vifanalysis
