// Fields, findings and differences as JSON and CSV, as the command `vif` prints them.
//
//     vifanalysis::WriteFieldsAsCsv(vif.Fields(), [](std::string_view text) { std::cout << text; });
//
// Documents are UTF-8: bytes that are not become U+FFFD. A document goes to the sink in parts, in order, so that it
// need not be in memory as a whole. Each function throws what its sink throws and std::bad_alloc, and may be called
// from any number of threads at once.
#pragma once

#include <VIFField.h>
#include <analysis/Differences.h>
#include <analysis/Export.h>
#include <analysis/Finding.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// Takes the next part of a document. The part is borrowed for the call.
using TextSink = std::function<void(std::string_view)>;

/// One JSON object with "files", "componentCount" and "fields", each field on a line of its own.
/// \param fileNames the files that the fields are from
/// \param componentCount how many components these have
/// \param fields the fields, in order
/// \param sink takes the document
VIF_ANALYSIS_API void WriteFieldsAsJson(std::span<const std::string> fileNames, std::uint32_t componentCount,
                                        std::span<const CVIFField> fields, const TextSink& sink);

/// Comma-separated values with a header line (RFC 4180).
VIF_ANALYSIS_API void WriteFieldsAsCsv(std::span<const CVIFField> fields, const TextSink& sink);

/// One file and its findings, in the order of the file.
struct FileFindings {
  std::string name;               ///< the name of the file
  std::vector<Finding> findings;  ///< what was found in it
};

/// The number of findings of that severity in all files.
inline std::size_t CountFindings(std::span<const FileFindings> files, Severity severity) {
  std::size_t count = 0;
  for (const FileFindings& file : files) {
    for (const Finding& finding : file.findings) count += finding.severity == severity ? 1 : 0;
  }
  return count;
}

/// One JSON object with "files" and the counts "errors", "warnings" and "notes", each finding on a line of its own.
VIF_ANALYSIS_API void WriteFindingsAsJson(std::span<const FileFindings> files, const TextSink& sink);

/// How two files differ.
struct FileComparison {
  std::string before;       ///< the name of the first file
  std::string after;        ///< the name of the second file
  Differences differences;  ///< what is declared differently
  FindingChanges findings;  ///< the findings that only one of them has
};

/// How ports of one file differ.
struct FilePorts {
  std::string file;                   ///< its name
  std::size_t components = 0;         ///< the number of components in the file
  std::vector<PortComparison> ports;  ///< the comparisons, in the order of the ports
};

/// Whether no port differs.
VIF_ANALYSIS_API bool AreSame(const FilePorts& ports);

/// One JSON object with "files", "same", "differences", "groups" and "findings", each difference on a line of its own.
VIF_ANALYSIS_API void WriteComparisonAsJson(const FileComparison& comparison, const TextSink& sink);

/// One JSON object with "files", "same" and "ports".
VIF_ANALYSIS_API void WritePortsAsJson(const FilePorts& ports, const TextSink& sink);

}  // namespace vifanalysis
