#include "msxml6/TagScan.h"

#include "msxml/Limits.h"
#include "msxml6/PrefixScope.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace msxml6 {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

class CScanner {
 public:
  CScanner(const FileText& file, msxml::CProblems& problems)
      : m_text(file.ascii), m_isUtf8(file.isUtf8), m_problems(problems) {}

  TagScan Run() {
    RefuseForbiddenCharacters();
    while (m_problems.IsEmpty() && m_at < m_text.size()) {
      const std::size_t tag = std::min(m_text.find('<', m_at), m_text.size());
      m_textLength += tag - m_at;
      MoveTo(tag);
      if (m_at < m_text.size()) TakeMarkup();
    }
    if (!m_open.empty()) Mismatch(m_open.back().name, " does not end.");
    return std::move(m_scan);
  }

 private:
  struct Open {
    std::uint32_t tag;
    std::string_view name;
  };

  bool IsAt(std::string_view markup) const { return m_text.substr(m_at).starts_with(markup); }

  void TakeMarkup() {
    if (IsAt("<!--")) {
      TakePiece("<!--", "-->");
    } else if (IsAt("<![CDATA[")) {
      constexpr std::size_t markup = std::string_view("<![CDATA[]]>").size();
      const std::size_t begin = m_at;
      TakePiece("<![CDATA[", "]]>");
      const std::size_t length = m_at - begin;
      m_textLength += length - std::min(length, markup);
    } else if (IsAt("<?")) {
      const std::string_view target = NameBehind(m_at + 2);
      if (target.substr(0, target.find('?')).find(':') != std::string_view::npos) {
        return Refuse({}, "The name of a processing instruction has a colon.");
      }
      TakePiece("<?", "?>");
    } else if (IsAt("<!DOCTYPE")) {
      Refuse(NameBehind(m_text.find_first_not_of(kBlanks, m_at + 9)), msxml::kDocumentTypeReason);
    } else if (IsAt("</")) {
      TakeEndTag();
    } else if (IsAt("<!")) {
      Refuse({}, "There is a declaration that is not allowed.");
    } else {
      TakeStartTag();
    }
  }

