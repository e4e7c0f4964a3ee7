#include "msxml6/SchemaCache.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDocReasons.h"
#include "msxml6/DocumentLoader.h"
#include "msxml6/MsXmlIds.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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

/// Empty when there is no such attribute.
std::wstring Attribute(IXMLDOMElement& element, const wchar_t* name) {
  CVariant value;
  const HRESULT result = element.getAttribute(CBstr(name).get(), value.Receive());
  return result == S_OK ? std::wstring(value.Text()) : std::wstring();
}

std::wstring TargetNamespace(IXMLDOMDocument2& schema) {
  DOMElementPtr root;
  RequireSuccess(schema.get_documentElement(root.Receive()), schema, IID_IXMLDOMDocument2);
  return Attribute(*root, L"targetNamespace");
}

std::wstring FileUrl(const std::filesystem::path& file) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  constexpr std::string_view plain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/:";
  std::string url = "file:///";
  for (const char c : Utf16ToUtf8(std::filesystem::absolute(file).generic_wstring())) {
    const auto byte = static_cast<unsigned char>(c);
    if (plain.find(c) != std::string_view::npos) {
      url += c;
    } else {
      url.append(1, '%').append(1, hex[byte / 16]).append(1, hex[byte % 16]);
    }
  }
  return Utf8ToUtf16(url);
}

/// An import of a namespace that another schema of the set describes.
struct Import {
  DOMElementPtr element;
  std::wstring url;  ///< of that schema's file
};

/// One schema of a set, ready to be compiled.
struct LoadedSchema {
  const SchemaSource* source;
  std::string file;  ///< its name
  DOMDocument2Ptr document;
  std::vector<Import> imports;
};

/// The other schema of the set that describes the imported namespace; null when this imports something else or nothing.
const SchemaSource* FindImported(IXMLDOMElement& reference, const SchemaSource& from,
                                 const std::vector<SchemaSource>& sources) {
  CBstr kind;
  RequireSuccess(reference.get_baseName(kind.Receive()), reference, IID_IXMLDOMNode);
  if (kind.View() != L"import") return nullptr;
  const std::string uri = Utf16ToUtf8(Attribute(reference, L"namespace"));
  const auto found = std::find_if(sources.begin(), sources.end(), [&](const SchemaSource& source) {
    return &source != &from && source.targetNamespace == uri;
  });
  return found != sources.end() ? &*found : nullptr;
}

/// Finds the imports of a schema. If the set has a schema for the imported namespace, that one is used, whatever
/// location the import gives.
/// \throws CZoDOMDocException when the schema has parts in files outside the set, which MSXML must not open
void FindImports(LoadedSchema& schema, const std::vector<SchemaSource>& sources) {
  constexpr const wchar_t* xpath =
      L"//*[namespace-uri()='http://www.w3.org/2001/XMLSchema' and "
      L"(local-name()='include' or local-name()='import' or local-name()='redefine')]";
  DOMNodeListPtr references;
  RequireSuccess(schema.document->selectNodes(CBstr(xpath).get(), references.Receive()), *schema.document,
                 IID_IXMLDOMDocument2);
  DOMNodePtr node;
  while (references->nextNode(node.Receive()) == S_OK) {
    DOMElementPtr element;
    RequireSuccess(node->QueryInterface(IID_IXMLDOMElement, reinterpret_cast<void**>(element.Receive())), *node,
                   IID_IXMLDOMNode);
    if (const SchemaSource* imported = FindImported(*element, *schema.source, sources); imported != nullptr) {
      schema.imports.push_back({std::move(element), FileUrl(imported->file)});
    } else if (!Attribute(*element, L"schemaLocation").empty()) {
      ThrowSchemaError(schema.file + ": it has parts in other files, which is not supported here");
    }
    node = nullptr;
  }
}

LoadedSchema LoadSchema(const SchemaSource& source, const std::vector<SchemaSource>& sources) {
  LoadedSchema schema{&source, Utf16ToUtf8(PathToLosslessWide(source.file)), MakeDocument(), {}};
  xmlfile::CProblems problems;
  if (!LoadFile(*schema.document, source.file, problems)) ThrowSchemaError(schema.file, problems.Take().front());
  RequireNamespace(schema.file, Utf16ToUtf8(TargetNamespace(*schema.document)), source.targetNamespace);
  FindImports(schema, sources);
  return schema;
}

/// The error that the failed call left, or a generic text if it left none.
std::string LastErrorText() {
  CComPointer<IErrorInfo> info;
  CBstr description;
  if (GetErrorInfo(0, info.Receive()) == S_OK && info) info->GetDescription(description.Receive());
  return description.View().empty() ? std::string("it is not valid as a schema") : Utf16ToUtf8(description.View());
}

bool TryToAdd(const LoadedSchema& schema, IXMLDOMSchemaCollection& schemas) {
  SetErrorInfo(0, nullptr);  // discards the errors of earlier calls
  const CBstr uri(Utf8ToUtf16(schema.source->targetNamespace));
  return SUCCEEDED(schemas.add(uri.get(), ObjectVariant(*schema.document)));
}

/// Adds a schema. Some versions of MSXML compile each schema on its own and need the location of what it imports;
/// others find only the schemas added before, by namespace. So this tries both.
bool Add(const LoadedSchema& schema, IXMLDOMSchemaCollection& schemas) {
  const CBstr name(L"schemaLocation");
  for (const Import& import : schema.imports) {
    const CVariant location{CBstr(import.url)};
    RequireSuccess(import.element->setAttribute(name.get(), location.get()), *import.element, IID_IXMLDOMElement);
  }
  if (TryToAdd(schema, schemas)) return true;
  if (schema.imports.empty()) return false;
  for (const Import& import : schema.imports) {
    RequireSuccess(import.element->removeAttribute(name.get()), *import.element, IID_IXMLDOMElement);
  }
  return TryToAdd(schema, schemas);
}

/// Adds all schemas, each after the ones that it imports.
void AddAll(std::vector<LoadedSchema> pending, IXMLDOMSchemaCollection& schemas) {
  while (!pending.empty()) {
    const std::size_t before = pending.size();
    std::erase_if(pending, [&](const LoadedSchema& schema) { return Add(schema, schemas); });
    if (pending.size() < before) continue;
    static_cast<void>(Add(pending.front(), schemas));  // so that the last error is this schema's
    ThrowSchemaError(pending.front().file + ": " + LastErrorText());
  }
}

SchemaCollectionPtr LoadSchemas(const std::vector<SchemaSource>& sources) {
  SchemaCollectionPtr schemas;
  void** place = reinterpret_cast<void**>(schemas.Receive());
  const HRESULT result =
      CoCreateInstance(kSchemaCacheClass, nullptr, CLSCTX_INPROC_SERVER, kSchemaCollectionInterface, place);
  if (FAILED(result)) _com_issue_errorex(result, nullptr, kSchemaCollectionInterface);
  std::vector<LoadedSchema> loaded;
  for (const SchemaSource& source : sources) loaded.push_back(LoadSchema(source, sources));
  AddAll(std::move(loaded), *schemas);
  return schemas;
}

}  // namespace

void Validate(IXMLDOMDocument2& document, const std::vector<SchemaSource>& sources, xmlfile::CProblems& problems) {
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
