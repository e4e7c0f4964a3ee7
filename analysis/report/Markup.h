// Writes HTML and SVG in which text is always text.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// An attribute of an element.
struct Attribute {
  std::string_view name;
  std::string value;
};

using Attributes = std::initializer_list<Attribute>;

/// HTML under construction. Texts and values of attributes may be any bytes: they are made printable and escaped, so
/// that they can be neither markup nor control characters. Names of elements and attributes are the program's own.
class CMarkup {
 public:
  /// Begins an element; what follows is in it until `End`.
  void Begin(std::string_view element, Attributes attributes = {});

  /// Ends the innermost element.
  void End();

  /// An element without content or end tag, such as an HTML `input`.
  void Void(std::string_view element, Attributes attributes = {});

  /// Text in the innermost element.
  void Text(std::string_view text);

  /// An element with only text in it.
  void Element(std::string_view element, std::string_view text) { Element(element, {}, text); }
  void Element(std::string_view element, Attributes attributes, std::string_view text);

  /// Markup that has been written already, or the text of a style sheet or script.
  void Append(std::string_view markup) { m_text += markup; }

  /// What has been written. All elements must have ended.
  std::string Take();

 private:
  void WriteTag(std::string_view element, Attributes attributes);

  std::string m_text;
  std::vector<std::string_view> m_open;  // the names of the elements around, which are the program's own literals
};

/// The text as HTML shows it, in an element or in the value of an attribute in double quotes.
std::string Escaped(std::string_view text);

}  // namespace vifanalysis
