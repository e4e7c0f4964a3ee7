#include "msxml6/SchemaCache.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDocReasons.h"
#include "msxml6/DocumentLoader.h"
#include "msxml6/MsXmlIds.h"

#include <optional>
#include <string_view>

namespace msxml6 {

namespace {

using SchemaCollectionPtr = CComPointer<IXMLDOMSchemaCollection>;

/// An object as an argument; borrowed.
VARIANT ObjectVariant(IDispatch& object) {
  VARIANT variant = {};
  variant.vt = VT_DISPATCH;
  variant.pdispVal = &object;
  return variant;
}

std::wstring TargetNamespace(IXMLDOMDocument2& schema) {
  CComPointer<IXMLDOMElement> root;
  RequireSuccess(schema.get_documentElement(root.Receive()), schema, IID_IXMLDOMDocument2);
  CVariant value;
  const HRESULT result = root->getAttribute(CBstr(L"targetNamespace").get(), value.Receive());
  return result == S_OK ? std::wstring(value.Text()) : std::wstring();
}

/// Whether it has parts in other files. They cannot be found from a schema that MSXML did not read from a file itself,
/// and that it could have read from anywhere.
bool RefersToFiles(IXMLDOMDocument2& schema) {
  constexpr const wchar_t* xpath =
      L"//*[namespace-uri()='http://www.w3.org/2001/XMLSchema' and @schemaLocation and "
      L"(local-name()='include' or local-name()='import' or local-name()='redefine')]";
  DOMNodePtr found;
  RequireSuccess(schema.selectSingleNode(CBstr(xpath).get(), found.Receive()), schema, IID_IXMLDOMDocument2);
  return static_cast<bool>(found);
}

DOMDocument2Ptr LoadSchema(const SchemaSource& source) {
  DOMDocument2Ptr schema = MakeDocument();
  msxml::CProblems problems;
  const std::string file = Utf16ToUtf8(PathToLosslessWide(source.file));
  if (!LoadFile(*schema, source.file, problems)) ThrowSchemaError(file, problems.Take().front());
  RequireNamespace(file, Utf16ToUtf8(TargetNamespace(*schema)), Utf16ToUtf8(source.targetNamespace));
  if (RefersToFiles(*schema)) ThrowSchemaError(file + ": it has parts in other files, which is not supported here");
  return schema;
}

/// What the failed call left behind; a text of its own when it is nothing.
std::string LastErrorText() {
  CComPointer<IErrorInfo> info;
  CBstr description;
  if (GetErrorInfo(0, info.Receive()) == S_OK && info) info->GetDescription(description.Receive());
  return description.View().empty() ? std::string("it is not valid as a schema") : Utf16ToUtf8(description.View());
}

SchemaCollectionPtr LoadSchemas(const std::vector<SchemaSource>& sources) {
  SchemaCollectionPtr schemas;
  void** place = reinterpret_cast<void**>(schemas.Receive());
  const HRESULT result =
      CoCreateInstance(kSchemaCacheClass, nullptr, CLSCTX_INPROC_SERVER, kSchemaCollectionInterface, place);
  if (FAILED(result)) _com_issue_errorex(result, nullptr, kSchemaCollectionInterface);
  for (const SchemaSource& source : sources) {
    const DOMDocument2Ptr schema = LoadSchema(source);
    const CBstr uri(source.targetNamespace);
    SetErrorInfo(0, nullptr);  // what failed before is of no interest
    if (FAILED(schemas->add(uri.get(), ObjectVariant(*schema.GetInterfacePtr())))) {
      ThrowSchemaError(Utf16ToUtf8(PathToLosslessWide(source.file)) + ": " + LastErrorText());
    }
  }
  return schemas;
}

}  // namespace

void Validate(IXMLDOMDocument2& document, const std::vector<SchemaSource>& sources, msxml::CProblems& problems) {
  const SchemaCollectionPtr schemas = LoadSchemas(sources);
  RequireSuccess(document.putref_schemas(ObjectVariant(*schemas)), document, IID_IXMLDOMDocument2);
  CComPointer<IXMLDOMParseError> error;
  RequireSuccess(document.validate(error.Receive()), document, IID_IXMLDOMDocument2);
  const std::optional<DOMDocProblem> problem = ProblemOf(*error);
  if (!problem) return;
  problems.Add(problem->line, problem->column, {},
               problem->reason.empty() ? "The document does not fit its schema." : problem->reason);
}

}  // namespace msxml6
