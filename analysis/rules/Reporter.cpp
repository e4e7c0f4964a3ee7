#include "rules/Reporter.h"

#include <analysis/FieldText.h>

namespace vifanalysis {

namespace {

/// Such as "Component 1, Source PDO 2: "; empty when there is nothing to say.
std::string PlacePrefix(const GroupPlace& place) {
  const std::string words = PlaceInWords(place);
  return words.empty() ? words : words + ": ";
}

}  // namespace

void CReporter::Add(const FoundField& blamed, const std::string& message) {
  Add(blamed.field.Indexes(), blamed, message);
}

void CReporter::AddToProduct(const FoundField& blamed, const std::string& message) {
  GroupPlace everywhere;
  everywhere.fill(CVIFField::UNSPECIFIED_INDEX);
  Add(everywhere, blamed, message);
}

void CReporter::Add(const CGroupView& group, const std::string& message) {
  if (group.FirstField() != nullptr) Add(group.Place(), *group.FirstField(), message);
}

bool CReporter::HasFound(std::string_view code, const CGroupView& group) const {
  return m_places.contains({code, group.Place()});
}

bool CReporter::HasFound(std::string_view code, const FoundField& field) const {
  return m_blamed.contains({code, &field});
}

UnsoundFields CReporter::BlamedFields() const {
  UnsoundFields fields;
  for (const auto& [code, field] : m_blamed) fields.insert(field);
  return fields;
}

void CReporter::Add(const GroupPlace& place, const FoundField& blamed, const std::string& message) {
  m_findings.push_back(About(blamed, *m_rule, PlacePrefix(place) + message));
  m_blamed.emplace(m_rule->code, &blamed);
  GroupPlace inner = place;
  for (std::size_t depth = inner.size(); depth-- > 0;) {
    m_places.emplace(m_rule->code, inner);
    inner[depth] = CVIFField::UNSPECIFIED_INDEX;
  }
  m_places.emplace(m_rule->code, inner);
}

}  // namespace vifanalysis
