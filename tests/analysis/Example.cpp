#include "Example.h"

#include "files/FileReaders.h"
#include "rules/Rule.h"

#include <analysis/Files.h>

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <utility>

namespace vifanalysis {

namespace {

Place PlaceOf(const VifIndex& first, const VifIndex& second = CVIFField::UNSPECIFIED_INDEX,
              const VifIndex& third = CVIFField::UNSPECIFIED_INDEX) {
  return {first, second, third};
}

bool IsInside(const Place& place, const Place& group) {
  for (std::size_t depth = 0; depth < group.size(); ++depth) {
    if (std::get<0>(group[depth]) == eVifLocUnset) return true;
    if (place[depth] != group[depth]) return false;
  }
  return true;
}

std::filesystem::path PathOf(std::string_view name) {
  for (const std::filesystem::path& path : CleanExamples()) {
    if (path.filename() == name) return path;
  }
  throw std::invalid_argument("there is no example " + std::string(name));
}

[[noreturn]] void RefuseChange(std::string_view what, std::string_view name) {
  throw std::invalid_argument(std::string(what).append(": ").append(name));
}

}  // namespace

Place Nowhere() { return PlaceOf(CVIFField::UNSPECIFIED_INDEX); }
Place Header() { return PlaceOf({eVifLocVif, 0}); }
Place Product() { return PlaceOf({eVifLocProduct, 0}); }
Place Router(std::uint64_t router) { return PlaceOf({eVifLocProduct, 0}, {eVifLocRouter, router}); }
Place Component(std::uint64_t component) { return PlaceOf({eVifLocComponent, component}); }
Place SrcPdo(std::uint64_t component, std::uint64_t pdo) {
  return PlaceOf({eVifLocComponent, component}, {eVifLocSrcPdo, pdo});
}
Place SnkPdo(std::uint64_t component, std::uint64_t pdo) {
  return PlaceOf({eVifLocComponent, component}, {eVifLocSnkPdo, pdo});
}
Place SopSvid(std::uint64_t component, std::uint64_t svid) {
  return PlaceOf({eVifLocComponent, component}, {eVifLocSopSvid, svid});
}
Place SopSvidMode(std::uint64_t component, std::uint64_t svid, std::uint64_t mode) {
  return PlaceOf({eVifLocComponent, component}, {eVifLocSopSvid, svid}, {eVifLocSopSvidMode, mode});
}
Place CableSvid(std::uint64_t component, std::uint64_t svid) {
  return PlaceOf({eVifLocComponent, component}, {eVifLocCableSvid, svid});
}

const std::vector<std::filesystem::path>& CleanExamples() {
  static const std::vector<std::filesystem::path> paths = [] {
    std::vector<std::filesystem::path> found;
    for (const char* folder : {VIF_EXAMPLES, VIF_CLEAN}) {
      for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (HasExtension(entry.path(), ".txt") || HasExtension(entry.path(), ".xml")) found.push_back(entry.path());
      }
    }
    std::sort(found.begin(), found.end());
    return found;
  }();
  return paths;
}

CExample::CExample(std::string_view name) {
  const std::filesystem::path path = PathOf(name);
  m_fields = (HasExtension(path, ".txt") ? ReadTextFile({path}) : ReadXmlFile({path})).fields;
}

CExample& CExample::Set(const Place& place, std::string_view name, const std::string& value) {
  return Set(place, name, value, value);
}

CExample& CExample::Set(const Place& place, std::string_view name, const std::string& value,
                        const std::string& description) {
  const auto found = FindField(place, name);
  if (found == m_fields.end()) RefuseChange("there is no field to change", name);
  if (found->field.Value() == value && found->field.Description() == description) RefuseChange("no change", name);
  found->field = CVIFField(found->field.IsNumeric(), std::string(name), value, description, place);
  return *this;
}

CExample& CExample::Add(const Place& place, std::string_view name, const std::string& value) {
  return Insert(place, CVIFField(true, std::string(name), value, place));
}

CExample& CExample::AddText(const Place& place, std::string_view name, const std::string& value) {
  return Insert(place, CVIFField(false, std::string(name), value, place));
}

CExample& CExample::Remove(const Place& place, std::string_view name) {
  const auto found = FindField(place, name);
  if (found == m_fields.end()) RefuseChange("there is no field to remove", name);
  m_fields.erase(found);
  return *this;
}

CExample& CExample::RemoveGroup(const Place& place) {
  const auto isIn = [&](const FoundField& found) { return IsInside(found.field.Indexes(), place); };
  if (std::erase_if(m_fields, isIn) == 0)
    RefuseChange("there is no group to remove", GetVifLocInfo(std::get<0>(place[0])).name);
  return *this;
}

CExample& CExample::SetEdition(const std::string& edition) {
  for (FoundField& found : m_fields) {
    const std::string_view name = found.field.Name();
    if (name != "VIF_Specification" && name != "$VIF_Specification") continue;
    found.field = CVIFField(false, std::string(name), edition, found.field.Indexes());
    return *this;
  }
  RefuseChange("there is no edition to change", edition);
}

std::vector<Finding> CExample::Findings() const {
  std::vector<Finding> findings;
  FindContradictions(m_fields, findings);
  return findings;
}

std::vector<Finding> CExample::FindingsOf(std::string_view code) const {
  std::vector<Finding> findings = Findings();
  std::erase_if(findings, [&](const Finding& finding) { return finding.code != code; });
  return findings;
}

FoundFields::iterator CExample::FindField(const Place& place, std::string_view name) {
  return std::find_if(m_fields.begin(), m_fields.end(), [&](const FoundField& found) {
    return found.field.Name() == name && found.field.Indexes() == place;
  });
}

CExample& CExample::Insert(const Place& place, CVIFField field) {
  const std::string name = field.Name();
  if (FindField(place, name) != m_fields.end()) RefuseChange("the field is there already", name);
  const auto last = std::find_if(m_fields.rbegin(), m_fields.rend(),
                                 [&](const FoundField& found) { return found.field.Indexes() == place; });
  const auto where = last != m_fields.rend() ? last.base() : m_fields.end();
  m_fields.insert(where, FoundField{std::move(field), m_fields.size() + 1, 0, name});
  return *this;
}

testing::Matcher<const std::vector<Finding>&> Are(const std::vector<Expected>& expected) {
  std::vector<testing::Matcher<const Finding&>> matchers;
  for (const Expected& one : expected) {
    const RuleInfo* rule = FindRule(one.code);
    if (rule == nullptr) throw std::invalid_argument("there is no rule " + one.code);
    matchers.push_back(testing::AllOf(testing::Field("code", &Finding::code, one.code),
                                      testing::Field("severity", &Finding::severity, rule->severity),
                                      testing::Field("element", &Finding::element, testing::EndsWith(one.blamed)),
                                      testing::Field("line", &Finding::line, testing::Gt(0U)),
                                      testing::Field("message", &Finding::message, one.message)));
  }
  return testing::UnorderedElementsAreArray(matchers);
}

std::ostream& operator<<(std::ostream& stream, const Finding& finding) {
  return stream << finding.line << ": " << SeverityName(finding.severity) << ": " << finding.element << ": "
                << finding.message << " [" << finding.code << ']';
}

}  // namespace vifanalysis
