#include "Utf8.h"

#include "Guard.h"

#include <BaseUtilities/PathText.h>
#include <analysis/Text.h>

#include <algorithm>

namespace vifc {

bool IsUtf8(std::string_view text) {
  const bool isAscii =
      std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) > 127; });
  return isAscii || vifanalysis::ValidUtf8(text) == text;
}

void MakeUtf8(std::string& text) {
  if (!IsUtf8(text)) text = vifanalysis::ValidUtf8(text);
  constexpr const char* replacement = "\xEF\xBF\xBD";
  for (std::size_t nul = text.find('\0'); nul != std::string::npos; nul = text.find('\0', nul)) {
    text.replace(nul, 1, replacement);
  }
}

std::filesystem::path PathOf(const char* text) {
  Require(text != nullptr && *text != '\0', "a file has no name");
  return PathFromUtf8(text);
}

std::vector<std::string> TextsOf(const char* const* texts, std::size_t count, const std::string& noun) {
  Require(texts != nullptr || count == 0, ("the " + noun + "s are NULL").c_str());
  const std::string problem = "a " + noun + " is NULL";
  std::vector<std::string> list;
  for (std::size_t i = 0; i < count; ++i) {
    Require(texts[i] != nullptr, problem.c_str());
    list.emplace_back(texts[i]);
  }
  return list;
}

std::string_view ContentOf(const void* bytes, std::size_t size) {
  Require(bytes != nullptr || size == 0, "the bytes are NULL");
  return {static_cast<const char*>(bytes), size};
}

}  // namespace vifc
