// Comparisons of ports.
#include "Differences.h"
#include "File.h"
#include "Guard.h"

#include <deque>
#include <memory>
#include <utility>

namespace vifc {

namespace {

struct Comparison {
  explicit Comparison(vifanalysis::PortComparison found)
      : component(found.component), other(found.other), differences(std::move(found.differences), Owner::Ports) {}

  std::uint64_t component;
  std::uint64_t other;
  vif_differences differences;
};

}  // namespace

}  // namespace vifc

struct vif_ports : vifc::CHandle<vifc::HandleKind::Ports> {
  std::deque<vifc::Comparison> list;  // never moves its elements
};

vif_status vif_compare_ports(const vif_file* file, const vif_compare_options* options, const vif_progress* progress,
                             vif_ports** ports, vif_error** error) {
  return vifc::Guarded(error, [&] {
    vifc::Require(ports != nullptr, "there is nowhere to put the comparisons");
    *ports = nullptr;
    const CVendorInfoFile& content = vifc::Usable(file).content.file;
    const vifanalysis::CompareOptions how = vifc::CompareOptionsOf(options);
    const vifc::CProgress report(progress);
    report(0, 1);
    auto made = std::make_unique<vif_ports>();
    for (vifanalysis::PortComparison& found : vifanalysis::ComparePorts(content.Fields(), how)) {
      made->list.emplace_back(std::move(found));
    }
    report(1, 1);
    *ports = made.release();
  });
}

size_t vif_ports_count(const vif_ports* ports) { return vifc::IsUsable(ports) ? ports->list.size() : 0; }

vif_status vif_ports_get(const vif_ports* ports, size_t position, vif_port_comparison* comparison) {
  if (const vif_status status = vifc::StatusOf(ports); status != VIF_OK) return status;
  if (position >= ports->list.size()) return VIF_ERROR_ARGUMENT;
  const vifc::Comparison& found = ports->list[position];
  return vifc::HandOut(vif_port_comparison{0, found.component, found.other, &found.differences}, comparison);
}

void vif_ports_free(vif_ports* ports) { vifc::Free(ports); }
