// What holds for any two files.
#include "diff/NormalFile.h"
#include "diff/RandomVif.h"
#include "diff/Report.h"
#include "diff/Vif.h"
#include "support/Random.h"

#include <VendorInfoFile.h>
#include <analysis/Differences.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <utility>

namespace vifanalysis::difftest {

namespace {

constexpr int kRounds = 1'500;

/// A field by what it means.
using Meaning = std::tuple<std::string, GroupPlace, std::string, bool>;

Meaning MeaningOfNormal(const CVIFField& field) {
  return {field.Name(), field.Indexes(), field.Value(), field.IsNumeric()};
}

const CVIFField& NormalField(const CNormalFile& file, std::size_t position) {
  return file.View().Fields()[position].field;
}

std::vector<Meaning> Meanings(const Fields& fields) {
  const CNormalFile file(fields);
  std::vector<Meaning> meanings;
  for (const FoundField& found : file.View().Fields()) meanings.push_back(MeaningOfNormal(found.field));
  std::sort(meanings.begin(), meanings.end());
  return meanings;
}

/// Where a field of the first file is in the second.
GroupPlace Renumbered(const GroupPlace& place, const std::map<GroupPlace, GroupPlace>& moved) {
  GroupPlace renumbered = place;
  GroupPlace outer = Nowhere();
  for (std::size_t depth = 0; depth < place.size(); ++depth) {
    outer[depth] = place[depth];
    const auto found = moved.find(outer);
    if (found != moved.end()) renumbered[depth] = found->second[depth];
  }
  return renumbered;
}

/// The first file's fields with the differences applied.
std::vector<Meaning> Apply(const Differences& differences, const Fields& before, const Fields& after) {
  const CNormalFile normalBefore(before);
  const CNormalFile normalAfter(after);
  std::set<std::size_t> dropped;
  std::vector<Meaning> result;
  for (const Difference& difference : differences.fields) {
    if (difference.before) {
      EXPECT_TRUE(dropped.insert(difference.before->position).second);
    }
    if (difference.after) result.push_back(MeaningOfNormal(NormalField(normalAfter, difference.after->position)));
  }
  std::map<GroupPlace, GroupPlace> moved;
  for (const GroupChange& change : differences.groups) {
    if (change.kind == GroupChangeKind::Moved || change.kind == GroupChangeKind::Renumbered) {
      moved[change.before] = change.after;
    }
  }
  for (std::size_t position = 0; position < before.size(); ++position) {
    if (dropped.contains(position)) continue;
    auto [name, place, value, isNumeric] = MeaningOfNormal(NormalField(normalBefore, position));
    result.emplace_back(name, Renumbered(place, moved), value, isNumeric);
  }
  std::sort(result.begin(), result.end());
  return result;
}

using Side = std::optional<std::size_t>;

Side PositionOf(const std::optional<DeclaredField>& field) { return field ? Side(field->position) : std::nullopt; }

/// The positions of all differing fields, and all changes of groups.
using Summary = std::pair<std::set<std::pair<Side, Side>>, std::multiset<std::tuple<int, GroupPlace, GroupPlace>>>;

Summary Summarise(const Differences& differences, bool mirrored) {
  Summary summary;
  for (const Difference& difference : differences.fields) {
    std::pair<Side, Side> sides = {PositionOf(difference.before), PositionOf(difference.after)};
    if (mirrored) std::swap(sides.first, sides.second);
    summary.first.insert(sides);
  }
  for (const GroupChange& change : differences.groups) {
    GroupChangeKind kind = change.kind;
    if (mirrored && kind == GroupChangeKind::Added) {
      kind = GroupChangeKind::Removed;
    } else if (mirrored && kind == GroupChangeKind::Removed) {
      kind = GroupChangeKind::Added;
    }
    summary.second.emplace(static_cast<int>(kind), mirrored ? change.after : change.before,
                           mirrored ? change.before : change.after);
  }
  return summary;
}

class ComparisonLaws : public testing::Test {
 protected:
  Fields RandomFields() { return CRandomVif(m_generator).Make(); }

