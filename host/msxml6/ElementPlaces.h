// The places of elements of an MSXML document in the file.
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

/// Finds the start tags of a document's elements. Asking for elements in document order takes no more time than the
/// file's size justifies.
class CElementPlaces {
 public:
  /// \param document must outlive this object, with its content
  /// \param tags of the file that the content was loaded from
  CElementPlaces(IXMLDOMDocument2& document, std::vector<Tag> tags);

  /// The start tag of an element; for an attribute, that of its element. Null for anything else.
  /// \throws _com_error
  const Tag* Find(IXMLDOMNode& node);

  /// The path of an element from the root, as `CDOMDoc::PathOf` returns it; empty for anything else.
  /// \throws _com_error
  std::string PathOf(IXMLDOMNode& node);

 private:
  struct Place {
    DOMElementPtr element;
    std::uint32_t tag;
  };

  /// Makes `m_way` the way to the element. Returns false when it is not in the document.
  bool GoTo(const DOMElementPtr& element);
  /// The same for the part of the way from that depth on, when the part before already leads to the element.
  bool GoTo(std::size_t depth, IXMLDOMElement& element);
  Place FirstOf(std::size_t depth) const;
  std::optional<Place> Search(Place from, CElementMark& mark) const;
  void NumberNamesakes(std::size_t depth);

  IXMLDOMDocument2& m_document;
  std::vector<Tag> m_tags;
  std::vector<Place> m_way;  // from the root to the element found last
  std::vector<std::uint32_t>
      m_numbers;                   // the number of each tag's element among its namesakes, from 1; 0 if it has none
  std::vector<bool> m_hasNumbers;  // for each tag, whether the children of its element have been numbered
};

}  // namespace msxml6
