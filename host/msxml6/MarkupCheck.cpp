#include "msxml6/MarkupCheck.h"

#include "msxml6/PrefixScope.h"
#include "xmlfile/Limits.h"
#include "xmlfile/MarkupReader.h"
#include "xmlfile/Places.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace msxml6 {

namespace {

using xmlfile::Markup;
using xmlfile::NameAt;

constexpr std::string_view kBlanks = " \t\r\n";

class CMarkupCheck {
 public:
  CMarkupCheck(const xmlfile::FileText& file, std::size_t end) : m_file(file), m_text(file.Text().substr(0, end)) {}

  MarkupFindings Run() {
    RefuseForbiddenCharacters();
    xmlfile::CMarkupReader reader(m_text);
    Markup markup;
    while (!m_found.problem && reader.Next(markup)) Take(markup);
    if (!m_open.empty()) Mismatch(m_text.size(), m_open.back(), " does not end.");
    return std::move(m_found);
  }

 private:
  /// A parser that continues after an error may find tags where there are none, so such a file must not reach one.
  void RefuseForbiddenCharacters() {
    const auto isForbidden = [](char c) { return c > 0 && c < ' ' && c != '\t' && c != '\n' && c != '\r'; };
    const auto found = std::find_if(m_text.begin(), m_text.end(), isForbidden);
    if (found == m_text.end()) return;
    Refuse(static_cast<std::size_t>(found - m_text.begin()), {}, "There is a character that is not allowed.");
  }

  void Take(const Markup& markup) {
    switch (markup.kind) {
      case Markup::Kind::StartTag:
      case Markup::Kind::EmptyTag: TakeStartTag(markup); break;
      case Markup::Kind::EndTag: TakeEndTag(markup); break;
      case Markup::Kind::Instruction: TakeInstruction(markup); break;
      case Markup::Kind::Declaration: Refuse(markup.begin, {}, "There is a declaration that is not allowed."); break;
      case Markup::Kind::DocumentType:
        Refuse(markup.begin, NameAt(m_text, m_text.find_first_not_of(kBlanks, markup.begin + 9)),
               xmlfile::kDocumentTypeReason);
        break;
      default: break;
    }
  }

  void TakeStartTag(const Markup& tag) {
    const std::string_view name = NameAt(m_text, tag.begin + 1);
    m_open.push_back(name);
    m_scope.Enter(name);
    if (tag.isBroken) {
      return Refuse(tag.begin, name, "The value of an attribute does not end before the next '<'.");
    }
    const std::size_t begin = tag.begin + 1 + name.size();
    TakeAttributes(m_text.substr(begin, std::max(tag.end, begin) - begin));
    if (const std::string reason = m_scope.Check(); !reason.empty()) return Refuse(tag.begin, name, reason);
    if (tag.kind == Markup::Kind::EmptyTag) CloseElement();
  }

  void TakeAttributes(std::string_view rest) {
    for (;;) {
      const std::size_t quote = rest.find_first_of("\"'");
      if (quote == std::string_view::npos) return;
      const std::size_t close = std::min(rest.find(rest[quote], quote + 1), rest.size());
      const std::size_t nameBegin = rest.find_first_not_of(kBlanks);
      m_scope.TakeAttribute(NameAt(rest, nameBegin), rest.substr(quote + 1, close - quote - 1));
      rest.remove_prefix(std::min(close + 1, rest.size()));
    }
  }

  void TakeEndTag(const Markup& tag) {
    const std::string_view name = NameAt(m_text, tag.begin + 2);
    if (m_open.empty()) return Mismatch(tag.begin, name, " ends that has not begun.");
    if (m_open.back() != name) Mismatch(tag.begin, m_open.back(), " ends as '" + std::string(name) + "'.");
    CloseElement();
  }

  void TakeInstruction(const Markup& markup) {
    const std::string_view target = NameAt(m_text, markup.begin + 2);
    if (target.substr(0, target.find('?')).find(':') == std::string_view::npos) return;
    Refuse(markup.begin, {}, "The name of a processing instruction has a colon.");
  }

  void CloseElement() {
    m_open.pop_back();
    m_scope.Leave();
  }

  DOMDocProblem Problem(std::size_t at, std::string_view element, const std::string& reason) const {
    const xmlfile::Place place = xmlfile::CPlaceCounter(m_file).At(at);
    return {place.line, place.column, std::string(element), reason};
  }

  /// Records the first mismatch, if the element has a name.
  void Mismatch(std::size_t at, std::string_view element, const std::string& what) {
    if (m_found.mismatch || element.empty()) return;
    m_found.mismatch = Problem(at, element, "The element '" + std::string(element) + "'" + what);
  }

  void Refuse(std::size_t at, std::string_view element, const std::string& reason) {
    m_found.problem = Problem(at, element, reason);
  }

  const xmlfile::FileText& m_file;
  std::string_view m_text;
  MarkupFindings m_found;
  std::vector<std::string_view> m_open;
  CPrefixScope m_scope;
};

}  // namespace

MarkupFindings CheckMarkup(const xmlfile::FileText& file, std::size_t end) { return CMarkupCheck(file, end).Run(); }

}  // namespace msxml6
