// Turns a field's name as a text VIF writes it into its canonical name and its place in the file.
#pragma once

#include "VIFField.h"
#include "VIFFieldDefs.h"

#include <array>
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

/// Applies one field definition table to the names of one component.
class CFieldResolver {
 public:
  /// \param table the definitions to apply, borrowed; null means the built-in table
  /// \param component the number that fields of a component get
  CFieldResolver(const std::vector<VifFieldDef>* table, std::uint32_t component);

  /// Resolves one name into `result`, whose storage is used again.
  /// \throws CZoRunTimeException "Internal error - Unknown EVifLocation: <value>"
  /// \throws std::regex_error when a definition of the caller's own cannot be matched with the stack at hand
  void Resolve(std::string_view name, ResolvedName& result) const;

  /// Whether a definition knows the name.
  /// \throws std::regex_error as `Resolve` does
  bool Knows(std::string_view name) const;

 private:
  void ResolveBuiltIn(std::string_view name, ResolvedName& result) const;
  void ResolveByPatterns(std::string_view name, ResolvedName& result) const;

  const std::vector<VifFieldDef>* m_ownTable;  // null for the built-in table
  std::uint32_t m_component;
};

}  // namespace vif
