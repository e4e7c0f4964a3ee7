// Where elements of an MSXML document stand.
#pragma once

#include "msxml/MsXml.h"
#include "xmlfile/Places.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace msxml6 {

using xmlfile::Tag;

class CElementMark;

/// Finds the start tags of a document's elements. To ask for elements in their order takes no more time than the file's
/// size justifies.
class CElementPlaces {
 public:
  /// \param document must outlive this, with its content
  /// \param tags of the file that the content is from
  CElementPlaces(IXMLDOMDocument2& document, std::vector<Tag> tags);

  /// The start tag of an element; of an attribute, that of its element. Null for anything else.
  /// \throws _com_error
  const Tag* Find(IXMLDOMNode& node);

  /// The way to an element from the root, as `CDOMDoc::PathOf` gives it; empty for anything else.
  /// \throws _com_error
  std::string PathOf(IXMLDOMNode& node);

 private:
  struct Place {
    DOMElementPtr element;
    std::uint32_t tag;
  };

  /// Makes `m_way` the way to the element. False when it is none of the document.
  bool GoTo(const DOMElementPtr& element);
  /// The same for the part of the way that begins at that depth, where the part before is the element's already.
  bool GoTo(std::size_t depth, IXMLDOMElement& element);
  Place FirstOf(std::size_t depth) const;
  std::optional<Place> Search(Place from, CElementMark& mark) const;
  void NumberNamesakes(std::size_t depth);

  IXMLDOMDocument2& m_document;
  std::vector<Tag> m_tags;
  std::vector<Place> m_way;              // from the root to the element that was found last
  std::vector<std::uint32_t> m_numbers;  // of each tag's element among its namesakes, from 1; 0 when it has none
  std::vector<bool> m_hasNumbers;        // for each tag, whether the elements in its element have their numbers
};

}  // namespace msxml6
