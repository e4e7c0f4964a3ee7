#include "Mdoc.h"

#include "Lines.h"

#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <stdexcept>

namespace manual {

namespace {

constexpr std::size_t kWidth = 79;

/// The escape for a character of ASCII that stands for something else; null for the rest.
const char* EscapeOf(char c) {
  switch (c) {
    case '\\': return "\\e";
    case '-': return "\\-";
    case '\'': return "\\(aq";
    case '`': return "\\(ga";
    case '^': return "\\(ha";
    case '~': return "\\(ti";
    default: return nullptr;
  }
}

/// Takes the first character, which is not of ASCII, from a text.
std::uint32_t TakeCodePoint(std::string_view& text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(i < text.size() ? text[i] : 0); };
  const std::size_t length = byte(0) >= 0xF0 ? 4 : byte(0) >= 0xE0 ? 3 : byte(0) >= 0xC0 ? 2 : 0;
  if (length == 0) throw std::runtime_error("a text is not UTF-8");
  std::uint32_t code = byte(0) & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) throw std::runtime_error("a text is not UTF-8");
    code = (code << 6U) | (byte(i) & 0x3FU);
  }
  text.remove_prefix(length);
  return code;
}

bool IsMacroName(std::string_view word) {
  return word.size() <= 3 && std::isupper(static_cast<unsigned char>(word.front())) != 0;
}

bool EndsSentence(std::string_view word) {
  while (!word.empty() && std::string_view(")\"'").find(word.back()) != std::string_view::npos) word.remove_suffix(1);
  return !word.empty() && std::string_view(".?!").find(word.back()) != std::string_view::npos;
}

/// A word as part of a text. Names are not hyphenated.
std::string EscapedWord(std::string_view word) {
  const bool isName = word.find_first_of("_/") != std::string_view::npos;
  return std::string(isName ? "\\%" : "").append(Escape(word));
}

/// A line that roff does not take for a request.
std::string Protected(const std::string& line) { return line.starts_with('.') ? "\\&" + line : line; }

}  // namespace

std::string Escape(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const char c = text.front();
    if (static_cast<unsigned char>(c) >= 0x80) {
      char code[16];
      std::snprintf(code, sizeof code, "\\[u%04X]", static_cast<unsigned>(TakeCodePoint(text)));
      escaped += code;
      continue;
    }
    const char* escape = EscapeOf(c);
    escaped += escape != nullptr ? std::string(escape) : std::string(1, c);
    text.remove_prefix(1);
  }
  return escaped;
}

std::string Argument(std::string_view text) {
  std::string escaped;
  for (const char c : Escape(text)) escaped += c == '"' ? std::string("\\(dq") : std::string(1, c);
  const bool isMisread = !text.empty() && (IsMacroName(text) || (text.size() == 1 && std::ispunct(text.front()) != 0));
  if (isMisread) escaped.insert(0, "\\&");
  return text.empty() || text.find(' ') != std::string_view::npos ? '"' + escaped + '"' : escaped;
}

std::string Arguments(std::string_view text) {
  std::string arguments;
  for (const std::string_view word : WordsOf(text))
    arguments.append(arguments.empty() ? "" : " ").append(Argument(word));
  return arguments;
}

std::string Paragraph(std::string_view text) {
  std::string paragraph;
  std::string line;
  bool isSentenceEnd = false;
  for (const std::string_view word : WordsOf(text)) {
    const std::string escaped = EscapedWord(word);
    if (!line.empty() && ((isSentenceEnd && word.front() != '(') || line.size() + 1 + escaped.size() > kWidth)) {
      paragraph += Protected(line) + '\n';
      line.clear();
    }
    line.append(line.empty() ? "" : " ").append(escaped);
    isSentenceEnd = EndsSentence(word);
  }
  return line.empty() ? paragraph : paragraph + Protected(line) + '\n';
}

std::string Sentence(std::string_view text) {
  return std::string(text) + (text.empty() || EndsSentence(text) ? "" : ".");
}

std::string Literal(std::string_view lines) {
  std::string literal = ".Bd -literal\n";
  for (const std::string_view line : LinesOf(lines)) literal += Protected(Escape(line)) + '\n';
  return literal + ".Ed\n";
}

}  // namespace manual
