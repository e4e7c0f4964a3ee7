// A clean example, changed in one way, and what the rules then find in it.
//
//     CExample charger("gan-charger-65w.txt");
//     charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "500");
//     EXPECT_THAT(charger.Findings(), Are({{"pdo-above-rating", "Src_PDO_Max_Current", "Component 1, ..."}}));
#pragma once

#include "files/FoundField.h"

#include <gmock/gmock.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The place of a group.
using Place = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

Place Nowhere();
Place Header();
Place Product();
Place Router(std::uint64_t router);
Place Component(std::uint64_t component);
Place SrcPdo(std::uint64_t component, std::uint64_t pdo);
Place SnkPdo(std::uint64_t component, std::uint64_t pdo);
Place SopSvid(std::uint64_t component, std::uint64_t svid);
Place SopSvidMode(std::uint64_t component, std::uint64_t svid, std::uint64_t mode);
Place CableSvid(std::uint64_t component, std::uint64_t svid);

/// The clean examples: all of examples/vif, and those beside the tests for products that are not among them.
const std::vector<std::filesystem::path>& CleanExamples();

/// The fields of an example, to be changed. A change that changes nothing throws, so that no test relies on what is not
/// there.
class CExample {
 public:
  /// \param name the file's name in either folder of examples
  explicit CExample(std::string_view name);

  /// Gives an existing field another value, which also becomes the description, as in a file without one. Whether the
  /// field is numeric does not change.
  CExample& Set(const Place& place, std::string_view name, const std::string& value);
  CExample& Set(const Place& place, std::string_view name, const std::string& value, const std::string& description);

  /// Adds a numeric field that is not there yet at the end of its group, or of the file where there is no such group.
  CExample& Add(const Place& place, std::string_view name, const std::string& value);

  /// Adds a field with a text.
  CExample& AddText(const Place& place, std::string_view name, const std::string& value);

  /// Removes an existing field.
  CExample& Remove(const Place& place, std::string_view name);

  /// Removes all fields of a group and of the groups in it.
  CExample& RemoveGroup(const Place& place);

  /// Makes it a file of another edition.
  CExample& SetEdition(const std::string& edition);

  const FoundFields& Fields() const { return m_fields; }

  /// What the rules about what a file declares find, notes included.
  std::vector<Finding> Findings() const;

  /// What one of these rules finds. A change may concern more than one rule.
  std::vector<Finding> FindingsOf(std::string_view code) const;

 private:
  FoundFields::iterator FindField(const Place& place, std::string_view name);
  CExample& Insert(const Place& place, CVIFField field);

  FoundFields m_fields;
};

/// What a test expects of one finding. The element's path ends in the name of the field that is blamed.
struct Expected {
  std::string code;
  std::string blamed;
  std::string message;
};

/// Matches exactly these findings, in any order.
testing::Matcher<const std::vector<Finding>&> Are(const std::vector<Expected>& expected);

std::ostream& operator<<(std::ostream& stream, const Finding& finding);

}  // namespace vifanalysis
