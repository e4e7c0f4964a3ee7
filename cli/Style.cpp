#include "Style.h"

#include "Output.h"

#include <cstdlib>

namespace cli {

bool MayColour() {
  static const bool may = [] {  // asked for every line
    const char* noColour = std::getenv("NO_COLOR");
    return HeedsEscapes() && (noColour == nullptr || *noColour == '\0');
  }();
  return may;
}

namespace {

/// \param mode the number of the style or colour in an escape sequence
std::string Styled(const char* mode, std::string_view text) {
  if (!MayColour()) return std::string(text);
  return std::string("\x1b[").append(mode).append("m").append(text).append("\x1b[0m");
}

}  // namespace

std::string Heading(std::string_view text) { return Styled("1", text); }
std::string Dimmed(std::string_view text) { return Styled("2", text); }
std::string Removed(std::string_view text) { return Styled("31", text); }
std::string Added(std::string_view text) { return Styled("32", text); }

}  // namespace cli
