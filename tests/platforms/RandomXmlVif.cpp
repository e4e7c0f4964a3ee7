#include "RandomXmlVif.h"

#include "Choice.h"
#include "field/ReferenceNames.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace platforms {

namespace {

constexpr std::string_view kLists[] = {"USB4RouterList", "PCIeEndpointList", "SrcPdoList",    "SnkPdoList",
                                       "SOPSVIDList",    "SOPSVIDModeList",  "CableSVIDList", "CableSVIDModeList"};
constexpr std::string_view kItems[] = {"Usb4Router", "PCIeEndpoint", "SrcPDO",    "SnkPDO",
                                       "SOPSVID",    "SOPSVIDMode",  "CableSVID", "CableSVIDMode"};
constexpr std::string_view kNumbers[] = {
    "0", "1", "100", "-1", "+7", "007", "4294967296", "18446744073709551615", "18446744073709551616", " 12 "};
constexpr std::string_view kNumeric[] = {"Src_PDO_Voltage", "Connector_Type", "USB4_Silicon_VID", "Num_Src_PDOs"};
constexpr std::string_view kBoolean[] = {"USB4_Dock", "Captive_Cable", "Unconstrained_Power",
                                         "Chunking_Implemented_SOP"};
constexpr std::string_view kBits[] = {"0", "1"};
constexpr std::string_view kBooleans[] = {"true", "false", "1", "0"};
constexpr std::string_view kTexts[] = {"",
                                       "5 V",
                                       "YES",
                                       "NO",
                                       "a b",
                                       "\u00E4",
                                       "x\u20ACy",
                                       "\U0001F600",
                                       "0x1A",
                                       "  at the ends  ",
                                       "in   the middle",
                                       "&lt;tag&gt;",
                                       "a&amp;b",
                                       "&#xE4;",
                                       "\"q\"",
                                       "<![CDATA[<raw>]]>",
                                       "one<!-- comment -->two",
                                       "one<?instruction?>two"};

/// A document under construction. Elements have one prefix or none.
class CWriter {
 public:
  explicit CWriter(std::mt19937_64& generator)
      : m_generator(generator),
        m_prefix(OneIn(2, generator) ? "vif:" : ""),
        m_lineEnd(OneIn(4, generator)   ? "\r\n"
                  : OneIn(5, generator) ? ""
                                        : "\n"),
        m_isSound(!OneIn(8, generator)) {}

  std::string Run() {
    m_text = "<" + m_prefix + "VIF xmlns" + (m_prefix.empty() ? "" : ":vif") +
             "='http://usb.org/VendorInfoFile.xsd' xmlns:opt='http://usb.org/VendorInfoFileOptionalContent.xsd'>";
    EndLine();
    Header();
    for (std::size_t i = Below(3); i > 0; --i) Group("Product", 1);
    for (std::size_t i = Below(4); i > 0; --i) Group("Component", 1);
    m_text += "</" + m_prefix + "VIF>";
    if (!m_isSound && OneIn(3, m_generator)) Damage();
    return std::move(m_text);
  }

 private:
  std::size_t Below(std::size_t bound) { return testsupport::RandomBelow(m_generator, bound); }
  bool Once(std::size_t in) { return OneIn(in, m_generator); }

  void EndLine() { m_text += m_lineEnd; }

  void Header() {
    if (!Once(3)) {
      Open("VIF_App");
      for (const char* name : {"Description", "Vendor", "Name", "Version"}) {
        if (Once(2)) Element(name, "", Text());
      }
      Close("VIF_App");
    }
    for (const char* name : {"VIF_Specification", "Vendor_Name", "Model_Part_Number", "Product_Revision", "TID"}) {
      if (!Once(4)) Element(name, "", Text());
    }
    if (!Once(3)) Element("VIF_Product_Type", Value(kNumbers), Text());
    if (!Once(3)) Element("Certification_Type", Value(kNumbers), Text());
  }

  void Group(std::string_view name, std::size_t depth) {
    Open(name);
    for (std::size_t i = Below(8); i > 0; --i) Field();
    if (Once(6)) OptionalContent();
    if (Once(10)) m_text += "<!-- <not:there/> -->";
    // Occasionally one level more than allowed.
    if (depth < (m_isSound ? 3U : 4U)) {
      for (std::size_t i = Below(3); i > 0; --i) List(depth + 1);
    }
    for (std::size_t i = Below(2); i > 0; --i) Field();
    Close(name);
  }

