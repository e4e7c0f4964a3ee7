#include "KnownNames.h"

#include "Spelling.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>

namespace vifanalysis {

namespace {

/// No name of the format is longer, with its indexes or without.
constexpr std::size_t kLongestName = 100;

/// The fields that a file of the newest edition may have, in alphabetical order.
const std::vector<const FieldInfo*>& CurrentFields() {
  static const std::vector<const FieldInfo*> fields = [] {
    std::vector<const FieldInfo*> current;
    for (const FieldInfo& field : Fields()) {
      const bool isCurrent = field.standing == FieldStanding::Defined || field.standing == FieldStanding::Newer;
      if (isCurrent) current.push_back(&field);
    }
    std::sort(current.begin(), current.end(), [](const FieldInfo* a, const FieldInfo* b) { return a->name < b->name; });
    return current;
  }();
  return fields;
}

}  // namespace

const FieldInfo* FindDefined(std::string_view canonicalName) {
  const FieldInfo* field = FindDefinedAsWritten(canonicalName);
  return field != nullptr && field->name == canonicalName ? field : nullptr;
}

const FieldInfo* FindDefinedAsWritten(std::string_view writtenName) {
  const NameMatch match = FindField(writtenName);
  return match.kind == NameKind::Canonical ? match.field : nullptr;
}

std::vector<std::string> NearestNames(std::string_view writtenName, NameStyle style) {
  const std::string dollar = writtenName.starts_with('$') ? "$" : "";
  const std::string_view written = writtenName.substr(dollar.size());
  std::vector<std::string> nearest;
  if (written.size() > kLongestName) return nearest;
  unsigned fewest = std::numeric_limits<unsigned>::max();
  for (const FieldInfo* field : CurrentFields()) {
    const std::optional<Respelling> respelling = Respell(written, field->spelling);
    if (!respelling || respelling->typos > fewest) continue;
    if (respelling->typos < fewest) nearest.clear();
    fewest = respelling->typos;
    nearest.push_back(dollar + (style == NameStyle::Text ? respelling->name : std::string(field->name)));
  }
  return nearest;
}

std::string PlaceText(const FieldInfo& field) {
  std::string text;
  for (const EVifLocation location : field.locations) {
    if (location == eVifLocUnset) continue;
    if (!text.empty()) text += " \u00B7 ";
    text += GetVifLocInfo(location).name;
  }
  return text;
}

}  // namespace vifanalysis
