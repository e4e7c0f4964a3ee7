#include "GroupNames.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace vif {

namespace {

bool IsEqual(std::wstring_view wide, std::string_view ascii) {
  return std::equal(wide.begin(), wide.end(), ascii.begin(), ascii.end(),
                    [](wchar_t a, char b) { return a == static_cast<wchar_t>(b); });
}

/// Takes the last step off a path.
std::string_view TakeLastStep(std::string_view& path) {
  const std::size_t slash = path.rfind('/');
  const std::string_view step = path.substr(slash + 1);
  path = path.substr(0, slash);
  return step;
}

/// Whether an element of that name is a group of that kind, or a list of such groups.
bool IsNameOf(const VifLocTypeInfo& location, std::wstring_view localName) {
  std::string_view path = location.xpath;
  path.remove_suffix(1);  // the blank
  if (IsEqual(localName, TakeLastStep(path))) return true;
  const std::string_view around = TakeLastStep(path);
  return around.ends_with("List") && IsEqual(localName, around);
}

}  // namespace

std::optional<EVifLocation> FindGroupLocation(std::wstring_view localName) {
  for (std::int32_t value = eVifLocUnset + 1;; ++value) {
    const VifLocTypeInfo& location = GetVifLocInfo(static_cast<EVifLocation>(value));
    if (location.location == eVifLocUnset) return std::nullopt;
    if (IsNameOf(location, localName)) return location.location;
  }
}

}  // namespace vif
