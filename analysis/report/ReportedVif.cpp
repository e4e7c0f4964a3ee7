#include "report/ReportedVif.h"

#include "diff/Meaning.h"

#include <analysis/Text.h>

#include <algorithm>
#include <utility>

namespace vifanalysis {

namespace {

bool IsSaid(std::string_view text, const ShownValue& shown) {
  return EqualInAnyCase(text, shown.value) || EqualInAnyCase(text, shown.description);
}

}  // namespace

CReportedVif::CReportedVif(const ReportedFile& file) : m_file(file), m_normal(file.fields) {}

ShownValue CReportedVif::Shown(const FoundField& found, const CGroupView& group) const {
  const CVIFField& declared = Declared(found);
  ShownValue shown;
  shown.value = declared.Value();
  const std::string_view description = declared.Description();
  if (shown.value.empty()) {
    shown.value = description;
  } else if (description != shown.value) {
    shown.description = description;
  }
  FieldMeaning meaning = MeaningOf(found, group, GetEdition());
  if (IsSaid(meaning.text, shown)) return shown;
  shown.meaning = std::move(meaning.text);
  shown.isUncertain = meaning.isUncertain;
  return shown;
}

std::string CReportedVif::Says(const CGroupView& group, std::string_view name) const {
  const FoundField* found = group.Find(name);
  return found == nullptr ? std::string() : SaysField(*found, group);
}

std::string CReportedVif::HeaderSays(std::string_view name) const {
  const FoundField* found = View().FindHeader(name);
  return found == nullptr ? std::string() : SaysField(*found, View().Root());
}

std::string CReportedVif::SaysField(const FoundField& found, const CGroupView& group) const {
  if (!found.field.IsNumeric()) return found.field.Value();
  ShownValue shown = Shown(found, group);
  if (!shown.description.empty()) return std::move(shown.description);
  return shown.meaning.empty() ? std::move(shown.value) : std::move(shown.meaning);
}

std::vector<const FoundField*> CReportedVif::FieldsOf(const CGroupView& group) const {
  std::vector<const FoundField*> fields;
  fields.reserve(group.Fields().size());
  for (const NamedField& named : group.Fields()) fields.push_back(named.field);
  std::sort(fields.begin(), fields.end());  // they are all in one list
  return fields;
}

}  // namespace vifanalysis
