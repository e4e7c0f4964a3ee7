#include "diff/GroupComparison.h"
#include "diff/NormalFile.h"
#include "rules/PortKind.h"

#include <analysis/Differences.h>

#include <map>
#include <stdexcept>

namespace vifanalysis {

namespace {

/// The ports of one kind that another one is compared with. Comparing it with all of them would take too long.
class CEarlierPorts {
 public:
  bool IsEmpty() const { return m_first.empty(); }

  /// How a port differs from the one that it is most like.
  PortComparison CompareWithNearest(const CNormalFile& file, const CComponentView& port,
                                    const CompareOptions& options) const {
    PortComparison nearest = ComparePair(file, *m_first.front(), port, options);
    for (std::size_t i = 1; i < m_first.size(); ++i) TakeNearer(ComparePair(file, *m_first[i], port, options), nearest);
    if (m_last != nullptr) TakeNearer(ComparePair(file, *m_last, port, options), nearest);
    return nearest;
  }

  /// Adds a port that differs from all of them.
  void Add(const CComponentView& port) {
    constexpr std::size_t most = 8;
    if (m_first.size() < most) {
      m_first.push_back(&port);
    } else {
      m_last = &port;
    }
  }

  static PortComparison ComparePair(const CNormalFile& file, const CComponentView& other, const CComponentView& port,
                                    const CompareOptions& options) {
    return {port.Index(), other.Index(), CompareGroups({file, other}, {file, port}, options, IsAPortsOwn)};
  }

 private:
  static std::size_t SizeOf(const Differences& differences) {
    return differences.fields.size() + differences.groups.size();
  }

  static void TakeNearer(PortComparison comparison, PortComparison& nearest) {
    if (SizeOf(comparison.differences) < SizeOf(nearest.differences)) nearest = std::move(comparison);
  }

  std::vector<const CComponentView*> m_first;
  const CComponentView* m_last = nullptr;
};

const CComponentView& FindComponent(const CNormalFile& file, std::uint64_t number) {
  for (const CComponentView& component : file.View().Components()) {
    if (component.Index() == number) return component;
  }
  throw std::out_of_range("there is no component " + std::to_string(number));
}

}  // namespace

std::vector<PortComparison> ComparePorts(std::span<const CVIFField> fields, const CompareOptions& options) {
  const CNormalFile file(fields);
  std::map<PortKind, CEarlierPorts> kinds;
  std::vector<PortComparison> comparisons;
  for (const CComponentView& port : file.View().Components()) {
    const std::optional<PortKind> kind = PortKindOf(port);
    if (!kind) continue;
    CEarlierPorts& earlier = kinds[*kind];
    if (!earlier.IsEmpty()) comparisons.push_back(earlier.CompareWithNearest(file, port, options));
    if (earlier.IsEmpty() || !comparisons.back().differences.IsEmpty()) earlier.Add(port);
  }
  return comparisons;
}

PortComparison ComparePorts(std::span<const CVIFField> fields, std::uint64_t other, std::uint64_t component,
                            const CompareOptions& options) {
  const CNormalFile file(fields);
  return CEarlierPorts::ComparePair(file, FindComponent(file, other), FindComponent(file, component), options);
}

}  // namespace vifanalysis