  std::mt19937_64 m_generator = testsupport::SeededGenerator();
  testing::ScopedTrace m_trace{__FILE__, __LINE__, testsupport::SeedMessage()};
};

TEST_F(ComparisonLaws, NothingDiffersFromItself) {
  for (int round = 0; round < kRounds; ++round) {
    const Fields fields = RandomFields();
    ASSERT_TRUE(Compare(fields, fields, {true}).IsEmpty());
  }
}

TEST_F(ComparisonLaws, FilesWithoutDifferencesMeanTheSame) {
  for (int round = 0; round < kRounds; ++round) {
    const Fields before = RandomFields();
    const Fields after = round % 2 == 0 ? Fields(before.rbegin(), before.rend()) : RandomFields();
    if (Compare(before, after).IsEmpty()) {
      ASSERT_EQ(Meanings(before), Meanings(after));
    }
  }
}

TEST_F(ComparisonLaws, ApplyingTheDifferencesToTheFirstGivesTheSecond) {
  for (int round = 0; round < kRounds; ++round) {
    const Fields before = RandomFields();
    const Fields after = RandomFields();
    ASSERT_EQ(Apply(Compare(before, after), before, after), Meanings(after)) << "round " << round;
  }
}

TEST_F(ComparisonLaws, SwappingTheFilesMirrorsTheDifferences) {
  for (int round = 0; round < kRounds; ++round) {
    const Fields before = RandomFields();
    const Fields after = RandomFields();
    ASSERT_EQ(Summarise(Compare(before, after), false).first, Summarise(Compare(after, before), true).first);
    ASSERT_EQ(Summarise(Compare(before, after), false).second, Summarise(Compare(after, before), true).second);
  }
}

TEST_F(ComparisonLaws, HoldForExamplesOfDifferentProducts) {
  std::vector<Fields> examples;
  for (const auto& entry : std::filesystem::directory_iterator(VIF_EXAMPLES)) {
    examples.push_back(CVendorInfoFile(entry.path()).Fields());
  }
  std::size_t compared = 0;
  for (const Fields& before : examples) {
    for (const Fields& after : examples) {
      const Differences differences = Compare(before, after);
      std::vector<Meaning> applied = Apply(differences, before, after);
      std::vector<Meaning> wanted = Meanings(after);
      // The producer is not compared between the forms.
      const auto isProducer = [](const Meaning& meaning) { return std::get<0>(meaning) == "VIF_Producer"; };
      std::erase_if(applied, isProducer);
      std::erase_if(wanted, isProducer);
      EXPECT_EQ(applied, wanted);
      EXPECT_EQ(Summarise(differences, false), Summarise(Compare(after, before), true));
      ++compared;
    }
  }
  EXPECT_GE(compared, 36U);
}

/// Groups of one kind, of three fields each.
struct GroupKind {
  EVifLocation location;
  const char* constant;  ///< the field that all have alike
  const char* telling;   ///< the field that tells one from another
  const char* detail;    ///< the field that may change without making it another one

