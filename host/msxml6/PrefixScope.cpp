#include "msxml6/PrefixScope.h"

#include <algorithm>

namespace msxml6 {

namespace {

constexpr std::string_view kXmlNamespace = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view kXmlnsNamespace = "http://www.w3.org/2000/xmlns/";

std::string Quoted(std::string_view text) { return std::string(1, '\'').append(text).append(1, '\''); }

/// What is wrong with a declaration; empty when nothing is.
std::string CheckDeclaration(std::string_view prefix, std::string_view uri) {
  if (prefix.find(':') != std::string_view::npos) return Quoted(prefix) + " is no prefix.";
  if (prefix == "xmlns" || uri == kXmlnsNamespace) return "The prefix 'xmlns' cannot be declared.";
  if ((prefix == "xml") != (uri == kXmlNamespace)) return "The prefix 'xml' stands for one namespace only.";
  if (!prefix.empty() && uri.empty()) return "The prefix " + Quoted(prefix) + " is declared for no namespace.";
  return {};
}

}  // namespace

void CPrefixScope::Enter(std::string_view name) {
  m_before.push_back(m_declared.size());
  m_names.assign(1, name);
}

void CPrefixScope::TakeAttribute(std::string_view name, std::string_view value) {
  constexpr std::string_view declaration = "xmlns:";
  if (name == "xmlns") {
    m_declared.push_back({{}, value});
  } else if (name.starts_with(declaration) && name.size() > declaration.size()) {
    m_declared.push_back({name.substr(declaration.size()), value});
  } else if (name.find(':') != std::string_view::npos) {
    m_names.push_back(name);
  }
}

std::string CPrefixScope::Check() const {
  for (std::size_t i = m_before.back(); i < m_declared.size(); ++i) {
    if (std::string reason = CheckDeclaration(m_declared[i].prefix, m_declared[i].uri); !reason.empty()) return reason;
  }
  for (const std::string_view name : m_names) {
    if (std::string reason = CheckName(name); !reason.empty()) return reason;
  }
  return {};
}

void CPrefixScope::Leave() {
  m_declared.resize(m_before.back());
  m_before.pop_back();
}

std::string CPrefixScope::CheckName(std::string_view name) const {
  const std::size_t colon = name.find(':');
  if (colon == std::string_view::npos) return {};
  const std::string_view prefix = name.substr(0, colon);
  const std::string_view local = name.substr(colon + 1);
  if (prefix.empty() || local.empty() || local.find(':') != std::string_view::npos) {
    return Quoted(name) + " is no name with a prefix.";
  }
  if (!IsDeclared(prefix)) return "The prefix of " + Quoted(name) + " is not declared.";
  return {};
}

bool CPrefixScope::IsDeclared(std::string_view prefix) const {
  return prefix == "xml" || std::any_of(m_declared.rbegin(), m_declared.rend(),
                                        [&](const Declaration& declaration) { return declaration.prefix == prefix; });
}

}  // namespace msxml6
