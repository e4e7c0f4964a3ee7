#include "report/ReportedVif.h"

#include "diff/Meaning.h"

#include <analysis/Text.h>

#include <algorithm>
#include <utility>

namespace vifanalysis {

ShownValue MakeShown(std::string value, std::string description, FieldMeaning meaning) {
  ShownValue shown{std::move(value), std::move(description), {}, false};
  if (shown.value.empty()) std::swap(shown.value, shown.description);
  if (shown.description == shown.value) shown.description.clear();
  const std::string& text = meaning.text;
  if (EqualInAnyCase(text, shown.value) || EqualInAnyCase(text, shown.description)) return shown;
  shown.meaning = std::move(meaning.text);
  shown.isUncertain = meaning.isUncertain;
  return shown;
}

CReportedVif::CReportedVif(const ReportedFile& file) : m_file(file), m_normal(file.fields) {}

ShownValue CReportedVif::Shown(const FoundField& found, const CGroupView& group) const {
  const CVIFField& declared = Declared(found);
  return MakeShown(declared.Value(), declared.Description(), MeaningOf(found, group, GetEdition()));
}

std::string CReportedVif::Says(const FoundField& found, const CGroupView& group) const {
  if (!found.field.IsNumeric()) return found.field.Value();
  if (IsUnanswered(found)) return "not chosen";
  FieldMeaning meaning = MeaningOf(found, group, GetEdition());
  std::string description = found.field.Description();
  // Of an ID, the description says more than its digits.
  const bool saysMost = !meaning.text.starts_with("0x") || description.empty();
  if (!meaning.text.empty() && !meaning.isUncertain && saysMost) return std::move(meaning.text);
  return description.empty() ? Declared(found).Value() : description;
}

std::string CReportedVif::Says(const CGroupView& group, std::string_view name) const {
  const FoundField* found = group.Find(name);
  return found == nullptr ? std::string() : Says(*found, group);
}

std::string CReportedVif::HeaderSays(std::string_view name) const {
  const FoundField* found = View().FindHeader(name);
  return found == nullptr ? std::string() : Says(*found, View().Root());
}

std::vector<const FoundField*> CReportedVif::FieldsOf(const CGroupView& group) const {
  std::vector<const FoundField*> fields;
  fields.reserve(group.Fields().size());
  for (const NamedField& named : group.Fields()) fields.push_back(named.field);
  std::sort(fields.begin(), fields.end());  // they are all in one list
  return fields;
}

}  // namespace vifanalysis
