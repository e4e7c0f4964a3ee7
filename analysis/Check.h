// Checks whether a Vendor Info File is well-formed and whether what it declares is consistent.
#pragma once

#include <analysis/Export.h>
#include <analysis/Finding.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// Why a file could not be checked. The text does not name the file.
class VIF_ANALYSIS_API CCheckError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  CCheckError(const CCheckError&) = default;
  CCheckError& operator=(const CCheckError&) = default;
  ~CCheckError() override;
};

// Without the braces, compilers warn about callers who name only some of the members.
// NOLINTBEGIN(readability-redundant-member-init)

/// Which findings to report.
struct CheckOptions {
  bool notes = false;               ///< whether to report notes, too; those whose codes `only` has are reported anyway
  std::vector<std::string> only{};  ///< codes in any letter case; unless empty, only findings with these are reported
  std::vector<std::string> except{};  ///< codes in any letter case; findings with these are not reported
};

// NOLINTEND(readability-redundant-member-init)

/// All findings of one file, in the order of the file; those without a place come last. A file that is not a valid VIF
/// has findings too. Codes in the options that no rule has are ignored; `FindRule` tells whether a rule has one. May be
/// called from any number of threads at once. On Windows the thread must have initialised COM, for instance with a
/// `CComApartment`.
/// \throws CCheckError when the file is missing, is not a regular file, has another extension than .txt or .xml, or
///   cannot be validated for a reason that is not in the file
/// \throws CZoRunTimeException as `CheckTextVif` and `CheckXmlVif` do
/// \throws CZoDOMDocException as `CheckXmlVif` does
/// \throws _com_error as `CheckXmlVif` does
/// \throws std::bad_alloc
VIF_ANALYSIS_API std::vector<Finding> CheckFile(const std::filesystem::path& path, const CheckOptions& options = {});

/// The same for the content of a file, in memory.
/// \param content the bytes, borrowed for the call
/// \param name stands for the path; its extension decides how the bytes are read. No file of that name is looked at
/// \param options which findings to report
/// \throws CCheckError when the name has another extension than .txt or .xml, or the content cannot be validated for a
///   reason that is not in it; otherwise as `CheckFile`
VIF_ANALYSIS_API std::vector<Finding> CheckContent(std::string_view content, const std::filesystem::path& name,
                                                   const CheckOptions& options = {});

}  // namespace vifanalysis
