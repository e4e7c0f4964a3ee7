#include "diff/GroupAlignment.h"

#include "diff/BandAlignment.h"
#include "diff/GroupContent.h"
#include "diff/UniqueKeys.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace vifanalysis {

namespace {

constexpr std::size_t kNone = SIZE_MAX;

using Contents = std::vector<DiffContent>;
using Key = std::uint64_t DiffContent::*;

/// A part of both lists.
struct Range {
  std::size_t beginA;
  std::size_t endA;
  std::size_t beginB;
  std::size_t endB;

  std::size_t SizeA() const { return endA - beginA; }
  std::size_t SizeB() const { return endB - beginB; }
  bool IsEmpty() const { return SizeA() == 0 || SizeB() == 0; }
};

/// Whether there are as a rule so few of the kind that the groups which are left over correspond, whatever is in them.
bool AlwaysCorresponds(EVifLocation kind) {
  return kind == eVifLocVif || kind == eVifLocAppVersion || kind == eVifLocProduct || kind == eVifLocRouter ||
         kind == eVifLocComponent;
}

std::uint64_t Greater(const CWeightedItems& a, const CWeightedItems& b) { return std::max(a.Total(), b.Total()); }

/// Whether one may have become the other: they have a third of what they declare, or half of the fields, in common.
bool MayCorrespond(const DiffContent& a, const DiffContent& b, std::uint64_t common, std::uint64_t commonNames) {
  return AlwaysCorresponds(a.group->Kind()) || 3 * common >= Greater(a.values, b.values) ||
         2 * commonNames >= Greater(a.names, b.names);
}

/// How good it is to pair two groups; 0 when they do not correspond. A pair of equal groups is worth more than two
/// pairs of similar ones, so that a group which was moved is not taken for two that were changed.
std::uint64_t Score(const DiffContent& a, const DiffContent& b) {
  const std::uint64_t common = a.values.Common(b.values);
  const std::uint64_t commonNames = a.names.Common(b.names);
  if (!MayCorrespond(a, b, common, commonNames)) return 0;
  const std::uint64_t total = std::max<std::uint64_t>(Greater(a.values, b.values), 1);
  const std::uint64_t likeness = 64 * common / total * common;
  const std::uint64_t sameNumber = a.group->Index() == b.group->Index() ? 1 : 0;
  return (a.hash == b.hash ? 2 : 1) * likeness + 2 * commonNames + sameNumber + 1;
}

/// Whether a group that has passed others can be recognised although it has changed: two thirds of it are the same.
bool IsRecognised(const DiffContent& a, const DiffContent& b) {
  return 3 * a.values.Common(b.values) >= 2 * Greater(a.values, b.values);
}

/// For each group of the one list, whether there are more groups equal to it there than in the other.
std::vector<bool> InSurplus(const Contents& contents, const Contents& others) {
  std::unordered_map<std::uint64_t, std::ptrdiff_t> surplus;  // by hash
  for (const DiffContent& content : contents) ++surplus[content.hash];
  for (const DiffContent& other : others) --surplus[other.hash];
  std::vector<bool> isInSurplus;
  isInSurplus.reserve(contents.size());
  for (const DiffContent& content : contents) isInSurplus.push_back(surplus[content.hash] > 0);
  return isInSurplus;
}

/// Finds the partners of two lists. A group is only paired with an unequal one if there are not enough equal ones for
/// both, so that groups which changed places are not taken for others that were changed.
class CAlignment {
 public:
  CAlignment(const Contents& a, const Contents& b)
      : m_a(a),
        m_b(b),
        m_isSurplusA(InSurplus(a, b)),
        m_isSurplusB(InSurplus(b, a)),
        m_partners(a.size(), kNone),
        m_isMoved(a.size(), false),
        m_isTaken(b.size(), false) {}

  void Run() {
    AlignRange({0, m_a.size(), 0, m_b.size()}, &DiffContent::hash, kMostRounds);
    FindMoved();
  }

  /// For each of the first list, its index in the second one, or `kNone`.
  const std::vector<std::size_t>& Partners() const { return m_partners; }
  bool IsMoved(std::size_t a) const { return m_isMoved[a]; }

 private:
  static constexpr std::size_t kMostRounds = 8;
  static constexpr std::size_t kSmall = 4096;