  GroupPlace Place(std::size_t index) const { return At({eVifLocComponent, 1}, {location, index + 1}); }
};

/// A product with PDOs and SVIDs, changed in ways that are written down.
class CChangedProduct {
 public:
  explicit CChangedProduct(std::mt19937_64& generator) : m_generator(generator) {
    for (int name = 0; name < 10; ++name) m_own["Field_" + std::to_string(name)] = Below(1'000);
    for (auto& [kind, groups] : m_lists) {
      for (std::size_t count = Below(8); count > 0; --count) groups.push_back({NewNumber()});
    }
  }

  Fields ToFields() const {
    Fields fields;
    for (const auto& [name, value] : m_own) fields.push_back(Number(Component(1), name, value));
    for (const auto& [kind, groups] : m_lists) {
      for (std::size_t i = 0; i < groups.size(); ++i) {
        fields.push_back(Number(kind.Place(i), kind.constant, 0));
        fields.push_back(Number(kind.Place(i), kind.telling, groups[i].telling));
        fields.push_back(Number(kind.Place(i), kind.detail, groups[i].detail));
      }
    }
    return fields;
  }

  /// Changes, adds and removes fields of the component, and changes each list.
  void Change() {
    for (auto entry = m_own.begin(); entry != m_own.end();) {
      const std::size_t choice = Below(5);
      if (choice == 0) {
        Expect(Component(1), entry->first, std::to_string(entry->second), std::to_string(entry->second + 1));
        ++entry->second;
      }
      if (choice == 1) Expect(Component(1), entry->first, std::to_string(entry->second), "-");
      entry = choice == 1 ? m_own.erase(entry) : std::next(entry);
    }
    if (Below(2) == 0) {
      m_own["New_Field"] = 7;
      Expect(Component(1), "New_Field", "-", "7");
    }
    for (auto& [kind, groups] : m_lists) {
      const Groups before = groups;
      for (std::size_t i = 0; i < groups.size(); ++i) groups[i].origin = i;
      ChangeList(groups);
      ExpectChanges(kind, before, groups);
    }
  }

  std::multiset<std::string> expectedFields;
  std::multiset<std::string> expectedGroups;
  bool hasMoved = false;  ///< whether groups have changed places, of which one at least is to be reported as moved

 private:
  static constexpr std::size_t kNew = SIZE_MAX;

  struct Group {
    std::uint64_t telling;
    std::uint64_t detail = 300;
    std::size_t origin = kNew;  ///< where it was before
    bool isFixed = false;       ///< whether nothing else is to happen to it, so that it can be recognised
  };

  using Groups = std::vector<Group>;

  std::size_t Below(std::size_t bound) { return testsupport::RandomBelow(m_generator, bound); }
  std::uint64_t NewNumber() { return m_lastNumber += 1 + Below(10); }

  void Expect(const GroupPlace& place, const std::string& name, const std::string& old, const std::string& now) {
    expectedFields.insert(PlaceInWords(place) + ": " + name + " " + old + " > " + now);
  }

  /// Adds or removes one group, lets two change places, moves one, or changes the number that tells one from others.
  /// Then changes details.
  void ChangeList(Groups& groups) {
    const std::size_t place = Below(groups.size() + 1);
    const auto at = [&](std::size_t index) { return groups.begin() + static_cast<std::ptrdiff_t>(index); };
    const std::size_t choice = Below(6);
    if (choice == 0) {
      groups.insert(at(place), {.telling = NewNumber(), .isFixed = true});
    } else if (place < groups.size()) {
      const std::size_t other = Below(groups.size());
      hasMoved = hasMoved || ((choice == 2 || choice == 3) && place != other);
      if (choice == 1) groups.erase(at(place));
      if (choice == 2) {
        std::swap(groups[place], groups[other]);
        groups[place].isFixed = groups[other].isFixed = true;
      }
      if (choice == 3) {
        const Group moved = groups[place];
        groups.erase(at(place));
        groups.insert(at(other), moved)->isFixed = true;
      }
      if (choice == 4) groups[place].telling = NewNumber();
    }
    for (Group& group : groups) {
      if (!group.isFixed && Below(4) == 0) group.detail = 225;
    }
  }

  void ExpectChanges(const GroupKind& kind, const Groups& before, const Groups& after) {
    std::set<std::size_t> kept;
    for (std::size_t i = 0; i < after.size(); ++i) {
      const Group& group = after[i];
      const std::string place = PlaceInWords(kind.Place(i));
      kept.insert(group.origin);
      if (group.origin == kNew) {
        expectedGroups.insert("+ " + place);
        continue;
      }
      if (group.origin != i) expectedGroups.insert(PlaceInWords(kind.Place(group.origin)) + " > " + place);
      const Group& old = before[group.origin];
      for (const auto& [name, number] : {std::pair(kind.telling, &Group::telling), {kind.detail, &Group::detail}}) {
        if (old.*number == group.*number) continue;
        Expect(kind.Place(i), name, std::to_string(old.*number), std::to_string(group.*number));
      }
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
      if (!kept.contains(i)) expectedGroups.insert("- " + PlaceInWords(kind.Place(i)));
    }
  }

  std::mt19937_64& m_generator;
  std::map<std::string, std::uint64_t> m_own;
  std::vector<std::pair<GroupKind, Groups>> m_lists = {
      {{eVifLocSrcPdo, "Src_PDO_Supply_Type", "Src_PDO_Voltage", "Src_PDO_Max_Current"}, {}},
      {{eVifLocSopSvid, "SVID_Modes_Fixed_SOP", "SVID_SOP", "SVID_Num_Modes_Max_SOP"}, {}}};
  std::uint64_t m_lastNumber = 400;
};

TEST_F(ComparisonLaws, WhatIsChangedOnPurposeIsExactlyWhatIsReported) {
  for (int round = 0; round < kRounds; ++round) {
    CChangedProduct product(m_generator);
    const Fields before = product.ToFields();
    product.Change();
    const Differences differences = Compare(before, product.ToFields());
    const std::vector<std::string> fields = FieldReport(differences);
    std::vector<std::string> groups = GroupReport(differences);
    // Where groups change places, either may be said to have moved past the other.
    constexpr std::string_view moved = "moved ";
    std::size_t countMoved = 0;
    for (std::string& group : groups) {
      if (!group.starts_with(moved)) continue;
      group.erase(0, moved.size());
      ++countMoved;
    }
    ASSERT_EQ(std::multiset<std::string>(fields.begin(), fields.end()), product.expectedFields) << "round " << round;
    ASSERT_EQ(std::multiset<std::string>(groups.begin(), groups.end()), product.expectedGroups) << "round " << round;
    ASSERT_EQ(countMoved != 0, product.hasMoved) << "round " << round;
  }
}

}  // namespace

}  // namespace vifanalysis::difftest
