// How two VIFs, or two ports of one, differ in what they declare.
//
//     const CVendorInfoFile before("passed.txt");
//     const CVendorInfoFile after("revised.xml");
//     const vifanalysis::Differences differences = vifanalysis::Compare(before.Fields(), after.Fields());
//     for (const vifanalysis::Difference& difference : differences.fields) std::puts(difference.name.c_str());
//
// Fields are compared by name, place and meaning. A number equals the same number in another spelling, a name equals
// the other spellings of the same field that the vocabulary knows, and a text of a text file, which is in no group,
// stands where the XML form has it. So the two forms of one product do not differ. The order of fields does not count,
// except among fields of one name in one group. `VIF_Producer`, which names the program that wrote the file, is not
// compared between a text and an XML file, because they spell it differently.
//
// Groups (components, PDOs, SVIDs, modes, routers and endpoints) are aligned by what they declare before their fields
// are compared. So a PDO that is put between others is one added group, and those after it are only renumbered.
//
// All texts are UTF-8 if those of the files are. The structures own all they hold. Unless it says otherwise, a function
// throws std::bad_alloc only and may be called from any number of threads at once. The time grows linearly with the
// number of fields.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>
#include <analysis/FieldText.h>
#include <analysis/Finding.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vifanalysis {

/// How to compare.
struct CompareOptions {
  /// Whether fields with the same value but other descriptions differ, too. A description that only repeats the value
  /// counts as none.
  bool descriptions = false;
};

/// What happened to a field.
enum class DifferenceKind : std::uint8_t {
  Changed,  ///< both have it, with different values
  Added,    ///< only the second has it
  Removed,  ///< only the first has it
};

/// A field as one of the files declares it.
struct DeclaredField {
  std::string name;                     ///< as `CVIFField::Name` has it, perhaps an older spelling, or with a `$`
  GroupPlace indexes{};                 ///< as `CVIFField::Indexes` has them; all unused for a text of a text file
  std::string value;                    ///< as `CVIFField::Value` has it; empty for a text of an XML file
  std::string description;              ///< as `CVIFField::Description` has it; the text of a text of an XML file
  std::optional<std::uint64_t> number;  ///< its number, if it is numeric and has one
  std::string text;                     ///< what it says: its text, or its number in decimal
  std::string meaning;       ///< what its number stands for, such as "9 V", "Fixed" or "0xFF01"; empty if not known
  bool isUncertain = false;  ///< whether `meaning` has low confidence, which is to be said where it is shown
  GroupPlace place{};        ///< its group, in which it may be compared without being declared there
  std::size_t position = 0;  ///< its index in the list that was compared
};

/// "changed", "added" or "removed".
constexpr const char* KindText(DifferenceKind kind) noexcept {
  if (kind == DifferenceKind::Changed) return "changed";
  return kind == DifferenceKind::Added ? "added" : "removed";
}

/// One field that differs.
struct Difference {
  DifferenceKind kind{};                ///< what happened to it
  std::string name;                     ///< its canonical name
  GroupPlace place{};                   ///< its group in the second file; if the group or one around it was removed,
                                        ///< the removed numbers, as the first file has them, within the counterpart
                                        ///< of what is around them
  std::size_t group = kNoGroup;         ///< the index in `Differences::groups` of the added or removed group that it
                                        ///< is a part of, at any depth; otherwise `kNoGroup`
  std::optional<DeclaredField> before;  ///< the first's; nothing if added
  std::optional<DeclaredField> after;   ///< the second's; nothing if removed

  /// Stands for no group.
  static constexpr std::size_t kNoGroup = SIZE_MAX;
};

/// What happened to a whole group.
enum class GroupChangeKind : std::uint8_t {
  Added,       ///< only the second has it
  Removed,     ///< only the first has it
  Moved,       ///< it changed places with others of its kind, and has another number
  Renumbered,  ///< it has another number because of groups that were added, removed or moved, or of a gap
};