  void Pair(std::size_t a, std::size_t b, bool isMoved = false) {
    m_partners[a] = b;
    m_isMoved[a] = isMoved;
    m_isTaken[b] = true;
  }

  bool MayPair(std::size_t a, std::size_t b) const {
    return m_a[a].hash == m_b[b].hash || (m_isSurplusA[a] && m_isSurplusB[b]);
  }

  bool HaveSame(Key key, std::size_t a, std::size_t b) const { return m_a[a].*key == m_b[b].*key && MayPair(a, b); }

  void PairEnds(Range& range, Key key) {
    while (!range.IsEmpty() && HaveSame(key, range.beginA, range.beginB)) Pair(range.beginA++, range.beginB++);
    while (!range.IsEmpty() && HaveSame(key, range.endA - 1, range.endB - 1)) Pair(--range.endA, --range.endB);
  }

  /// \param rounds how often groups with a key of their own may still be looked for between others
  void AlignRange(Range range, Key key, std::size_t rounds) {
    PairEnds(range, key);
    if (range.IsEmpty()) return;
    if (range.SizeB() <= kSmall / range.SizeA()) return AlignWithinBand(range);
    const std::vector<IndexPair> anchors = rounds != 0 ? FindAnchors(range, key) : std::vector<IndexPair>();
    if (anchors.empty()) {
      if (key == &DiffContent::hash) return AlignRange(range, &DiffContent::identity, kMostRounds);
      return AlignWithinBand(range);
    }
    Range between = {range.beginA, 0, range.beginB, 0};
    for (const auto& [a, b] : anchors) {
      Pair(a, b);
      between.endA = a;
      between.endB = b;
      AlignRange(between, key, rounds - 1);
      between.beginA = a + 1;
      between.beginB = b + 1;
    }
    between.endA = range.endA;
    between.endB = range.endB;
    AlignRange(between, key, rounds - 1);
  }

  /// Groups with a key that no other has, in the order of both lists.
  std::vector<IndexPair> FindAnchors(const Range& range, Key key) const {
    std::vector<std::uint64_t> keysA;
    std::vector<std::uint64_t> keysB;
    for (std::size_t a = range.beginA; a < range.endA; ++a) keysA.push_back(m_a[a].*key);
    for (std::size_t b = range.beginB; b < range.endB; ++b) keysB.push_back(m_b[b].*key);
    std::vector<IndexPair> unique = FindUniqueKeys(keysA, keysB);
    std::erase_if(
        unique, [&](const IndexPair& pair) { return !MayPair(range.beginA + pair.first, range.beginB + pair.second); });
    std::vector<IndexPair> anchors = LongestRisingRun(unique);
    for (auto& [a, b] : anchors) {
      a += range.beginA;
      b += range.beginB;
    }
    return anchors;
  }

  void AlignWithinBand(const Range& range) {
    if (range.IsEmpty()) return;
    const auto score = [&](std::size_t a, std::size_t b) -> std::uint64_t {
      a += range.beginA;
      b += range.beginB;
      return MayPair(a, b) ? Score(m_a[a], m_b[b]) : 0;
    };
    const bool isSmall = range.SizeB() <= kSmall / range.SizeA();
    for (const auto& [a, b] : AlignInBand(range.SizeA(), range.SizeB(), isSmall, score)) {
      Pair(range.beginA + a, range.beginB + b);
    }
  }

  std::vector<std::size_t> LeftOverA() const {
    std::vector<std::size_t> left;
    for (std::size_t a = 0; a < m_partners.size(); ++a) {
      if (m_partners[a] == kNone) left.push_back(a);
    }
    return left;
  }

  std::vector<std::size_t> LeftOverB() const {
    std::vector<std::size_t> left;
    for (std::size_t b = 0; b < m_isTaken.size(); ++b) {
      if (!m_isTaken[b]) left.push_back(b);
    }
    return left;
  }

  void FindMoved() {
    FindMovedUnchanged();
    FindMovedAndChanged();
  }

  void FindMovedUnchanged() {
    std::multimap<std::uint64_t, std::size_t> byHash;
    for (const std::size_t a : LeftOverA()) byHash.emplace(m_a[a].hash, a);
    for (const std::size_t b : LeftOverB()) {
      const auto found = byHash.lower_bound(m_b[b].hash);
      if (found == byHash.end() || found->first != m_b[b].hash) continue;
      Pair(found->second, b, true);
      byHash.erase(found);
    }
  }

