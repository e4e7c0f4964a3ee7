#include "xmlfile/Places.h"

#include "BaseUtilities/Encode.h"
#include "xmlfile/MarkupReader.h"

#include <algorithm>

namespace xmlfile {

Place CPlaceCounter::At(std::size_t offset) {
  std::string_view passed = m_text.substr(m_at, offset - m_at);
  m_at = offset;
  if (const std::size_t lineFeed = passed.rfind('\n'); lineFeed != std::string_view::npos) {
    m_place.line += static_cast<std::uint32_t>(std::count(passed.begin(), passed.end(), '\n'));
    m_place.column = 1;
    passed.remove_prefix(lineFeed + 1);
  }
  const auto isCharacter = [isUtf8 = m_isUtf8](char c) { return !isUtf8 || zotext::BeginsCharacter(c); };
  m_place.column += static_cast<std::uint32_t>(std::count_if(passed.begin(), passed.end(), isCharacter));
  return m_place;
}

std::vector<Tag> FindTags(const FileText& file) {
  std::vector<Tag> tags(1);
  std::vector<std::uint32_t> open = {Tag::kNone};
  CPlaceCounter places(file);
  CMarkupReader reader(file.Text());
  for (Markup markup; reader.Next(markup);) {
    if (markup.kind == Markup::Kind::EndTag && open.size() > 1) open.pop_back();
    if (markup.kind != Markup::Kind::StartTag && markup.kind != Markup::Kind::EmptyTag) continue;
    const auto number = static_cast<std::uint32_t>(tags.size());
    tags.push_back({places.At(markup.begin)});
    Tag& around = tags[open.back()];
    (around.firstChild == Tag::kNone ? around.firstChild : tags[around.lastChild].nextSibling) = number;
    around.lastChild = number;
    if (markup.kind == Markup::Kind::StartTag) open.push_back(number);
  }
  return tags;
}

}  // namespace xmlfile
