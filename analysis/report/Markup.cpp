#include "report/Markup.h"

#include <analysis/Text.h>

#include <cassert>
#include <utility>

namespace vifanalysis {

std::string Escaped(std::string_view text) {
  const std::string printable = Printable(text);
  std::string escaped;
  escaped.reserve(printable.size());
  for (const char c : printable) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

void CMarkup::WriteTag(std::string_view element, Attributes attributes) {
  m_text += '<';
  m_text += element;
  for (const Attribute& attribute : attributes) {
    m_text += ' ';
    m_text += attribute.name;
    m_text += "=\"";
    m_text += Escaped(attribute.value);
    m_text += '"';
  }
  m_text += '>';
}

void CMarkup::Begin(std::string_view element, Attributes attributes) {
  WriteTag(element, attributes);
  m_open.push_back(element);
}

void CMarkup::End() {
  assert(!m_open.empty());
  m_text += "</";
  m_text += m_open.back();
  m_text += ">";
  m_open.pop_back();
}

void CMarkup::Void(std::string_view element, Attributes attributes) { WriteTag(element, attributes); }

void CMarkup::Text(std::string_view text) { m_text += Escaped(text); }

void CMarkup::Element(std::string_view element, Attributes attributes, std::string_view text) {
  Begin(element, attributes);
  Text(text);
  End();
}

std::string CMarkup::Take() {
  assert(m_open.empty());
  return std::move(m_text);
}

}  // namespace vifanalysis
