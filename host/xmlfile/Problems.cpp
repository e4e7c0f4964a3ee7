#include "xmlfile/Problems.h"

#include "BaseUtilities/StringConvert.h"

#include <new>
#include <string>
#include <utility>

namespace xmlfile {

namespace {

/// Nobody fixes a file with more errors than that one by one, and it may be meant to exhaust memory.
constexpr std::size_t kMostProblems = 10'000;

/// A reason may quote text of any length from the file.
constexpr std::size_t kLongestText = 1'000;

/// The text on one line, without trailing blanks, truncated to a readable length, and as valid UTF-8: a parser may
/// quote the bytes of a file unchanged.
std::string ReadableText(std::string_view text) {
  while (!text.empty() && static_cast<unsigned char>(text.back()) <= ' ') text.remove_suffix(1);
  const bool isCut = text.size() > kLongestText;
  if (isCut) {
    text = text.substr(0, kLongestText);
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.remove_suffix(1);
    if (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0) text.remove_suffix(1);
  }
  std::string readable = Utf16ToUtf8(Utf8ToUtf16(text));
  for (char& c : readable) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return isCut ? readable + "..." : readable;
}

}  // namespace

void CProblems::Add(std::size_t line, std::size_t column, std::string_view element, std::string_view reason) noexcept {
  if (m_list.size() >= kMostProblems) {
    ++m_omitted;
    return;
  }
  try {
    m_list.push_back({line, column, ReadableText(element), ReadableText(reason)});
  } catch (const std::bad_alloc&) {
    RanOutOfMemory();
  }
}

std::vector<DOMDocProblem> CProblems::Take() {
  if (m_isOutOfMemory) throw std::bad_alloc();
  if (m_omitted != 0) m_list.push_back({0, 0, {}, "and " + std::to_string(m_omitted) + " more"});
  m_omitted = 0;
  return std::exchange(m_list, {});
}

}  // namespace xmlfile
