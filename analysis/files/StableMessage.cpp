#include "Codes.h"

#include <analysis/Finding.h>
#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>

namespace vifanalysis {

std::string StableMessage(std::string_view rule, std::string_view message) {
  std::string stable(message);
  if (rule != code::kDeclaredTwice.code) return stable;
  // The last one: a name that the message quotes may have the same words.
  constexpr std::string_view words = " on line ";
  const std::size_t begin = stable.rfind(words);
  if (begin == std::string::npos) return stable;
  const auto number = stable.begin() + static_cast<std::ptrdiff_t>(begin + words.size());
  const auto end = std::find_if_not(number, stable.end(), IsDigit);
  stable.erase(stable.begin() + static_cast<std::ptrdiff_t>(begin), end);
  return stable;
}

}  // namespace vifanalysis
