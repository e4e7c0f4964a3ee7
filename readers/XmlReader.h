// Reads an XML VIF.
#pragma once

#include "FieldSink.h"
#include "VIFXmlCheck.h"
#include "VifSource.h"
#include "msxml/MsXml.h"

#include <functional>

class CDOMDocVIF;

namespace vif {

/// Receives what becomes of each element.
struct XmlObserver {
  /// Called with each field and the element it comes from, which for the header's "VIF_Producer" is `VIF_App`.
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
void ReadXmlVif(const CVifSource& source, FieldSink sink);

/// Loads and validates the file.
/// \throws as above
void LoadXmlVif(const CVifSource& source, CDOMDocVIF& document);

/// Reads an XML VIF, but keeps no field: it reports what becomes of each element, as `CheckXmlVif` describes.
void FollowXmlVif(const CVifSource& source, const VifElementObserver& observer);

/// Appends the fields of a validated document to the sink and counts its components.
/// \param observer may be null; its functions must not be empty
/// \throws as above
void ExtractFields(IXMLDOMElement& root, FieldSink sink, const XmlObserver* observer = nullptr);

}  // namespace vif