  /// A parser that goes on behind a mistake may find tags where there are none, so that it must not get so far.
  void RefuseForbiddenCharacters() {
    const auto isForbidden = [](char c) { return c > 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r'; };
    const auto found = std::find_if(m_text.begin(), m_text.end(), isForbidden);
    if (found == m_text.end()) return;
    MoveTo(static_cast<std::size_t>(found - m_text.begin()));
    Refuse({}, "There is a character that is not allowed.");
  }

  /// What cuts a text in pieces.
  void TakePiece(std::string_view begin, std::string_view end) {
    m_copied += m_textLength;
    if (m_copied > msxml::kMostCopied) {
      Refuse(m_open.empty() ? std::string_view() : m_open.back().name, msxml::kTooManyPiecesReason);
      return;
    }
    MoveBehind(end, m_at + begin.size());
  }

  void TakeStartTag() {
    const std::string_view name = NameBehind(m_at + 1);
    std::vector<Tag>& tags = m_scan.tags;
    const auto number = static_cast<std::uint32_t>(tags.size());
    const std::uint32_t parent = m_open.empty() ? Tag::kNone : m_open.back().tag;
    tags.push_back({m_line, m_column, Tag::kNone, Tag::kNone, Tag::kNone});
    Tag& around = tags[parent];
    (around.firstChild == Tag::kNone ? around.firstChild : tags[around.lastChild].nextSibling) = number;
    around.lastChild = number;
    m_open.push_back({number, name});
    m_scope.Enter(name);
    m_textLength = m_copied = 0;
    const std::size_t end = TakeAttributes(m_at + 1 + name.size());
    if (m_attributes > msxml::kMostAttributes) return Refuse(name, msxml::TooManyAttributesReason());
    if (m_open.size() > static_cast<std::size_t>(msxml::kGreatestDepth)) return Refuse(name, msxml::TooDeepReason());
    if (m_scope.Count() > msxml::kMostNamespaces) return Refuse(name, msxml::TooManyNamespacesReason());
    if (const std::string reason = m_scope.Check(); !reason.empty()) return Refuse(name, reason);
    const bool isEmpty = end > 0 && end < m_text.size() && m_text[end - 1] == '/';
    MoveTo(std::min(end + 1, m_text.size()));
    if (isEmpty) CloseElement();
  }

  void TakeEndTag() {
    const std::string_view name = NameBehind(m_at + 2);
    if (m_open.empty()) {
      Mismatch(name, " ends that has not begun.");
    } else {
      if (m_open.back().name != name) Mismatch(m_open.back().name, " ends as '" + std::string(name) + "'.");
      CloseElement();
    }
    MoveBehind(">", m_at);
  }

  /// Counts the attributes of a start tag, and looks at their prefixes.
  /// \return where its ">" is, or the end of the text; of no meaning when there are too many
  std::size_t TakeAttributes(std::size_t at) {
    m_attributes = 0;
    std::size_t nameBegin = at;
    std::string_view name;
    while ((at = m_text.find_first_of("=>\"'", at)) != std::string_view::npos && m_text[at] != '>') {
      if (m_text[at] == '=') {
        if (++m_attributes > msxml::kMostAttributes) break;
        name = NameBehind(std::min(m_text.find_first_not_of(kBlanks, nameBegin), at));
      } else {
        const std::size_t begin = at + 1;
        at = m_text.find(m_text[at], begin);
        const std::string_view value = m_text.substr(begin, at - begin);
        if (at == std::string_view::npos || value.find('<') != std::string_view::npos) {
          // A parser that goes on behind the mistake would take it for the next tag, and what follows for attributes.
          Refuse(m_open.back().name, "The value of an attribute does not end before the next '<'.");
          break;
        }
        m_scope.TakeAttribute(name, value);
      }
      nameBegin = ++at;
    }
    return std::min(at, m_text.size());
  }

  void CloseElement() {
    m_open.pop_back();
    m_scope.Leave();
    m_textLength = m_copied = 0;
  }

  std::string_view NameBehind(std::size_t begin) const {
    if (begin >= m_text.size()) return {};
    const std::size_t end = m_text.find_first_of(" \t\r\n=/>[<\"'", begin);
    return m_text.substr(begin, std::min(end, m_text.size()) - begin);
  }

  /// Remembers what is said first of an element with a name.
  void Mismatch(std::string_view element, const std::string& what) {
    if (m_scan.mismatch || element.empty()) return;
    m_scan.mismatch = {m_line, m_column, std::string(element), "The element '" + std::string(element) + "'" + what};
  }

  void Refuse(std::string_view element, const std::string& reason) {
    m_problems.Add(m_line, m_column, element, reason);
  }

  void MoveBehind(std::string_view end, std::size_t from) {
    const std::size_t found = m_text.find(end, std::min(from, m_text.size()));
    MoveTo(found != std::string_view::npos ? found + end.size() : m_text.size());
  }

  void MoveTo(std::size_t at) {
    for (; m_at < at; ++m_at) {
      const auto c = static_cast<unsigned char>(m_text[m_at]);
      if (c == '\n') {
        ++m_line;
        m_column = 1;
      } else if (!m_isUtf8 || (c & 0xC0) != 0x80) {
        ++m_column;
      }
    }
  }

  std::string_view m_text;
  bool m_isUtf8;
  msxml::CProblems& m_problems;
  TagScan m_scan{std::vector<Tag>(1), std::nullopt};
  std::vector<Open> m_open;
  CPrefixScope m_scope;
  std::size_t m_at = 0;
  std::uint32_t m_line = 1;
  std::uint32_t m_column = 1;
  std::size_t m_attributes = 0;    // of the last start tag
  std::uint64_t m_textLength = 0;  // since the last tag
  std::uint64_t m_copied = 0;      // of that text, for the pieces that it is in
};

}  // namespace

TagScan ScanTags(const FileText& file, msxml::CProblems& problems) {
  if (const std::size_t nul = file.ascii.find('\0'); nul != std::string::npos) {
    const auto lines = std::count(file.ascii.begin(), file.ascii.begin() + static_cast<std::ptrdiff_t>(nul), '\n');
    problems.Add(static_cast<std::size_t>(lines) + 1, 0, {}, msxml::kNulReason);
    return {};
  }
  return CScanner(file, problems).Run();
}

}  // namespace msxml6
