#include "DOMDocVIF.h"

#include <string>
#include <utility>
#include <vector>

namespace {

// The target namespaces of the two schemas.
constexpr const wchar_t* kVifNamespace = VENDORINFOFILE_NAMESPACE;
constexpr const wchar_t* kOptionalNamespace = VENDORINFOFILE_OPTIONAL_NAMESPACE;

std::vector<std::pair<std::wstring, std::wstring>> Schemas() {
  return {{CDOMDoc::MakeFullSchemaPath(L"VendorInfoFileOptionalContent.xsd"), kOptionalNamespace},
          {CDOMDoc::MakeFullSchemaPath(L"VendorInfoFile.xsd"), kVifNamespace}};
}

std::wstring Declaration(const wchar_t* prefix, const wchar_t* uri) {
  return std::wstring(L"xmlns:") + prefix + L"='" + uri + L"'";
}

/// Built once and shared by all documents.
const std::wstring& SelectionNamespaces() {
  static const std::wstring vif = Declaration(L"vif", kVifNamespace);
  static const std::wstring opt = Declaration(L"opt", kOptionalNamespace);
  static const std::wstring all = vif + L" " + opt + L" xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";
  return all;
}

}  // namespace

CDOMDocVIF::CDOMDocVIF() : CDOMDoc(Schemas()) {
  RequireRoot(kVifNamespace, L"VIF");
  const CBstr name(L"SelectionNamespaces");
  const CVariant value{CBstr(SelectionNamespaces())};
  RequireSuccess(Document().setProperty(name.get(), value.get()), Document(), IID_IXMLDOMDocument2);
}

CDOMDocVIF::~CDOMDocVIF() = default;
