// What MSXML 6 calls its classes and interfaces. Import libraries do not have all of them.
#pragma once

#include "msxml/MsXml.h"

namespace msxml6 {

extern const CLSID kDocumentClass;
extern const CLSID kSchemaCacheClass;
extern const IID kSchemaCollectionInterface;  // IXMLDOMSchemaCollection

}  // namespace msxml6
