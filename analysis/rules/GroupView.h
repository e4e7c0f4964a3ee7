// The fields of a file by their groups and names.
#pragma once

#include "files/FoundField.h"
#include "files/GroupTree.h"

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// Whether a field is still the editor's choice that nobody has made. It may have a number all the same, which stands
/// for no answer.
bool IsUnanswered(const FoundField& found);

/// What a field says in words: its value, or, where an XML element has no value, its description.
std::string_view TextOf(const FoundField& found);

/// Fields whose values are known to be wrong, so that nothing follows from them.
using UnsoundFields = std::set<const FoundField*>;

/// A field under the name by which it is found in its group.
struct NamedField {
  std::string_view name;
  const FoundField* field;
  bool isSound;
};

/// One group: its own fields and the groups in it. It borrows the fields. Where a group has a name twice, the first
/// counts. A text field of a text file is found without the dollar sign of its name; it is in no group.
class CGroupView {
 public:
  using NamedFields = std::vector<NamedField>;

  CGroupView(const GroupPlace& place, NamedFields fields, std::vector<CGroupView> groups);

  /// Where the group is, outermost group first.
  const GroupPlace& Place() const { return m_place; }

  /// What kind of group it is; `eVifLocUnset` for the file as a whole.
  EVifLocation Kind() const;

  /// Its number among the groups of its kind.
  std::uint64_t Index() const;

  /// The field of that name, null when there is none.
  const FoundField* Find(std::string_view name) const;

  bool Has(std::string_view name) const { return Find(name) != nullptr; }

  /// The field's number; nothing when there is no field or no number, or the field is unanswered or unsound. So a rule
  /// whose condition needs the number is silent about a field that another rule has found to be wrong.
  std::optional<std::uint64_t> Number(std::string_view name) const;

  /// Whether the field is there, but unsound.
  bool IsUnsound(std::string_view name) const;

  /// The text of a field that is not numeric, as `TextOf` has it; empty when there is no field.
  std::string_view Text(std::string_view name) const;

  // Whether the field is there with that value. Both are false when it is missing.
  bool IsYes(std::string_view name) const { return Number(name) == 1U; }
  bool IsNo(std::string_view name) const { return Number(name) == 0U; }

  // Whether the field is there and does not say the opposite: it has that value, or none that counts.
  bool MayBeYes(std::string_view name) const { return Has(name) && !IsNo(name); }
  bool MayBeNo(std::string_view name) const { return Has(name) && !IsYes(name); }

  /// The groups of a kind directly in this one, in the order of their numbers. A group without a number is left out: it
  /// may be several in one.
  std::span<const CGroupView> Groups(EVifLocation kind) const;

  /// The same with a group without a number, which comes last.
  std::span<const CGroupView> AllGroups(EVifLocation kind) const;

  /// All groups directly in this one, by kind and number, with those that have no number after the others of their
  /// kind.
  std::span<const CGroupView> Groups() const { return m_groups; }

  /// Whether there are groups of a kind directly in this one, with or without a number.
  bool HasGroups(EVifLocation kind) const { return !AllGroups(kind).empty(); }

  /// Whether there is a group of that kind without a number.
  bool HasUnnumbered(EVifLocation kind) const { return AllGroups(kind).size() != Groups(kind).size(); }

  /// Its own fields in alphabetical order, fields of one name in the order of the file.
  const NamedFields& Fields() const { return m_fields; }

  /// Its first field in the order of the file, or else that of a group in it; null when there is none.
  const FoundField* FirstField() const { return m_first; }

 private:
  const NamedField* FindNamed(std::string_view name) const;

  GroupPlace m_place;
  NamedFields m_fields;
  std::vector<CGroupView> m_groups;  // by kind and number
  const FoundField* m_first = nullptr;
};

}  // namespace vifanalysis
