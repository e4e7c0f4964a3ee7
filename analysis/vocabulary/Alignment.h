// How far a name is from a spelling.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

/// A name laid beside a spelling. The distance is the least number of characters to insert, omit, change or swap
/// with their neighbour so that the name matches the spelling in any letter case; digits at its marks cost nothing.
class CAlignment {
 public:
  /// The longest name and spelling that can be compared.
  static constexpr std::size_t kMaxLength = 80;

  /// \param name, spelling of at most `kMaxLength` characters; must outlive the object
  CAlignment(std::string_view name, std::string_view spelling);

  std::size_t Distance() const { return Cost(m_name.size(), m_spelling.size()); }

  /// The spelling with the name's digits at its marks.
  std::string Corrected() const;

 private:
  std::uint8_t& Cost(std::size_t name, std::size_t spelling) { return m_costs[name][spelling]; }
  std::size_t Cost(std::size_t name, std::size_t spelling) const { return m_costs[name][spelling]; }
  std::size_t CostOfMark(std::size_t name, std::size_t spelling) const;
  std::size_t CostOfCharacter(std::size_t name, std::size_t spelling) const;
  bool Equal(std::size_t name, std::size_t spelling) const;
  bool Swapped(std::size_t name, std::size_t spelling) const;
  bool TakesDigit(std::size_t name, std::size_t spelling) const;

  std::string_view m_name;
  std::string_view m_spelling;
  // The distance of the first characters of the name from the first characters of the spelling, by their numbers.
  std::array<std::array<std::uint8_t, kMaxLength + 1>, kMaxLength + 1> m_costs;
};

}  // namespace vifanalysis
