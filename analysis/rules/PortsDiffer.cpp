#include "rules/FieldWords.h"
#include "rules/PortKind.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vifanalysis {

namespace {

/// The ports of one kind that another one is compared with. Comparing it with all of them would take too long.
struct Earlier {
  const CComponentView* first;
  const CComponentView* last;
};

bool AreEqual(const CGroupView& a, const CGroupView& b, std::string_view name) {
  const std::optional<std::uint64_t> number = a.Number(name);
  if (number || b.Number(name)) return number == b.Number(name);
  return a.Has(name) == b.Has(name) && a.Text(name) == b.Text(name);
}

bool AreEqual(const CGroupView& a, const CGroupView& b) {
  const auto areIn = [](const CGroupView& group, const CGroupView& other) {
    return std::all_of(group.Fields().begin(), group.Fields().end(),
                       [&](const NamedField& named) { return AreEqual(group, other, named.name); });
  };
  return areIn(a, b) && areIn(b, a);
}

bool AreEqual(const std::vector<CPdoView>& a, const std::vector<CPdoView>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const CPdoView& one, const CPdoView& other) { return AreEqual(one, other); });
}

/// Compares ports, leaving out what other rules have found to be wrong.
class CComparison {
 public:
  explicit CComparison(const CReporter& reporter) : m_reporter(reporter) {}

  CMentions Compare(const CComponentView& port, const CComponentView& earlier) const {
    CMentions differences;
    AddFields(port, earlier, port, differences);
    AddFields(earlier, port, port, differences);
    AddPdos(port, earlier, PdoSide::Source, "the source PDOs", differences);
    AddPdos(port, earlier, PdoSide::Sink, "the sink PDOs", differences);
    return differences;
  }

 private:
  /// \param blamed the port whose fields are mentioned, or its first field for one that it does not have
  void AddFields(const CComponentView& port, const CComponentView& other, const CComponentView& blamed,
                 CMentions& differences) const {
    for (const NamedField& named : port.Fields()) {
      const std::string_view name = named.name;
      if (IsAPortsOwn(name) || AreEqual(port, other, name) || IsFound(port, name) || IsFound(other, name)) continue;
      const FoundField* found = blamed.Find(name);
      differences.Add(found != nullptr ? *found : *blamed.FirstField(), name);
    }
  }

  static void AddPdos(const CComponentView& port, const CComponentView& earlier, PdoSide side, std::string_view name,
                      CMentions& differences) {
    const std::vector<CPdoView>& pdos = port.Pdos(side);
    if (AreEqual(pdos, earlier.Pdos(side))) return;
    differences.Add(pdos.empty() ? *port.FirstField() : *pdos.front().FirstField(), name);
  }

  bool IsFound(const CComponentView& component, std::string_view name) const {
    const FoundField* found = component.Find(name);
    if (found == nullptr) return false;
    return component.IsUnsound(name) || m_reporter.HasFound("battery-count", *found) ||
           m_reporter.HasFound("ports-disagree", *found);
  }

  const CReporter& m_reporter;
};

/// Reports the differences from the more similar of the two ports, unless there are so many that they must be intended.
void CheckPort(const CComponentView& port, const Earlier& earlier, CReporter& reporter) {
  constexpr std::size_t most = 6;
  const CComparison comparison(reporter);
  const CMentions fromFirst = comparison.Compare(port, *earlier.first);
  const CMentions fromLast = comparison.Compare(port, *earlier.last);
  const bool isMoreLikeFirst = fromFirst.Size() <= fromLast.Size();
  const CMentions& differences = isMoreLikeFirst ? fromFirst : fromLast;
  if (differences.IsEmpty() || differences.Size() > most) return;
  const CComponentView& other = isMoreLikeFirst ? *earlier.first : *earlier.last;
  reporter.Add(differences.First(), "of the same kind as Component " + std::to_string(other.Index()) +
                                        ", but it differs in " + differences.InWords());
}

}  // namespace

void CheckPortsDiffer(const CVifView& file, CReporter& reporter) {
  std::map<PortKind, Earlier> kinds;
  for (const CComponentView& port : file.Components()) {
    const std::optional<PortKind> kind = PortKindOf(port);
    if (!kind) continue;
    const auto [earlier, isFirst] = kinds.try_emplace(*kind, Earlier{&port, &port});
    if (isFirst) continue;
    CheckPort(port, earlier->second, reporter);
    earlier->second.last = &port;
  }
}

}  // namespace vifanalysis
