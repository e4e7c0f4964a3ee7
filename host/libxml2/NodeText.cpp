#include "libxml2/NodeText.h"

#include "libxml2/XmlText.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace libxml2 {

namespace {

constexpr std::string_view kWhiteSpace = " \t\r\n";

bool IsWhiteSpace(std::string_view text) { return text.find_first_not_of(kWhiteSpace) == std::string_view::npos; }

/// The value of the element's own `xml:space`; none when the attribute is missing or has another value.
std::optional<bool> OwnPreserving(const xmlNode& element) {
  for (const xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
    if (attribute->ns == nullptr || View(attribute->ns->prefix) != "xml" || View(attribute->name) != "space") continue;
    const std::string_view value = AttributeValue(*attribute);
    if (value == "preserve") return true;
    if (value == "default") return false;
  }
  return std::nullopt;
}

bool IsPreserving(const xmlNode& element) {
  for (const xmlNode* node = &element; node->type == XML_ELEMENT_NODE; node = node->parent) {
    if (const std::optional<bool> own = OwnPreserving(*node)) return *own;
  }
  return false;
}

/// What is known about an element's text besides the text itself.
struct Joined {
  // The range from the start of the first CDATA section to the end of the last, which keeps its white space. Offsets in
  // the text.
  std::size_t cdataBegin = std::string::npos;
  std::size_t cdataEnd = 0;
  bool isPending = false;  // there is white space after the text, not yet appended
};

/// Joins the texts of a tree.
class CTextJoiner {
 public:
  /// Appends the texts of an element's descendants.
  Joined Append(const xmlNode& element, bool isPreserving) {
    Joined joined;
    const std::size_t begin = m_text.size();
    for (const xmlNode* child = element.children; child != nullptr; child = child->next) {
      if (!isPreserving && IsLeftOver(*child)) {
        joined.isPending = true;
      } else if (child->type == XML_ELEMENT_NODE) {
        AppendElement(*child, isPreserving, m_text.size() > begin, joined);
      } else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
        AppendText(*child, m_text.size() > begin, joined);
      }
    }
    return joined;
  }

  const std::string& Text() const { return m_text; }

 private:
  static bool IsLeftOver(const xmlNode& node) { return node.type == XML_TEXT_NODE && IsWhiteSpace(View(node.content)); }

  /// Whether only white space separates this CDATA section, which is not the first node, from another one before it.
  static bool FollowsCData(const xmlNode& section) {
    return IsLeftOver(*section.prev) && section.prev->prev != nullptr &&
           section.prev->prev->type == XML_CDATA_SECTION_NODE;
  }

  /// Appends an element's text, after a blank if one is pending and there is text before it. If the element has no
  /// text, the blank stays pending.
  void AppendElement(const xmlNode& element, bool isPreserving, bool hasBefore, Joined& joined) {
    const std::size_t before = m_text.size();
    if (joined.isPending && hasBefore) m_text += ' ';
    const std::size_t start = m_text.size();
    const Joined inner = Append(element, OwnPreserving(element).value_or(isPreserving));
    // The offsets do not count the blank, so that the last blank of a section inside an element may be removed; and a
    // section without text protects only what comes after it. This follows DOMDocument60 under Wine.
    if (inner.cdataBegin != std::string::npos) {
      joined.cdataBegin = std::min(joined.cdataBegin, inner.cdataBegin - start + before);
    }
    if (inner.cdataEnd > start) joined.cdataEnd = std::max(joined.cdataEnd, inner.cdataEnd - start + before);
    const bool hasText = m_text.size() > start;
    if (!hasText) m_text.resize(before);
    joined.isPending = inner.isPending || (joined.isPending && !hasText);
  }

  void AppendText(const xmlNode& node, bool hasBefore, Joined& joined) {
    const bool isCData = node.type == XML_CDATA_SECTION_NODE;
    // White space between two sections counts only after the second.
    const bool isHeldBack = isCData && joined.isPending && FollowsCData(node);
    if (joined.isPending && !isHeldBack && hasBefore) m_text += ' ';
    const std::size_t start = m_text.size();
    m_text += View(node.content);
    if (isCData) {
      joined.cdataBegin = std::min(joined.cdataBegin, start);
      joined.cdataEnd = m_text.size();
    }
    joined.isPending = isHeldBack;
  }

  std::string m_text;
};

/// The text without white space at its ends, except that of a CDATA section.
std::string Trim(const std::string& text, const Joined& joined) {
  const std::size_t textBegin = std::min(text.find_first_not_of(kWhiteSpace), text.size());
  const std::size_t textEnd = text.find_last_not_of(kWhiteSpace) + 1;  // 0 when there is none
  const std::size_t begin = std::min(textBegin, joined.cdataBegin);
  const std::size_t end = std::max({textEnd, joined.cdataEnd, begin});
  return text.substr(begin, end - begin);
}

}  // namespace

std::optional<std::string_view> PlainText(const xmlNode& element) {
  const xmlNode* text = element.children;
  if (text == nullptr) return std::string_view();
  if (text->next != nullptr || text->type != XML_TEXT_NODE) return std::nullopt;
  const std::string_view content = View(text->content);
  if (IsWhiteSpace(content.substr(0, 1)) || IsWhiteSpace(content.substr(content.size() - 1))) {
    return std::nullopt;
  }
  return content;
}

std::string NodeText(const xmlNode& element) {
  const bool isPreserving = IsPreserving(element);
  CTextJoiner joiner;
  const Joined joined = joiner.Append(element, isPreserving);
  return isPreserving ? joiner.Text() : Trim(joiner.Text(), joined);
}

}  // namespace libxml2