  void List(std::size_t depth) {
    const std::size_t kind = Below(std::size(kLists));
    // An unknown list ends the loading.
    const std::string_view list = !m_isSound && Once(10) ? "Strange_List" : kLists[kind];
    Open(list);
    for (std::size_t i = Below(4); i > 0; --i) Group(kItems[kind], depth);
    Close(list);
  }

  void Field() {
    if (!m_isSound && Once(30)) return Element(KnownName(), Value(kTexts), Text());
    switch (Below(6)) {
      case 0: return Element(OneOf(kBoolean, m_generator), Value(kBooleans), Text());
      case 1: return Element(OneOf(kNumeric, m_generator), Value(kNumbers), Text());
      case 2: return Element("Unknown_" + KnownName(), Value(kTexts), Text());
      case 3: return Element(KnownName(), "", Text());
      default: return Element(KnownName(), Value(kBits), Text());  // valid as a number and as a boolean
    }
  }

  /// The name of a known field, without its indexes.
  std::string KnownName() {
    std::string name = OneOf(reference::Spellings(OneOf(kReferenceFields, m_generator)), m_generator);
    std::erase(name, reference::kDigits);
    return name;
  }

  void OptionalContent() {
    m_text += "<opt:OptionalContent identifier='" + std::to_string(Below(9)) + "'>text<opt:Any a='1'/><" + m_prefix +
              "TID>inside</" + m_prefix + "TID></opt:OptionalContent>";
    EndLine();
  }

  std::string Text() { return std::string(OneOf(kTexts, m_generator)); }

  template <std::size_t size>
  std::string Value(const std::string_view (&values)[size]) {
    const std::string_view chosen = OneOf(values, m_generator);
    // Markup in a text would be an error in a value.
    std::string value(chosen.find('<') == std::string_view::npos ? chosen : "&lt;");
    std::replace(value.begin(), value.end(), '"', '\'');
    return " value=\"" + value + '"';
  }

  void Element(std::string_view name, const std::string& attributes, const std::string& text) {
    if (text.empty() && Once(2)) {
      m_text.append("<").append(m_prefix).append(name).append(attributes).append("/>");
    } else {
      m_text.append("<").append(m_prefix).append(name).append(attributes).append(">").append(text);
      m_text.append("</").append(m_prefix).append(name).append(">");
    }
    EndLine();
  }

  void Open(std::string_view name) {
    m_text.append("<").append(m_prefix).append(name).append(">");
    EndLine();
  }

  void Close(std::string_view name) {
    m_text.append("</").append(m_prefix).append(name).append(">");
    EndLine();
  }

  void Damage() {
    const std::size_t at = Below(m_text.size());
    switch (Below(4)) {
      case 0: m_text.erase(at, 1 + Below(20)); break;
      case 1: m_text[at] = '<'; break;
      case 2: m_text = std::string("<!DOCTYPE VIF>").append(m_text); break;
      default: m_text.resize(at);
    }
  }

  std::mt19937_64& m_generator;
  std::string m_prefix;
  std::string m_lineEnd;
  bool m_isSound;
  std::string m_text;
};

/// Adds a declaration to UTF-8 text and encodes the result.
std::string Encoded(const std::string& text, std::mt19937_64& generator) {
  const auto declared = [&](std::string_view name) {
    return "<?xml version='1.0' encoding='" + std::string(name) + "'?>\n" + text;
  };
  switch (testsupport::RandomBelow(generator, 6)) {
    case 0: return text;
    case 1: return std::string("\xEF\xBB\xBF").append(declared("utf-8"));
    case 2: return declared("utf8");
    case 3: {
      std::string ascii = declared("ISO-8859-1");
      for (char& c : ascii) {
        if (static_cast<unsigned char>(c) >= 0x80) c = '\xE4';
      }
      return ascii;
    }
    default: return declared("UTF-8");
  }
}

}  // namespace

std::string RandomXmlVif(std::mt19937_64& generator) { return Encoded(CWriter(generator).Run(), generator); }

}  // namespace platforms