  /// The most alike first. Where there are too many to compare all, none.
  void FindMovedAndChanged() {
    const std::vector<std::size_t> leftA = LeftOverA();
    const std::vector<std::size_t> leftB = LeftOverB();
    if (leftA.empty() || leftB.size() > kSmall / leftA.size()) return;
    std::vector<std::tuple<std::uint64_t, std::size_t, std::size_t>> candidates;
    for (const std::size_t a : leftA) {
      for (const std::size_t b : leftB) {
        if (IsRecognised(m_a[a], m_b[b])) candidates.emplace_back(UINT64_MAX - Score(m_a[a], m_b[b]), a, b);
      }
    }
    std::sort(candidates.begin(), candidates.end());
    for (const auto& [unlikeness, a, b] : candidates) {
      if (m_partners[a] == kNone && !m_isTaken[b]) Pair(a, b, true);
    }
  }

  const Contents& m_a;
  const Contents& m_b;
  std::vector<bool> m_isSurplusA;
  std::vector<bool> m_isSurplusB;
  std::vector<std::size_t> m_partners;
  std::vector<bool> m_isMoved;
  std::vector<bool> m_isTaken;
};

Contents ContentsOf(std::span<const CGroupView> groups) {
  Contents contents;
  contents.reserve(groups.size());
  for (const CGroupView& group : groups) contents.emplace_back(group);
  return contents;
}

/// Which of two lists comes first, so that the same two lists are always aligned in the same direction.
bool IsInOrder(const Contents& a, const Contents& b) {
  const auto compare = [](const DiffContent& one, const DiffContent& other) {
    return std::make_tuple(one.hash, one.group->Index()) < std::make_tuple(other.hash, other.group->Index());
  };
  return !std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), compare);
}

/// The pairs in the order of the second list. A group without a counterpart there follows the one before it.
std::vector<GroupPair> InOrder(std::span<const CGroupView> before, std::span<const CGroupView> after,
                               const std::vector<std::size_t>& partnersOfBefore, const std::vector<bool>& isMoved) {
  std::vector<std::size_t> partnersOfAfter(after.size(), kNone);
  for (std::size_t a = 0; a < before.size(); ++a) {
    if (partnersOfBefore[a] != kNone) partnersOfAfter[partnersOfBefore[a]] = a;
  }
  std::vector<GroupPair> pairs;
  std::size_t next = 0;
  const auto addRemoved = [&] {
    for (; next < before.size() && (partnersOfBefore[next] == kNone || isMoved[next]); ++next) {
      if (partnersOfBefore[next] == kNone) pairs.push_back({&before[next], nullptr, false});
    }
  };
  for (std::size_t b = 0; b < after.size(); ++b) {
    const std::size_t a = partnersOfAfter[b];
    if (a == kNone || isMoved[a]) {
      pairs.push_back({a == kNone ? nullptr : &before[a], &after[b], a != kNone});
      continue;
    }
    addRemoved();
    pairs.push_back({&before[a], &after[b], false});
    next = a + 1;
  }
  addRemoved();
  return pairs;
}

}  // namespace

std::vector<GroupPair> AlignGroups(std::span<const CGroupView> before, std::span<const CGroupView> after) {
  const Contents contentsBefore = ContentsOf(before);
  const Contents contentsAfter = ContentsOf(after);
  const bool isInOrder = IsInOrder(contentsBefore, contentsAfter);
  CAlignment alignment(isInOrder ? contentsBefore : contentsAfter, isInOrder ? contentsAfter : contentsBefore);
  alignment.Run();
  std::vector<std::size_t> partners(before.size(), kNone);
  std::vector<bool> isMoved(before.size(), false);
  for (std::size_t i = 0; i < alignment.Partners().size(); ++i) {
    const std::size_t partner = alignment.Partners()[i];
    if (partner == kNone) continue;
    const std::size_t a = isInOrder ? i : partner;
    partners[a] = isInOrder ? partner : i;
    isMoved[a] = alignment.IsMoved(i);
  }
  return InOrder(before, after, partners, isMoved);
}

}  // namespace vifanalysis
