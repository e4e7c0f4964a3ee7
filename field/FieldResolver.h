// Turns a field's name as a text VIF writes it into its canonical name and its place in the file.
#pragma once

#include "GuardedRegex.h"
#include "KnownFieldIndex.h"
#include "RegexShape.h"
#include "VIFField.h"
#include "VIFFieldDefs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vif {

struct ResolvedName {
  std::string name;  ///< the canonical name; the name as written when no definition knows it
  std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH> slots;
  bool isKnown = false;  ///< whether a definition knows the name
};

/// Applies one field definition table to the names of one component. A definition whose pattern is a copy of a built-in
/// one is found through the index of the known fields, which says what the pattern says; any other is matched.
class CFieldResolver {
 public:
  /// \param table the definitions to apply, borrowed and not to be changed while the object lives; null means the
  ///   built-in table
  /// \param component the number that fields of a component get
  CFieldResolver(const std::vector<VifFieldDef>* table, std::uint32_t component);

  /// Resolves one name into `result`, whose storage is used again.
  /// \throws CZoRunTimeException "Internal error - Unknown EVifLocation: <value>"
  /// \throws std::regex_error when a pattern of the caller's own needs more stack or time than there is. One that
  ///   neither refers back to a group nor looks ahead gives an answer for names of millions of bytes.
  void Resolve(std::string_view name, ResolvedName& result) const;

  /// Whether a definition knows the name.
  /// \throws std::regex_error as `Resolve` does
  bool Knows(std::string_view name) const;

 private:
  /// A definition whose pattern is the caller's own.
  struct OwnPattern {
    std::size_t position;  // in the table
    RegexShape shape;
  };

  void ResolveBuiltIn(const KnownFieldMatch& known, ResolvedName& result) const;
  void ResolveByTable(std::string_view name, const KnownFieldMatch& known, ResolvedName& result) const;

  /// The position in the caller's table of the first definition with the known field's pattern; the table's size when
  /// there is none.
  std::size_t PositionOf(const KnownFieldMatch& known) const;

  /// The first definition before the position `end` whose own pattern fits the whole name, with the captures in
  /// `match`; null when there is none.
  const VifFieldDef* FindOwnPattern(std::wstring_view name, std::size_t end, GuardedMatch<wchar_t>& match) const;

  const std::vector<VifFieldDef>* m_ownTable;  // null for the built-in table
  std::uint32_t m_component;
  std::vector<std::size_t> m_positions;   // for each known field, as `PositionOf` says
  std::vector<OwnPattern> m_ownPatterns;  // in the order of the table
};

}  // namespace vif
