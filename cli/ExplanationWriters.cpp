#include "ExplanationWriters.h"

#include "Columns.h"
#include "ExplanationText.h"
#include "Json.h"
#include "Output.h"
#include "Style.h"

#include <analysis/Edition.h>
#include <analysis/Sources.h>
#include <analysis/Text.h>
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

using vifanalysis::ConfidenceText;
using vifanalysis::DisplayWidth;
using vifanalysis::ExplainedSpelling;
using vifanalysis::ExplainedValue;
using vifanalysis::FieldExplanation;
using vifanalysis::NameKind;
using vifanalysis::NameKindText;
using vifanalysis::RuleInfo;
using vifanalysis::SeverityName;

namespace {

constexpr std::size_t kIndent = 2;
constexpr std::size_t kLabelWidth = 12;
constexpr std::size_t kTextWidth = 78;

/// Writes a text from that column on, in lines that fit an ordinary terminal. The first line begins with the label.
void WriteWrapped(std::string_view label, std::size_t column, std::string_view text) {
  std::string line = std::string(kIndent, ' ').append(label);
  line.resize(std::max(column, line.size()), ' ');
  bool isEmpty = true;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    if (!isEmpty && DisplayWidth(line) + 1 + DisplayWidth(word) > kTextWidth) {
      Write(line + '\n');
      line.assign(column, ' ');
      isEmpty = true;
    }
    line.append(isEmpty ? "" : " ").append(word);
    isEmpty = false;
  }
  Write(line + '\n');
}

/// Nothing where there is no text.
void WriteItem(std::string_view label, std::string_view text) {
  if (!text.empty()) WriteWrapped(label, kIndent + kLabelWidth, text);
}

/// Why the name asked for is not the field's own.
std::string AskedText(const FieldExplanation& field) {
  if (field.asked == NameKind::Canonical || field.asked == NameKind::TextForm || field.asked == NameKind::LetterCase) {
    return {};
  }
  std::string text(NameKindText(field.asked));
  if (!field.alsoMeans.empty()) text.append("; it also means ").append(field.alsoMeans);
  return text;
}

Json TextOrNull(const std::string& text) { return text.empty() ? Json() : Json(text); }

Json ValueJson(const ExplainedValue& value) {
  return {{"value", std::stoull(value.value)},
          {"text", value.text},
          {"seen", value.seen},
          {"confidence", ConfidenceText(value.confidence)}};
}

Json SpellingJson(const ExplainedSpelling& spelling) {
  return {{"name", spelling.name},
          {"kind", NameKindText(spelling.kind)},
          {"first", TextOrNull(spelling.first)},
          {"last", TextOrNull(spelling.last)},
          {"confidence", ConfidenceText(spelling.confidence)}};
}

}  // namespace

void WriteFieldAsText(const FieldExplanation& field) {
  Write(Heading(field.name) + '\n');
  WriteWrapped("", kIndent, field.declares + Mark(true, field.confidence));
  if (!field.note.empty()) WriteWrapped("", kIndent, field.note);
  WriteItem("asked for", AskedText(field));
  WriteItem("group", field.group.empty() ? "none" : field.group);
  WriteItem("type", field.type);
  WriteItem("unit", UnitText(field));
  WriteItem("editions", EditionsText(field));
  const char* label = "values";
  for (const ExplainedValue& value : field.values) {
    WriteItem(label, value.value + "  " + value.text + Mark(value.seen, value.confidence));
    label = "";
  }
  label = "also";
  for (const ExplainedSpelling& spelling : field.spellings) {
    WriteItem(label, SpellingText(spelling));
    label = "";
  }
  WriteItem("findings", CodesAbout(field.name));
}

void WriteFieldAsJson(const FieldExplanation& field) {
  Json json = {{"name", field.name},
               {"group", TextOrNull(field.group)},
               {"declares", field.declares},
               {"type", field.type},
               {"unit", TextOrNull(field.unit)},
               {"values", Json::array()},
               {"editions", {{"first", TextOrNull(field.firstEdition)}, {"last", TextOrNull(field.lastEdition)}}},
               {"spellings", Json::array()},
               {"rules", Json::array()},
               {"confidence", ConfidenceText(field.confidence)}};
  for (const ExplainedValue& value : field.values) json["values"].push_back(ValueJson(value));
  for (const ExplainedSpelling& spelling : field.spellings) json["spellings"].push_back(SpellingJson(spelling));
  for (const RuleInfo* rule : vifanalysis::RulesAbout(field.name)) json["rules"].push_back(rule->code);
  Write(Dump(json) + '\n');
}

void WriteRuleAsText(const RuleInfo& rule) {
  Write(Heading(rule.code) + '\n');
  WriteWrapped("", kIndent, rule.what + Mark(true, rule.confidence));
  WriteWrapped("", kIndent, rule.why);
  WriteItem("severity", SeverityName(rule.severity));
  WriteItem("editions", EditionsText(rule));
  const char* label = "sources";
  for (const std::string& source : vifanalysis::SourcesInWords(rule.sources)) {
    WriteItem(label, source);
    label = "";
  }
}

void WriteRuleAsJson(const RuleInfo& rule) {
  const bool isForAll = rule.first == vifanalysis::Edition{};
  Write(Dump({{"code", rule.code},
              {"severity", SeverityName(rule.severity)},
              {"what", rule.what},
              {"why", rule.why},
              {"editions", {{"first", isForAll ? Json() : Json(EditionText(rule.first))}, {"last", Json()}}},
              {"confidence", ConfidenceText(rule.confidence)}}) +
        '\n');
}

void WriteFieldListAsText() {
  const char* separator = "";
  for (const vifanalysis::FieldGroup& group : vifanalysis::FieldGroups()) {
    const std::string name = GroupName(group.location);
    Write(separator);
    Write(Heading(name.empty() ? "in no group" : name) + '\n');
    CColumns columns(kIndent);
    for (const vifanalysis::FieldInfo* field : group.fields) {
      columns.Add({std::string(field->name), std::string(field->declares)});
    }
    columns.Write();
    separator = "\n";
  }
}

void WriteFieldListAsJson() {
  Json groups = Json::array();
  for (const vifanalysis::FieldGroup& group : vifanalysis::FieldGroups()) {
    Json names = Json::array();
    for (const vifanalysis::FieldInfo* field : group.fields) names.push_back(field->name);
    groups.push_back({{"group", TextOrNull(GroupName(group.location))}, {"fields", names}});
  }
  Write(Dump({{"groups", groups}}) + '\n');
}

}  // namespace cli
