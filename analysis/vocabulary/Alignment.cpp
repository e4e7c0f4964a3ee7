#include "Alignment.h"

#include "SpellingMatch.h"

#include <analysis/Text.h>

#include <algorithm>

namespace vifanalysis {

// The costs are written before they are read, so they need no first value.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
CAlignment::CAlignment(std::string_view name, std::string_view spelling) : m_name(name), m_spelling(spelling) {
  for (std::size_t i = 0; i <= name.size(); ++i) {
    for (std::size_t j = 0; j <= spelling.size(); ++j) {
      std::size_t cost = i;
      if (j > 0) cost = spelling[j - 1] == kIndexMark ? CostOfMark(i, j) : CostOfCharacter(i, j);
      Cost(i, j) = static_cast<std::uint8_t>(cost);
    }
  }
}

std::size_t CAlignment::CostOfMark(std::size_t i, std::size_t j) const {
  const std::size_t none = Cost(i, j - 1);
  if (i == 0) return none;
  return std::min(none, Cost(i - 1, j) + (IsDigit(m_name[i - 1]) ? 0 : 1));
}

std::size_t CAlignment::CostOfCharacter(std::size_t i, std::size_t j) const {
  std::size_t cost = Cost(i, j - 1) + 1;
  if (i == 0) return cost;
  cost = std::min(cost, Cost(i - 1, j) + 1);
  cost = std::min(cost, Cost(i - 1, j - 1) + (Equal(i, j) ? 0 : 1));
  if (Swapped(i, j)) cost = std::min(cost, Cost(i - 2, j - 2) + 1);
  return cost;
}

bool CAlignment::Equal(std::size_t i, std::size_t j) const {
  return ToLowerAscii(m_name[i - 1]) == ToLowerAscii(m_spelling[j - 1]);
}

bool CAlignment::Swapped(std::size_t i, std::size_t j) const {
  return i >= 2 && j >= 2 && ToLowerAscii(m_name[i - 1]) == ToLowerAscii(m_spelling[j - 2]) &&
         ToLowerAscii(m_name[i - 2]) == ToLowerAscii(m_spelling[j - 1]);
}

bool CAlignment::TakesDigit(std::size_t i, std::size_t j) const {
  return i > 0 && IsDigit(m_name[i - 1]) && Cost(i, j) == Cost(i - 1, j);
}

std::string CAlignment::Corrected() const {
  // From the end to the start along a cheapest path.
  std::string text;
  std::size_t i = m_name.size();
  std::size_t j = m_spelling.size();
  while (i > 0 || j > 0) {
    if (j == 0 || (i > 0 && Cost(i, j) == Cost(i - 1, j) + 1)) {
      --i;
    } else if (m_spelling[j - 1] == kIndexMark) {
      if (TakesDigit(i, j)) {
        text += m_name[--i];
      } else {
        --j;
      }
    } else if (i > 0 && Cost(i, j) == Cost(i - 1, j - 1) + (Equal(i, j) ? 0U : 1U)) {
      text += m_spelling[--j];
      --i;
    } else if (Cost(i, j) == Cost(i, j - 1) + 1) {
      text += m_spelling[--j];
    } else {
      text += m_spelling[--j];
      text += m_spelling[--j];
      i -= 2;
    }
  }
  std::reverse(text.begin(), text.end());
  return text;
}

}  // namespace vifanalysis
