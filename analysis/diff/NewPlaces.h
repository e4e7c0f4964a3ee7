// Where the groups that findings mention are in another file.
#pragma once

#include <analysis/Differences.h>

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace vifanalysis {

/// Rewrites what findings of the first file say about places as if they were in the second. A removed group gets a
/// text that stands for no group of the second file.
class CNewPlaces {
 public:
  explicit CNewPlaces(const Differences& differences);

  /// The message with the new places, those in words ("Component 1, Source PDO 2") and those by location names
  /// ("Component 1 · SrcPdo 2").
  std::string InMessage(std::string_view message) const;

  /// The path of an element, such as "VIF/Component/SrcPdoList/SrcPDO[2]", with the new numbers of the groups in it. A
  /// number 1, which paths have only where there is a second one, is left out.
  std::string InPath(std::string_view path) const;

 private:
  void Add(const GroupChange& change);

  /// Takes the longest place from the beginning of the text, and returns what stands for it; empty if there is none.
  std::string TakePlace(std::string_view& text, const std::string& component) const;

  std::map<std::string, std::string, std::less<>> m_texts;  // by the place's text in the first file
  std::map<GroupPlace, const GroupChange*> m_groups;        // by place in the first file
};

}  // namespace vifanalysis
