#include "Style.h"

#include "Output.h"

#include <cstdlib>

namespace cli {

bool MayColour() {
  const char* noColour = std::getenv("NO_COLOR");
  return HeedsEscapes() && (noColour == nullptr || *noColour == '\0');
}

std::string Heading(std::string_view text) {
  return MayColour() ? "\x1b[1m" + std::string(text) + "\x1b[0m" : std::string(text);
}

}  // namespace cli
