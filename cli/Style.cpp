#include "Style.h"

#include "Output.h"

#include <cstdlib>

namespace cli {

bool MayColour() {
  const char* noColour = std::getenv("NO_COLOR");
  return HeedsEscapes() && (noColour == nullptr || *noColour == '\0');
}

namespace {

std::string Styled(const char* begin, std::string_view text) {
  return MayColour() ? begin + std::string(text) + "\x1b[0m" : std::string(text);
}

}  // namespace

std::string Heading(std::string_view text) { return Styled("\x1b[1m", text); }

std::string Dimmed(std::string_view text) { return Styled("\x1b[2m", text); }

}  // namespace cli
