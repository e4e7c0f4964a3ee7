#include "rules/RuleFunctions.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace vifanalysis {

namespace {

/// Major and minor number.
using Numbers = std::pair<std::uint64_t, std::uint64_t>;

/// Published versions of one revision, from the first to the last.
struct Versions {
  Numbers revision;
  Numbers first;
  Numbers last;
};

constexpr Numbers kLatestRevision = {3, 2};
constexpr std::uint64_t kAny = std::numeric_limits<std::uint64_t>::max();

// Revision 3.2 is still growing.
constexpr Versions kPublished[] = {
    {{2, 0}, {1, 0}, {1, 3}}, {{3, 0}, {1, 0}, {1, 2}},    {{3, 0}, {2, 0}, {2, 0}},
    {{3, 1}, {1, 0}, {1, 8}}, {{3, 2}, {1, 0}, {1, kAny}},
};

std::optional<Numbers> Read(const CComponentView& component, std::string_view major, std::string_view minor) {
  const std::optional<std::uint64_t> first = component.Number(major);
  const std::optional<std::uint64_t> second = component.Number(minor);
  if (!first || !second) return std::nullopt;
  return Numbers{*first, *second};
}

bool IsPublished(const Numbers& revision, const Numbers& version) {
  return std::any_of(std::begin(kPublished), std::end(kPublished), [&](const Versions& known) {
    return known.revision == revision && known.first <= version && version <= known.last;
  });
}

std::string TextOf(const Numbers& numbers) {
  return std::to_string(numbers.first) + '.' + std::to_string(numbers.second);
}

}  // namespace

void CheckPdRevisionUnknown(const CComponentView& component, CReporter& reporter) {
  const auto revision = Read(component, "PD_Spec_Revision_Major", "PD_Spec_Revision_Minor");
  const auto version = Read(component, "PD_Spec_Version_Major", "PD_Spec_Version_Minor");
  if (!revision || !version || *revision > kLatestRevision || IsPublished(*revision, *version)) return;
  if (reporter.HasFound("pd-revision-pair", component)) return;
  reporter.Add(*component.Find("PD_Spec_Revision_Minor"),
               "there is no USB PD specification of revision " + TextOf(*revision) + ", version " + TextOf(*version));
}

}  // namespace vifanalysis
