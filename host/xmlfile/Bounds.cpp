#include "xmlfile/Bounds.h"

#include "xmlfile/Limits.h"
#include "xmlfile/MarkupReader.h"
#include "xmlfile/Places.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xmlfile {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

class CBoundsCheck {
 public:
  explicit CBoundsCheck(const FileText& file) : m_file(file), m_text(file.Text()) { m_open.reserve(kGreatestDepth); }

  Bounds Run() {
    m_bounds.end = std::min(m_text.find('\0'), m_text.size());
    CMarkupReader reader(m_text.substr(0, m_bounds.end));
    Markup markup;
    std::size_t before = 0;
    while (!m_bounds.problem && reader.Next(markup) && !markup.isBroken) {
      m_textLength += markup.begin - before;
      before = markup.end;
      Take(markup);
    }
    if (!m_bounds.problem && m_bounds.end < m_text.size()) RefuseNul();
    return std::move(m_bounds);
  }

 private:
  struct Open {
    std::size_t begin;
    std::size_t namespaces;  // that it declares
  };

  void Take(const Markup& markup) {
    switch (markup.kind) {
      case Markup::Kind::StartTag:
      case Markup::Kind::EmptyTag: TakeStartTag(markup); break;
      case Markup::Kind::EndTag: CloseElement(); break;
      case Markup::Kind::Comment:
      case Markup::Kind::Instruction: TakePiece(markup, 0); break;
      case Markup::Kind::CData: {
        constexpr std::size_t around = std::string_view("<![CDATA[]]>").size();
        const std::size_t length = markup.end - markup.begin;
        TakePiece(markup, length - std::min(length, around));
        break;
      }
      case Markup::Kind::DocumentType:
        if (m_bounds.tagCount != 0) break;  // it may only come before the root; anywhere else it is an error
        Refuse(markup.begin, NameAt(m_text, m_text.find_first_not_of(kBlanks, markup.begin + 9)), kDocumentTypeReason);
        break;
      case Markup::Kind::Declaration: break;
    }
  }

  void TakeStartTag(const Markup& tag) {
    m_open.push_back({tag.begin, tag.namespaces});
    m_namespaces += tag.namespaces;
    m_textLength = m_copied = 0;
    if (tag.attributes > kMostAttributes) return RefuseTag(tag, TooManyAttributesReason());
    if (m_open.size() > static_cast<std::size_t>(kGreatestDepth)) return RefuseTag(tag, TooDeepReason());
    if (m_namespaces > kMostNamespaces) return RefuseTag(tag, TooManyNamespacesReason());
    ++m_bounds.tagCount;
    if (tag.kind == Markup::Kind::EmptyTag) CloseElement();
  }

  void CloseElement() {
    m_textLength = m_copied = 0;
    if (m_open.empty()) return;
    m_namespaces -= m_open.back().namespaces;
    m_open.pop_back();
  }

  /// Takes markup that splits a text into pieces.
  void TakePiece(const Markup& markup, std::size_t textLength) {
    m_copied += m_textLength;
    m_textLength += textLength;
    if (m_copied <= kMostCopied) return;
    const std::string_view element = m_open.empty() ? std::string_view() : NameAt(m_text, m_open.back().begin + 1);
    Refuse(markup.begin, element, kTooManyPiecesReason);
  }

  void RefuseTag(const Markup& tag, const std::string& reason) {
    Refuse(tag.begin, NameAt(m_text, tag.begin + 1), reason);
  }

  /// Without a column, because a NUL is rarely a character of a line.
  void RefuseNul() {
    const std::size_t line = CPlaceCounter(m_file).At(m_bounds.end).line;
    m_bounds.problem = DOMDocProblem{line, 0, {}, kNulReason};
  }

  void Refuse(std::size_t begin, std::string_view element, const std::string& reason) {
    const Place place = CPlaceCounter(m_file).At(begin);
    m_bounds.problem = DOMDocProblem{place.line, place.column, std::string(element), reason};
    m_bounds.end = begin;
  }

  const FileText& m_file;
  std::string_view m_text;
  Bounds m_bounds;
  std::vector<Open> m_open;
  std::size_t m_namespaces = 0;    // in scope
  std::uint64_t m_textLength = 0;  // since the last tag
  std::uint64_t m_copied = 0;      // bytes copied of that text, for its pieces
};

}  // namespace

Bounds CheckBounds(const FileText& file) { return CBoundsCheck(file).Run(); }

}  // namespace xmlfile
