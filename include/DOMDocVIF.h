// An XML VIF as a document.
#pragma once

#include "TestUtilities/DOMDoc.h"
#include "VIFExport.h"

/// The host's XML document, made for VIFs: it validates against the two schemas of the format and understands XPath
/// expressions with the prefixes
///
/// - `vif`, elements of the VIF itself,
/// - `opt`, optional content, so that `vif:*` never finds any of it,
/// - `xsi`, the XML Schema-instance namespace.
///
/// `ValidateDoc`, `GetRootElement`, `Problems` and the rest are the base's. The root element of a valid document is
/// `VIF`. Example:
///
///     CDOMDocVIF document;
///     if (!document.ValidateDoc("dock.xml")) ...      // document.Problems() says why
///     DOMElementPtr root = document.GetRootElement();
///     DOMNodePtr name;
///     root->selectSingleNode(CBstr(L"vif:Vendor_Name").get(), name.Receive());
///
/// One object is for one thread at a time; threads may use objects of their own at once.
class VIF_API CDOMDocVIF : public CDOMDoc {
 public:
  /// An empty document.
  /// \throws _com_error when the document does not take the prefixes, and std::bad_alloc
  CDOMDocVIF();

  CDOMDocVIF(const CDOMDocVIF&) = delete;
  CDOMDocVIF& operator=(const CDOMDocVIF&) = delete;
  ~CDOMDocVIF() override;
};
