// The rules that a check applies.
#pragma once

#include <analysis/Confidence.h>
#include <analysis/Edition.h>
#include <analysis/Export.h>
#include <analysis/Finding.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The facts about one rule. The texts are never null and live as long as the library is loaded.
struct RuleInfo {
  const char* code;       ///< the code of its findings, such as "pdo-above-rating"
  Severity severity;      ///< the severity of all its findings
  Edition first;          ///< the first edition that it is applied to; {0, 0} for every file, of a known edition or not
  Confidence confidence;  ///< how certain it is that what it finds is wrong
  const char* sources;    ///< codes of `Sources`, separated by blanks; empty for a rule about the form of a file
  const char* what;       ///< what it finds, as a phrase for a list
  const char* why;        ///< why that is wrong and what to do about it, in sentences
};

/// All rules in a fixed order: first those about the form of a file, then those about what it declares. The list lives
/// as long as the library is loaded. May be called from any number of threads at once.
VIF_ANALYSIS_API const std::vector<RuleInfo>& Rules();

/// The rule with that code, in any letter case; null when there is none.
VIF_ANALYSIS_API const RuleInfo* FindRule(std::string_view code);

/// The rules whose `what` or `why` mentions the field with that canonical name. Throws std::bad_alloc only.
VIF_ANALYSIS_API std::vector<const RuleInfo*> RulesAbout(std::string_view field);

/// The code most similar to a text that is not a code; nothing when none is similar enough.
VIF_ANALYSIS_API std::optional<std::string> NearestCode(std::string_view text);

}  // namespace vifanalysis
