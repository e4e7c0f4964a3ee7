#include "CharacterWidth.h"

#include <cwchar>

namespace vifanalysis {

std::size_t CharacterWidth(char32_t c) {
  const int width = wcwidth(static_cast<wchar_t>(c));
  return width >= 0 ? static_cast<std::size_t>(width) : 1;
}

}  // namespace vifanalysis
