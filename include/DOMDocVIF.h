// An XML VIF as a document.
#pragma once

#include "TestUtilities/DOMDoc.h"
#include "VIFExport.h"

/// The host's XML document set up for VIFs. It validates against the format's two schemas, and its XPath expressions
/// know the prefixes
///
/// - `vif` for elements of the VIF itself,
/// - `opt` for optional content, so that `vif:*` never finds any,
/// - `xsi` for the XML Schema-instance namespace.
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
/// Use one object from one thread at a time; several threads may each use their own at once.
class VIF_API CDOMDocVIF : public CDOMDoc {
 public:
  /// An empty document.
  /// \throws _com_error when the document rejects the prefixes; std::bad_alloc
  CDOMDocVIF();

  CDOMDocVIF(const CDOMDocVIF&) = delete;
  CDOMDocVIF& operator=(const CDOMDocVIF&) = delete;
  ~CDOMDocVIF() override;
};
