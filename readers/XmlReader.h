// Reads an XML VIF.
#pragma once

#include "FieldSink.h"
#include "msxml/MsXml.h"

#include <filesystem>
#include <functional>

class CDOMDocVIF;

namespace vif {

/// Receives what becomes of each element.
struct XmlObserver {
  /// Called with each field and the element it was made from, which for the header's "VIF_Producer" is `VIF_App`.
  std::function<void(IXMLDOMNode& element, const CVIFField& field)> onField;

  /// Called with a group that cannot be read, just before the extraction throws.
  std::function<void(IXMLDOMNode& group)> onFailure;
};

/// Appends the fields of an XML VIF to the sink and counts its components.
///
/// After a failure, either nothing has been appended, or the header, the product and the components' fields up to the
/// failure have; components that were begun are counted.
/// \throws CVIFInvalidFile "<path> is not a valid Vendor Info File."
///   CZoRunTimeException "Invalid node depth: groupLists should only be nested 3 levels deep."
///   CZoDOMDocException "Unexpected list element name: <name>", "ERROR:  Couldn't get node name.\r\n", or
///     "Couldn't load the schema <file>: <reason>"
///   _com_error when a call on the document fails
void ReadXmlVif(const std::filesystem::path& path, FieldSink sink);

/// Loads and validates the file.
/// \throws as above
void LoadXmlVif(const std::filesystem::path& path, CDOMDocVIF& document);

/// Appends the fields of a validated document to the sink and counts its components.
/// \param observer may be null; its functions must not be empty
/// \throws as above
void ExtractFields(IXMLDOMElement& root, FieldSink sink, const XmlObserver* observer = nullptr);

}  // namespace vif