/// "added", "removed", "moved" or "renumbered".
constexpr const char* KindText(GroupChangeKind kind) noexcept {
  switch (kind) {
    case GroupChangeKind::Added: return "added";
    case GroupChangeKind::Removed: return "removed";
    case GroupChangeKind::Moved: return "moved";
    case GroupChangeKind::Renumbered: break;
  }
  return "renumbered";
}

/// One group that is not the same, or does not have the same number, in both. A group whose fields differ is not listed
/// for that, and neither are those that a file has once: its header, its application's and the product, which are
/// compared field by field even if only one file has them.
struct GroupChange {
  GroupChangeKind kind{};      ///< what happened to it
  GroupPlace before{};         ///< its place in the first; if added, that of its parent's counterpart there
  GroupPlace after{};          ///< its place in the second; if removed, that of its parent's counterpart there
  std::size_t fieldCount = 0;  ///< the number of its fields, with those in its inner groups; in the second, if it is
                               ///< in both
  std::string summary;         ///< what it is, such as "Fixed, 9 V, 3 A, 27 W" or "0xFF01"; empty if it has no short
                               ///< description
};

/// All differences, in the order of the groups of the second file, those of the first standing where they would be.
struct Differences {
  std::vector<Difference> fields;   ///< those of added and removed groups included
  std::vector<GroupChange> groups;  ///< the groups that are not the same, or have another number

  /// Whether both mean the same.
  bool IsEmpty() const noexcept { return fields.empty() && groups.empty(); }
};

/// How the fields of a second file differ from those of a first. Both are lists as loading one file gives them.
///
/// Applying the differences to the first gives the second: drop the `before` of all changed and removed fields, give
/// the fields that are left in renumbered and moved groups their new numbers, and put in the `after` of all changed and
/// added fields.
VIF_ANALYSIS_API Differences Compare(std::span<const CVIFField> before, std::span<const CVIFField> after,
                                     const CompareOptions& options = {});

/// How one component differs from another of the same file.
struct PortComparison {
  std::uint64_t component = 0;  ///< the number of the one, which is the second side of the differences
  std::uint64_t other = 0;      ///< the number of the one that it is compared with, which is the first side
  Differences differences;      ///< how the first side became the second
};

/// Compares each component with the earlier ones of the same kind: the same PD role, Type-C state machine, connector
/// and USB4 support, all of which must be known. Of several earlier ones, the one that it is most like is chosen from
/// the first eight and the last that differ from each other. What is a port's own (its label, port numbers, adapter
/// numbers and product IDs) is left out.
/// \return one comparison for each component that has an earlier one of its kind, in the order of their numbers
VIF_ANALYSIS_API std::vector<PortComparison> ComparePorts(std::span<const CVIFField> fields,
                                                          const CompareOptions& options = {});

/// Compares two components of any kind in the same way.
/// \param fields all fields of the file
/// \param other the number of the first side
/// \param component the number of the second side
/// \param options how to compare
/// \throws std::out_of_range "there is no component <number>"
VIF_ANALYSIS_API PortComparison ComparePorts(std::span<const CVIFField> fields, std::uint64_t other,
                                             std::uint64_t component, const CompareOptions& options = {});

/// The findings that only one of two files has.
struct FindingChanges {
  std::vector<Finding> fixed;  ///< only the first file has them
  std::vector<Finding> added;  ///< only the second has them
};

/// Compares what checking two files has found. Two findings are the same if their code, element and message are, with
/// places compared as the groups are aligned: what was found in Source PDO 2 is the same in Source PDO 3 if that is
/// where the PDO is now, and findings in a removed group are fixed. Line numbers do not count, but values do: a
/// finding whose message quotes a value that has changed is another one. Where one file is text and the other XML, only
/// the last name of an element's path counts.
/// \param before the findings of the first file
/// \param after the findings of the second file
/// \param differences how the files differ, from `Compare`; without it, each group corresponds to that of its number
VIF_ANALYSIS_API FindingChanges CompareFindings(const std::vector<Finding>& before, const std::vector<Finding>& after,
                                                const Differences& differences = {});

}  // namespace vifanalysis
