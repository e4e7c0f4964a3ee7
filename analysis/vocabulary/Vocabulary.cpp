// The vocabulary as its users see it.
#include <analysis/Vocabulary.h>

#include "FieldIndex.h"

#include <algorithm>

namespace vifanalysis {

namespace {

EditionFit FitsRange(const EditionRange& range, const Edition& edition) noexcept {
  if (!range.IsKnown()) return EditionFit::Unknown;
  if (edition < range.first) return EditionFit::TooEarly;
  return edition > range.last ? EditionFit::Gone : EditionFit::Known;
}

}  // namespace

std::span<const FieldInfo> Fields() noexcept { return FieldIndex().Fields(); }

std::span<const FieldGroup> FieldGroups() noexcept { return FieldIndex().Groups(); }

NameMatch FindField(std::string_view name) noexcept { return FieldIndex().Find(name); }

EditionFit FitsEdition(const FieldInfo& field, const Edition& edition) noexcept {
  if (!IsKnown(edition)) return EditionFit::Unknown;
  if (IsKnown(field.goneBy) && edition >= field.goneBy) return EditionFit::Gone;
  const Edition first = field.FirstKnown();
  if (!IsKnown(first)) return EditionFit::Unknown;
  return edition < first ? EditionFit::TooEarly : EditionFit::Known;
}

EditionFit FitsEdition(const NameMatch& match, const Edition& edition) noexcept {
  if (match.field == nullptr || !IsKnown(edition)) return EditionFit::Unknown;
  switch (match.kind) {
    case NameKind::Unknown:
    case NameKind::LetterCase:
    case NameKind::Mistake: return EditionFit::Unknown;
    case NameKind::TextForm:
      // Text files had the field before the XML form came, and nothing ends them.
      if (match.spelling != nullptr && edition >= match.spelling->seen.first) return EditionFit::Known;
      break;
    case NameKind::OtherSpelling:
    case NameKind::OlderField:
      if (match.spelling != nullptr) return FitsRange(match.spelling->seen, edition);
      break;
    case NameKind::Canonical:
    case NameKind::NewerField:
    case NameKind::XmlStructure:
    case NameKind::OptionalContent: break;
  }
  return FitsEdition(*match.field, edition);
}

const FieldValue* FindValue(const FieldInfo& field, std::uint64_t value) noexcept {
  const auto found = std::lower_bound(field.values.begin(), field.values.end(), value,
                                      [](const FieldValue& row, std::uint64_t number) { return row.value < number; });
  return found != field.values.end() && found->value == value ? &*found : nullptr;
}

std::string_view ValueText(const FieldInfo& field, std::uint64_t value, const Edition& edition) noexcept {
  const FieldValue* const row = FindValue(field, value);
  if (row == nullptr) return {};
  const bool isOlder = IsKnown(row->olderUntil) && IsKnown(edition) && edition <= row->olderUntil;
  return isOlder ? row->olderText : row->text;
}

std::string_view FieldTypeText(FieldType type) noexcept {
  switch (type) {
    case FieldType::Unknown: break;
    case FieldType::Text: return "text";
    case FieldType::Number: return "number";
    case FieldType::Boolean: return "boolean";
    case FieldType::Enumeration: return "enumeration";
    case FieldType::Group: return "group";
  }
  return "unknown";
}

std::string_view ConfidenceText(Confidence confidence) noexcept {
  switch (confidence) {
    case Confidence::Low: break;
    case Confidence::Medium: return "medium";
    case Confidence::High: return "high";
  }
  return "low";
}

std::string_view NameKindText(NameKind kind) noexcept {
  switch (kind) {
    case NameKind::Unknown: break;
    case NameKind::Canonical: return "canonical name";
    case NameKind::TextForm: return "text form";
    case NameKind::LetterCase: return "other letter case";
    case NameKind::OtherSpelling: return "other spelling";
    case NameKind::OlderField: return "older field";
    case NameKind::NewerField: return "newer field";
    case NameKind::Mistake: return "mistake";
    case NameKind::XmlStructure: return "XML structure";
    case NameKind::OptionalContent: return "optional content";
  }
  return "unknown name";
}

}  // namespace vifanalysis
