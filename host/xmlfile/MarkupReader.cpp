#include "xmlfile/MarkupReader.h"

#include <algorithm>

namespace xmlfile {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

/// The characters that matter inside a start tag.
struct Marks {
  bool of[256] = {};
};
constexpr Marks kMarks = [] {
  Marks marks;
  for (const char c : std::string_view(" \t\r\n=\"'<>")) marks.of[static_cast<unsigned char>(c)] = true;
  return marks;
}();

/// The offset of the next character that matters; the text's size if there is none. Half of most files is start tags,
/// so every character counts.
std::size_t SkipDull(std::string_view text, std::size_t at) {
  const char* const begin = text.data();
  const char* const end = begin + text.size();
  const char* next = begin + std::min(at, text.size());
  while (next != end && !kMarks.of[static_cast<unsigned char>(*next)]) ++next;
  return static_cast<std::size_t>(next - begin);
}

}  // namespace

std::string_view NameAt(std::string_view text, std::size_t begin) {
  if (begin >= text.size()) return {};
  const std::size_t end = text.find_first_of(" \t\r\n=/>[<\"'", begin);
  return text.substr(begin, std::min(end, text.size()) - begin);
}

bool CMarkupReader::Next(Markup& markup) {
  m_at = std::min(m_text.find('<', m_at), m_text.size());
  if (m_at == m_text.size()) return false;
  markup = {};
  markup.begin = m_at;
  const char next = m_at + 1 < m_text.size() ? m_text[m_at + 1] : '\0';
  if (next == '/') {
    markup.kind = Markup::Kind::EndTag;
    markup.end = std::min(m_text.find('>', m_at), m_text.size() - 1) + 1;
  } else if (next == '!' || next == '?') {
    ReadOther(markup);
  } else {
    ReadStartTag(markup);
  }
  m_at = markup.end;
  return true;
}

std::size_t CMarkupReader::EndOf(std::string_view closing, std::size_t from) const {
  const std::size_t found = m_text.find(closing, std::min(from, m_text.size()));
  return found != std::string_view::npos ? found + closing.size() : m_text.size();
}

void CMarkupReader::ReadOther(Markup& markup) const {
  if (IsAt("<!--")) {
    markup.kind = Markup::Kind::Comment;
    markup.end = EndOf("-->", m_at + 4);
  } else if (IsAt("<![CDATA[")) {
    markup.kind = Markup::Kind::CData;
    markup.end = EndOf("]]>", m_at + 9);
  } else if (IsAt("<?")) {
    markup.kind = Markup::Kind::Instruction;
    markup.end = EndOf("?>", m_at + 2);
  } else {
    markup.kind = IsAt("<!DOCTYPE") ? Markup::Kind::DocumentType : Markup::Kind::Declaration;
    markup.end = EndOf(">", m_at);
  }
}

void CMarkupReader::ReadStartTag(Markup& markup) const {
  constexpr std::string_view declaration = "xmlns";
  markup.kind = Markup::Kind::StartTag;
  markup.end = m_text.size();
  std::size_t nameBegin = m_at + 1;
  for (std::size_t at = SkipDull(m_text, m_at + 1); at < m_text.size(); at = SkipDull(m_text, at + 1)) {
    const char c = m_text[at];
    if (c == '>') {
      if (m_text[at - 1] == '/') markup.kind = Markup::Kind::EmptyTag;
      markup.end = at + 1;
      return;
    }
    if (c == '<') {
      markup.isBroken = true;
      markup.end = at;
      return;
    }
    if (c == '=') {
      ++markup.attributes;
      if (m_text[nameBegin] == declaration.front() && m_text.substr(nameBegin).starts_with(declaration))
        ++markup.namespaces;
    } else if (c == '"' || c == '\'') {
      const std::size_t close = m_text.find(c, at + 1);
      if (m_text.substr(at, close - at).find('<') != std::string_view::npos) {
        markup.isBroken = true;
        markup.end = std::min(m_text.find('<', at), m_text.size());
        return;
      }
      if (close == std::string_view::npos) return;
      at = close;
      nameBegin = close + 1;
    } else {
      // There may be blanks before a name and before its "=".
      while (at + 1 < m_text.size() && IsBlank(m_text[at + 1])) ++at;
      if (at + 1 < m_text.size() && m_text[at + 1] != '=') nameBegin = at + 1;
    }
  }
}

}  // namespace xmlfile
