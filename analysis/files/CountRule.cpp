#include <analysis/FieldText.h>
#include <analysis/Text.h>
#include "FormRules.h"
#include "Sentence.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace vifanalysis {

namespace {

/// A field with the number of the groups of a kind that are in the same group as the field.
struct ExactCount {
  const char* field;
  EVifLocation parent;
  EVifLocation counted;
};

constexpr ExactCount kExactCounts[] = {
    {"Num_Src_PDOs", eVifLocComponent, eVifLocSrcPdo},
    {"Num_Snk_PDOs", eVifLocComponent, eVifLocSnkPdo},
    {"USB4_Num_PCIe_Endpoints", eVifLocRouter, eVifLocRouterPcie},
};

/// Two fields with the minimum and maximum of that number.
struct CountRange {
  const char* least;
  const char* most;
  EVifLocation parent;
  EVifLocation counted;
};

// A range says how many SVIDs or modes the product reports when asked. The file need not describe them: some files say
// "1 to 1" and describe none. So a mismatch is only a warning.
constexpr CountRange kCountRanges[] = {
    {"Num_SVIDs_Min_SOP", "Num_SVIDs_Max_SOP", eVifLocComponent, eVifLocSopSvid},
    {"Cable_Num_SVIDs_Min", "Cable_Num_SVIDs_Max", eVifLocComponent, eVifLocCableSvid},
    {"SVID_Num_Modes_Min_SOP", "SVID_Num_Modes_Max_SOP", eVifLocSopSvid, eVifLocSopSvidMode},
    {"SVID_Num_Modes_Min", "SVID_Num_Modes_Max", eVifLocCableSvid, eVifLocCableSvidMode},
};

/// The counts of one group.
class CCountedGroup {
 public:
  explicit CCountedGroup(const GroupContent& content) : m_content(content) {}

  std::size_t Groups(EVifLocation kind) const {
    const auto found = m_content.groups.find(kind);
    return found != m_content.groups.end() ? found->second.size() : 0;
  }

  /// The field if it exists and has a number, else null.
  const FoundField* Count(const char* name) const {
    const auto found = m_content.fields.find(name);
    return found != m_content.fields.end() && HasNumber(found->second->field) ? found->second : nullptr;
  }

 private:
  const GroupContent& m_content;
};

std::uint64_t Number(const FoundField& count) { return count.field.GetULongNumericValue(); }

std::string Says(const FoundField& count) {
  return '\'' + std::string(count.field.Name()) + "' is " + std::to_string(Number(count));
}

std::string Has(const FoundField& count, std::size_t groups, EVifLocation kind) {
  return LocationText(count.field) + " has " + Amount(groups, std::string(GetVifLocInfo(kind).name) + " group");
}

void CheckExact(const CCountedGroup& group, const ExactCount& rule, Findings& findings) {
  const FoundField* count = group.Count(rule.field);
  const std::size_t groups = group.Groups(rule.counted);
  if (count == nullptr || Number(*count) == groups) return;
  findings.push_back(About(*count, code::kCountMismatch, Says(*count) + ", but " + Has(*count, groups, rule.counted)));
}

void CheckRange(const CCountedGroup& group, const CountRange& rule, Findings& findings) {
  const FoundField* least = group.Count(rule.least);
  const FoundField* most = group.Count(rule.most);
  const std::size_t groups = group.Groups(rule.counted);
  if (least != nullptr && most != nullptr && Number(*least) > Number(*most)) {
    findings.push_back(About(*least, code::kCountMismatch, Says(*least) + ", but " + Says(*most)));
  } else if (least != nullptr && groups < Number(*least)) {
    findings.push_back(
        About(*least, code::kCountOutOfRange, Says(*least) + ", but " + Has(*least, groups, rule.counted)));
  } else if (most != nullptr && groups > Number(*most)) {
    findings.push_back(About(*most, code::kCountOutOfRange, Says(*most) + ", but " + Has(*most, groups, rule.counted)));
  }
}

}  // namespace

void FindWrongCounts(const GroupTree& tree, Findings& findings) {
  for (const auto& [place, content] : tree) {
    const EVifLocation kind = GroupKind(place);
    const CCountedGroup group(content);
    for (const ExactCount& rule : kExactCounts) {
      if (rule.parent == kind) CheckExact(group, rule, findings);
    }
    for (const CountRange& rule : kCountRanges) {
      if (rule.parent == kind) CheckRange(group, rule, findings);
    }
  }
}

}  // namespace vifanalysis
