// Texts as lines and words.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

namespace manual {

/// The parts between separators; none for an empty text.
inline std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  while (!text.empty()) {
    parts.push_back(text.substr(0, text.find(separator)));
    text.remove_prefix(std::min(parts.back().size() + 1, text.size()));
  }
  return parts;
}

inline std::vector<std::string_view> LinesOf(std::string_view text) { return Split(text, '\n'); }

/// The words between blanks, of which there may be several, and line feeds.
inline std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  for (const std::string_view line : LinesOf(text)) {
    for (const std::string_view word : Split(line, ' ')) {
      if (!word.empty()) words.push_back(word);
    }
  }
  return words;
}

}  // namespace manual
