// What is known of fields and rules, in phrases.
#pragma once

#include <VIFLocations.h>
#include <analysis/FieldExplanation.h>
#include <analysis/Rules.h>

#include <string>
#include <string_view>

namespace cli {

/// The mark after a fact that is not well known, such as " (uncertain)"; empty for any other.
std::string Mark(bool isSeen, vifanalysis::Confidence confidence);

/// Another name of a field, with why and since when it means the field.
std::string SpellingText(const vifanalysis::ExplainedSpelling& spelling);

/// The unit, marked if it is not well known; empty for a field without one.
std::string UnitText(const vifanalysis::FieldExplanation& field);

/// The codes of the rules that mention a field, by its canonical name, separated by commas.
std::string CodesAbout(std::string_view field);

/// The editions that a rule is applied to.
std::string EditionsText(const vifanalysis::RuleInfo& rule);

/// The short name of a group; empty for none.
std::string GroupName(EVifLocation location);

}  // namespace cli
