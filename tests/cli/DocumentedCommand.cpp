#include "DocumentedCommand.h"

#include "support/VifCommand.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace testsupport {

namespace {

using Words = std::vector<std::string>;

/// The words between blanks. Single quotes keep blanks in a word and are removed.
Words SplitWords(const std::string& line) {
  Words words(1);
  bool isQuoted = false;
  for (const char c : line) {
    if (c == '\'') {
      isQuoted = !isQuoted;
    } else if (c == ' ' && !isQuoted) {
      words.emplace_back();
    } else {
      words.back() += c;
    }
  }
  return words;
}

/// Removes the words before a separator, and the separator, and returns these words.
Words TakeUpTo(const std::string& separator, Words& words) {
  const auto end = std::find(words.begin(), words.end(), separator);
  Words taken(words.begin(), end);
  words.erase(words.begin(), end == words.end() ? end : end + 1);
  return taken;
}

bool HasAny(const std::string& line, const Words& texts) {
  return std::any_of(texts.begin(), texts.end(),
                     [&](const std::string& text) { return line.find(text) != std::string::npos; });
}

void KeepFirst(std::vector<std::string>& lines, std::size_t count) { lines.resize(std::min(lines.size(), count)); }

void KeepThoseWith(std::vector<std::string>& lines, const Words& texts) {
  std::erase_if(lines, [&](const std::string& line) { return !HasAny(line, texts); });
}

void KeepFrom(std::vector<std::string>& lines, const std::string& text) {
  lines.erase(lines.begin(),
              std::find_if(lines.begin(), lines.end(), [&](const std::string& line) { return HasAny(line, {text}); }));
}

void Filter(std::vector<std::string>& lines, Words filter) {
  const std::string from = "/";
  const std::string toTheEnd = "/,$p";
  if (filter.size() == 3 && filter[0] == "head" && filter[1] == "-n") return KeepFirst(lines, std::stoul(filter[2]));
  if (filter.size() == 3 && filter[0] == "sed" && filter[1] == "-n" && filter[2].starts_with(from) &&
      filter[2].ends_with(toTheEnd)) {
    return KeepFrom(lines, filter[2].substr(from.size(), filter[2].size() - from.size() - toTheEnd.size()));
  }
  if (filter.size() >= 3 && filter[0] == "grep") {
    filter.erase(filter.begin());
    std::erase(filter, "-e");
    return KeepThoseWith(lines, filter);
  }
  throw std::runtime_error("unknown filter in a documented command");
}

std::string Content(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("no file " + path.string());
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Shown(Words command, const std::filesystem::path& folder) {
  if (command.size() == 2 && command[0] == "cat") return Content(folder / command[1]);
  if (command[0] != "vif") throw std::runtime_error("a documented command runs neither vif nor cat");
  command.erase(command.begin());
  const ProgramResult result = Vif(command, {.directory = folder});
  return result.output + result.error;
}

}  // namespace

std::filesystem::path ExampleFolder() { return VIF_EXAMPLES; }

std::vector<std::string> RunDocumented(const std::string& line, std::filesystem::path folder) {
  Words words = SplitWords(line);
  if (words.size() > 3 && words[0] == "cd" && words[2] == "&&") folder /= TakeUpTo("&&", words)[1];
  std::vector<std::string> lines = Lines(Shown(TakeUpTo("|", words), folder));
  if (!words.empty()) Filter(lines, words);
  return lines;
}

}  // namespace testsupport
