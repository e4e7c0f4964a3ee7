// Names that the definition table does not have: those of other editions, newer fields, and names that nobody knows.
#include "FormRules.h"
#include "KnownNames.h"
#include "Sentence.h"
#include "vocabulary/SpellingMatch.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

std::string UnknownNameMessage(std::string_view name, NameStyle style) {
  std::string message = "unknown name " + Quoted(name);
  const std::vector<std::string> nearest = NearestNames(name, style);
  const char* separator = "; did you mean ";
  for (const std::string& candidate : nearest) {
    message.append(separator).append(Quoted(candidate));
    separator = " or ";
  }
  return nearest.empty() ? message : message + '?';
}

/// "edition 1.11" or "editions 1.11 to 1.40".
std::string EditionsText(const EditionRange& range) {
  if (range.first == range.last) return "edition " + EditionText(range.first);
  return "editions " + EditionText(range.first) + " to " + EditionText(range.last);
}

/// The name as the file writes it, with the editions of the files that are known to have it.
std::string NameAndEditions(std::string_view name, const EditionRange& seen) {
  return seen.IsKnown() ? Quoted(name) + " (" + EditionsText(seen) + ')' : Quoted(name);
}

/// The field's own name, as a file of that style writes it.
std::string OwnName(const FieldInfo& field, const NameMatch& match, NameStyle style) {
  if (style == NameStyle::Xml) return std::string(field.name);
  const std::string dollar = match.spelling->spelling.starts_with('$') ? "$" : "";
  return dollar + WithDigits(field.spelling, match.indexDigits);
}

/// The field's own name with the first edition that is known to have it.
std::string OwnNameAndEdition(const FieldInfo& field, const NameMatch& match, NameStyle style) {
  const std::string name = OwnName(field, match, style);
  const FieldSpelling* textForm = FindField(name).spelling;
  const Edition first = textForm != nullptr ? textForm->seen.first : field.FirstKnown();
  return IsKnown(first) ? Quoted(name) + " (edition " + EditionText(first) + " and later)" : Quoted(name);
}

const char* RelationOf(NameKind kind) {
  if (kind == NameKind::Mistake) return " is a known mistake for ";
  return kind == NameKind::OlderField ? " is an older name of " : " is another spelling of ";
}

/// What loading makes of the field.
std::string_view Consequence(NameStyle style) {
  return style == NameStyle::Text ? "; it gets no location, and a query for the present name does not find it"
                                  : "; a query for the present name does not find it";
}

std::string OtherNameMessage(std::string_view name, const NameMatch& match, NameStyle style) {
  std::string message = NameAndEditions(name, match.spelling->seen) + RelationOf(match.kind);
  message += OwnNameAndEdition(*match.field, match, style);
  if (match.otherField != nullptr) message += " and " + OwnNameAndEdition(*match.otherField, match, style);
  if (match.spelling->confidence == Confidence::Low) message += ", which is uncertain";
  return message.append(Consequence(style));
}

/// Of a field that was dropped, and that nothing replaces.
std::string DroppedFieldMessage(std::string_view name, const FieldInfo& field, NameStyle style) {
  std::string message = NameAndEditions(name, field.seen) + " is a field that later editions no longer have";
  if (style == NameStyle::Text) message += "; it gets no location";
  return message;
}

std::string NewerFieldMessage(std::string_view name, const FieldInfo& field, const Edition& edition) {
  return Quoted(name) + " appears only from edition " + EditionText(field.FirstKnown()) +
         " on, but the file follows edition " + EditionText(edition);
}

/// What an XML file writes has no index digits.
NameMatch FindName(const UndefinedName& undefined, NameStyle style) {
  const NameMatch match = FindField(undefined.name);
  const bool hasDigits = !match.indexDigits[0].empty() || !match.indexDigits[1].empty();
  return style == NameStyle::Xml && hasDigits ? NameMatch{} : match;
}

class CNameJudge {
 public:
  CNameJudge(NameStyle style, const Edition& edition, Findings& findings)
      : m_style(style), m_edition(edition), m_findings(findings) {}

  void Judge(const UndefinedName& undefined) {
    const NameMatch match = FindName(undefined, m_style);
    switch (match.kind) {
      case NameKind::OtherSpelling:
      case NameKind::Mistake:
        return NoteOnce(code::kOtherSpelling, undefined, match, OtherNameMessage(undefined.name, match, m_style));
      case NameKind::OlderField:
        return NoteOnce(code::kOlderName, undefined, match,
                        match.spelling != nullptr ? OtherNameMessage(undefined.name, match, m_style)
                                                  : DroppedFieldMessage(undefined.name, *match.field, m_style));
      case NameKind::NewerField:
        if (FitsEdition(match, m_edition) != EditionFit::TooEarly) return;
        return NoteOnce(code::kNewerField, undefined, match,
                        NewerFieldMessage(undefined.name, *match.field, m_edition));
      case NameKind::OptionalContent: return;
      // The others are names of the format, but not in that letter case or in that place.
      case NameKind::Unknown:
      case NameKind::Canonical:
      case NameKind::TextForm:
      case NameKind::LetterCase:
      case NameKind::XmlStructure: break;
    }
    Add(code::kUnknownName, undefined, UnknownNameMessage(undefined.name, m_style));
  }

 private:
  /// The numbers of groups do not make another name.
  void NoteOnce(const RuleInfo& rule, const UndefinedName& undefined, const NameMatch& match, std::string message) {
    const std::string_view spelling = match.spelling != nullptr ? match.spelling->spelling : match.field->spelling;
    if (m_noted.insert(spelling).second) Add(rule, undefined, std::move(message));
  }

  void Add(const RuleInfo& rule, const UndefinedName& undefined, std::string message) {
    m_findings.push_back(FindingAt(rule, undefined.line, undefined.column, undefined.element, std::move(message)));
    m_findings.back().position = undefined.position;
  }

  NameStyle m_style;
  const Edition& m_edition;
  Findings& m_findings;
  std::set<std::string_view> m_noted;
};

}  // namespace

void FindUndefinedNames(const UndefinedNames& names, NameStyle style, const Edition& edition, Findings& findings) {
  CNameJudge judge(style, edition, findings);
  for (const UndefinedName& undefined : names) judge.Judge(undefined);
}

}  // namespace vifanalysis
