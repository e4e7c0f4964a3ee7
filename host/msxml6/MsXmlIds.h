// Identifiers of MSXML 6's classes and interfaces. Import libraries lack some of them.
#pragma once

#include "msxml/MsXml.h"

namespace msxml6 {

extern const CLSID kDocumentClass;
extern const CLSID kSchemaCacheClass;
extern const IID kSchemaCollectionInterface;  // IXMLDOMSchemaCollection

}  // namespace msxml6
