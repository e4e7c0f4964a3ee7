// What a check finds in a file.
#pragma once

#include <analysis/Export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace vifanalysis {

/// How serious a finding is, least first.
enum class Severity : std::uint8_t {
  Note,     ///< worth knowing, but often correct as it is
  Warning,  ///< worth a look, but may be intended
  Error,    ///< something is lost or cannot be intended
};

/// One finding. Text from the file is printable and shortened in the message, but unchanged in the element.
struct Finding {
  Severity severity;    ///< the severity of its rule
  std::string code;     ///< the rule's, such as "declared-twice"; see `FindRule`
  std::size_t line;     ///< from 1; 0 when the finding has no known place
  std::size_t column;   ///< from 1; 0 when there is none, as in text files
  std::string element;  ///< the field in a text file, the element's path in an XML file; empty when there is none
  std::string message;  ///< what is wrong, as a sentence without a full stop
  std::size_t position = kNoPosition;  ///< the index of the field that it is about among the fields that loading the
                                       ///< file yields; `kNoPosition` when it is not about one that is loaded

  /// Stands for no position.
  static constexpr std::size_t kNoPosition = SIZE_MAX;
};

/// The message of a finding without line numbers, which differ once lines have been added or removed elsewhere in the
/// file. So findings of two runs are the same if their codes, elements and stable messages are.
/// \param rule the finding's code
/// \param message the finding's message
/// \throws std::bad_alloc; may be called from any number of threads at once
VIF_ANALYSIS_API std::string StableMessage(std::string_view rule, std::string_view message);

/// "error", "warning" or "note".
constexpr const char* SeverityName(Severity severity) {
  if (severity == Severity::Error) return "error";
  return severity == Severity::Warning ? "warning" : "note";
}

}  // namespace vifanalysis
