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
#include <tuple>

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

/// A product whose PDOs differ in their voltages, changed in ways that are written down.
class CChangedProduct {
 public:
  explicit CChangedProduct(std::mt19937_64& generator) : m_generator(generator) {
    for (int name = 0; name < 10; ++name) m_own["Field_" + std::to_string(name)] = Below(1'000);
    const std::size_t pdos = Below(8);
    for (std::size_t pdo = 0; pdo < pdos; ++pdo) m_pdos.push_back({NewVoltage(), 300});
  }

  Fields ToFields() const {
    Fields fields;
    for (const auto& [name, value] : m_own) fields.push_back(Number(Component(1), name, value));
    for (std::size_t i = 0; i < m_pdos.size(); ++i) {
      AddPdo(fields, SrcPdo(i + 1), m_pdos[i].voltage, m_pdos[i].current);
    }
    return fields;
  }

  /// Changes, adds and removes fields of the component, changes the currents of PDOs, and then adds or removes one.
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
    ChangePdos();
  }

  std::multiset<std::string> expectedFields;
  std::multiset<std::string> expectedGroups;

 private:
  struct Pdo {
    std::uint64_t voltage;
    std::uint64_t current;
    bool isChanged = false;
  };

  std::size_t Below(std::size_t bound) { return testsupport::RandomBelow(m_generator, bound); }
  std::uint64_t NewVoltage() { return m_voltage += 1 + Below(10); }

  void Expect(const GroupPlace& place, const std::string& name, const std::string& old, const std::string& now) {
    expectedFields.insert(PlaceInWords(place) + ": " + name + " " + old + " > " + now);
  }

  void ChangePdos() {
    for (Pdo& pdo : m_pdos) pdo.isChanged = Below(4) == 0;
    const std::size_t place = Below(m_pdos.size() + 1);
    const std::size_t choice = Below(3);
    const bool isRemoval = choice == 1 && place < m_pdos.size();
    const std::size_t kept = m_pdos.size();
    for (std::size_t old = 0; old < kept; ++old) {
      if (isRemoval && old == place) continue;
      const std::size_t number = 1 + old + (choice == 0 && old >= place ? 1 : 0) - (isRemoval && old > place ? 1 : 0);
      if (number != old + 1)
        expectedGroups.insert(PlaceInWords(SrcPdo(old + 1)) + " > " + PlaceInWords(SrcPdo(number)));
      if (m_pdos[old].isChanged) Expect(SrcPdo(number), "Src_PDO_Max_Current", "300", "225");
    }
    for (Pdo& pdo : m_pdos) {
      if (pdo.isChanged) pdo.current = 225;
    }
    const auto position = m_pdos.begin() + static_cast<std::ptrdiff_t>(place);
    if (choice == 0) {
      m_pdos.insert(position, {NewVoltage(), 300});
      expectedGroups.insert("+ " + PlaceInWords(SrcPdo(place + 1)));
    } else if (isRemoval) {
      m_pdos.erase(position);
      expectedGroups.insert("- " + PlaceInWords(SrcPdo(place + 1)));
    }
  }

  std::mt19937_64& m_generator;
  std::map<std::string, std::uint64_t> m_own;
  std::vector<Pdo> m_pdos;
  std::uint64_t m_voltage = 100;
};

TEST_F(ComparisonLaws, WhatIsChangedOnPurposeIsExactlyWhatIsReported) {
  for (int round = 0; round < kRounds; ++round) {
    CChangedProduct product(m_generator);
    const Fields before = product.ToFields();
    product.Change();
    const Differences differences = Compare(before, product.ToFields());
    const std::vector<std::string> fields = FieldReport(differences);
    const std::vector<std::string> groups = GroupReport(differences);
    ASSERT_EQ(std::multiset<std::string>(fields.begin(), fields.end()), product.expectedFields) << "round " << round;
    ASSERT_EQ(std::multiset<std::string>(groups.begin(), groups.end()), product.expectedGroups) << "round " << round;
  }
}

}  // namespace

}  // namespace vifanalysis::difftest
