// The two forms of a file, read into fields with their places.
#pragma once

#include "CheckedFile.h"
#include "FoundField.h"

namespace vifanalysis {

/// What reading a file yields.
struct FileContent {
  FoundFields fields;
  UndefinedNames undefinedNames;
  Findings findings;
  bool isComplete = true;  ///< whether these are all fields of the file; a finding says why they are not
};

/// Reads a text file.
/// \throws CZoRunTimeException as `CheckTextVif` does
FileContent ReadTextFile(const CheckedFile& file);

/// Reads an XML file. The reasons why it is not valid are findings.
/// \throws CCheckError, or what `CheckXmlVif` throws, when it cannot be read for a reason that is not in the file
FileContent ReadXmlFile(const CheckedFile& file);

}  // namespace vifanalysis
