#include "rules/RuleFunctions.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace vifanalysis {

namespace {

/// The IDs of all routers; nothing when one of them is not known.
std::optional<std::set<std::uint64_t>> FindIds(const CGroupView* product) {
  std::set<std::uint64_t> ids;
  if (product == nullptr) return ids;
  if (product->HasUnnumbered(eVifLocRouter)) return std::nullopt;  // it may be several in one
  for (const CGroupView& router : product->Groups(eVifLocRouter)) {
    const std::optional<std::uint64_t> id = router.Number("USB4_Router_ID");
    if (!id) return std::nullopt;
    ids.insert(*id);
  }
  return ids;
}

}  // namespace

void CheckUsb4Router(const CVifView& file, CReporter& reporter) {
  const std::optional<std::set<std::uint64_t>> ids = FindIds(file.Product());
  if (!ids) return;
  for (const CComponentView& component : file.Components()) {
    const std::optional<std::uint64_t> index = component.Number("USB4_Router_Index");
    if (!index || !component.IsYes("USB4_Supported") || ids->contains(*index)) continue;
    reporter.Add(*component.Find("USB4_Router_Index"),
                 "USB4_Router_Index is " + std::to_string(*index) +
                     (ids->empty() ? ", but the product declares no router"
                                   : ", but no router of the product has that USB4_Router_ID"));
  }
}

}  // namespace vifanalysis
