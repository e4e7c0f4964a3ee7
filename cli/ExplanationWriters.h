// Prints what fields and findings mean.
#pragma once

#include <analysis/FieldExplanation.h>
#include <analysis/Rules.h>

namespace cli {

/// A field under its name, for people. What is not well known is marked.
void WriteFieldAsText(const vifanalysis::FieldExplanation& field);

/// A field as one JSON object on a line of its own; what is not known is null.
void WriteFieldAsJson(const vifanalysis::FieldExplanation& field);

/// A finding under its code, for people.
void WriteRuleAsText(const vifanalysis::RuleInfo& rule);

/// A finding as one JSON object on a line of its own.
void WriteRuleAsJson(const vifanalysis::RuleInfo& rule);

/// The names of all fields under those of their groups, each with what it declares.
void WriteFieldListAsText();

/// One JSON object with the groups, each with its name, null for fields in no group, and the names of its fields.
void WriteFieldListAsJson();

}  // namespace cli
