#include "Picture.h"

#include "report/PicturePlane.h"

#include <algorithm>
#include <cmath>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace vifanalysis {

namespace {

/// Reads tags and texts as an XML parser would.
class CSvgReader {
 public:
  explicit CSvgReader(std::string_view xml) : m_xml(xml) {}

  std::vector<SvgElement> Read() {
    while (m_at < m_xml.size()) {
      if (m_xml[m_at] != '<') {
        ReadText();
      } else if (m_xml.substr(m_at, 2) == "</") {
        ReadEndTag();
      } else {
        ReadStartTag();
      }
    }
    Require(m_open.empty(), "an element does not end");
    return m_elements;
  }

 private:
  static void Require(bool isGood, const char* what) {
    if (!isGood) throw std::runtime_error(what);
  }

  void ReadText() {
    const std::size_t end = std::min(m_xml.find('<', m_at), m_xml.size());
    const std::string text = CheckedText(m_xml.substr(m_at, end - m_at));
    if (!m_open.empty()) {
      if (m_elements.back().name == m_open.back() && m_elements.back().text.empty()) m_elements.back().text = text;
    } else {
      Require(text.find_first_not_of('\n') == std::string::npos, "text outside of the elements");
    }
    m_at = end;
  }

  void ReadEndTag() {
    const std::size_t end = m_xml.find('>', m_at);
    Require(end != std::string_view::npos && !m_open.empty(), "an end tag without a start tag");
    Require(m_xml.substr(m_at + 2, end - m_at - 2) == m_open.back(), "another end tag is due");
    m_open.pop_back();
    m_at = end + 1;
  }

  void ReadStartTag() {
    static const std::regex attribute(R"re( ([a-zA-Z0-9-]+)="([^"<]*)")re");
    const std::size_t end = m_xml.find('>', m_at);
    Require(end != std::string_view::npos, "a start tag does not end");
    const std::string tag(m_xml.substr(m_at + 1, end - m_at - 1));
    const std::size_t nameEnd = std::min(tag.find(' '), tag.size());
    SvgElement element{tag.substr(0, nameEnd), {}, {}};
    Require(std::regex_match(element.name, std::regex("[a-z]+")), "no name of an element");
    std::size_t read = nameEnd;
    for (std::sregex_iterator found(tag.begin() + static_cast<std::ptrdiff_t>(nameEnd), tag.end(), attribute), none;
         found != none; ++found) {
      Require(found->prefix().length() == 0, "no attribute");
      Require(element.Get(found->str(1)).empty(), "an attribute twice");
      element.attributes.emplace_back(found->str(1), CheckedText(found->str(2)));
      read += static_cast<std::size_t>(found->length());
    }
    Require(read == tag.size(), "no attribute at the end");
    m_elements.push_back(element);
    m_open.push_back(element.name);
    m_at = end + 1;
  }

  static std::string CheckedText(std::string_view text) {
    static const std::regex good("([^&<>]|&(amp|lt|gt|quot);)*");
    const std::string copy(text);
    Require(std::regex_match(copy, good), "a character that is not escaped");
    return copy;
  }

  std::string_view m_xml;
  std::size_t m_at = 0;
  std::vector<SvgElement> m_elements;
  std::vector<std::string> m_open;
};

}  // namespace

std::string SvgElement::Get(std::string_view attribute) const {
  for (const auto& one : attributes) {
    if (one.first == attribute) return one.second;
  }
  return {};
}

double SvgElement::Number(std::string_view attribute) const { return std::stod(Get(attribute)); }

bool SvgElement::Is(std::string_view classes) const {
  const std::string own = " " + Get("class") + " ";
  std::istringstream words{std::string(classes)};
  for (std::string word; words >> word;) {
    if (own.find(" " + word + " ") == std::string::npos) return false;
  }
  return true;
}

CPicture::CPicture(const std::vector<PowerLayer>& layers, const std::string& title, const std::string& idPrefix) {
  Draw(layers, title, idPrefix);
}

CPicture::CPicture(const CPdoList& list, std::optional<std::uint64_t> rating) {
  const CPdoListView view(list);
  Draw({{"", view.Pdos(), rating}}, "Power", "p");
}

CPicture::CPicture(const CPdoList& first, const CPdoList& second) {
  const CPdoListView firstView(first);
  const CPdoListView secondView(second);
  Draw({{"old.xml", firstView.Pdos(), {}}, {"new.xml", secondView.Pdos(), {}}}, "Power", "p");
}

void CPicture::Draw(const std::vector<PowerLayer>& layers, const std::string& title, const std::string& idPrefix) {
  CMarkup page;
  m_count = DrawPower(page, layers, title, idPrefix);
  m_svg = page.Take();
  m_elements = ElementsOf(m_svg);
}

std::vector<SvgElement> CPicture::Of(std::string_view classes) const {
  std::vector<SvgElement> found;
  std::copy_if(m_elements.begin(), m_elements.end(), std::back_inserter(found),
               [&](const SvgElement& element) { return element.Is(classes); });
  return found;
}

std::vector<std::string> CPicture::Texts(std::string_view classes) const {
  std::vector<std::string> texts;
  for (const SvgElement& element : Of(classes)) {
    if (element.name == "text") texts.push_back(element.text);
  }
  return texts;
}

std::vector<Box> CPicture::TextBoxes() const {
  std::vector<Box> boxes;
  for (const SvgElement& element : m_elements) {
    if (element.name != "text") continue;
    static const std::regex entity("&[a-z]+;");
    const Tenths width = TextWidth(std::regex_replace(element.text, entity, "x"), kFontSize);
    const auto x = static_cast<Tenths>(std::lround(10 * element.Number("x")));
    const auto y = static_cast<Tenths>(std::lround(10 * element.Number("y")));
    const std::string anchor = element.Get("text-anchor");
    const Tenths left = anchor == "middle" ? x - width / 2 : anchor == "end" ? x - width : x;
    boxes.push_back({left, y - 100, left + width, y + 25});
  }
  return boxes;
}

double CPicture::Height() const {
  std::istringstream numbers(m_elements.front().Get("viewBox"));
  double height = 0;
  for (double number = 0; numbers >> number;) height = number;
  return height;
}

std::vector<SvgElement> ElementsOf(std::string_view xml) { return CSvgReader(xml).Read(); }

std::vector<std::pair<double, double>> Corners(const SvgElement& path) {
  std::string text = path.Get("d");
  std::replace_if(
      text.begin(), text.end(), [](char c) { return c == 'M' || c == 'L' || c == 'Z'; }, ' ');
  std::istringstream numbers(text);
  std::vector<std::pair<double, double>> corners;
  for (std::pair<double, double> corner; numbers >> corner.first >> corner.second;) corners.push_back(corner);
  return corners;
}

}  // namespace vifanalysis
