#include "libxml2/SchemaSet.h"

#include "TestUtilities/DOMDocReasons.h"
#include "libxml2/ElementPlaces.h"
#include "libxml2/Errors.h"
#include "libxml2/XmlParser.h"
#include "libxml2/XmlText.h"
#include "xmlfile/EmbeddedSchemas.h"

#include <libxml/uri.h>

#include <algorithm>
#include <map>
#include <mutex>
#include <new>
#include <optional>
#include <string_view>
#include <utility>

namespace libxml2 {

namespace {

using ParserPointer = std::unique_ptr<xmlSchemaParserCtxt, Freeing<xmlSchemaFreeParserCtxt>>;
using ValidatorPointer = std::unique_ptr<xmlSchemaValidCtxt, Freeing<xmlSchemaFreeValidCtxt>>;

std::string EscapeAttribute(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '"': escaped += "&quot;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

/// An attribute with a namespace; empty if there is no namespace.
std::string NamespaceAttribute(std::string_view name, std::string_view uri) {
  if (uri.empty()) return {};
  return std::string(" ").append(name).append("=\"").append(EscapeAttribute(uri)) + '"';
}

/// The last of the schemas whose namespace no other one shares; null if there is none.
const SchemaSource* FindMain(const std::vector<SchemaSource>& sources) {
  const auto isOnly = [&](const SchemaSource& source) {
    return std::count_if(sources.begin(), sources.end(), [&](const SchemaSource& other) {
             return other.targetNamespace == source.targetNamespace;
           }) == 1;
  };
  const auto found = std::find_if(sources.rbegin(), sources.rend(), isOnly);
  return found != sources.rend() ? &*found : nullptr;
}

/// A schema that only combines the others: it includes the last and imports the rest. libxml2 finds an imported
/// declaration through its namespace but an included one directly, which saves 4 % of a load when, as is usual, the
/// last schema describes nearly all elements of a document.
std::string JoiningSchema(const std::vector<SchemaSource>& sources) {
  const SchemaSource* main = FindMain(sources);
  std::string schema = R"(<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema")";
  if (main != nullptr) schema += NamespaceAttribute("targetNamespace", main->targetNamespace);
  schema += '>';
  for (const SchemaSource& source : sources) {
    schema += &source == main ? "<xs:include" : "<xs:import" + NamespaceAttribute("namespace", source.targetNamespace);
    schema += R"( schemaLocation=")" + EscapeAttribute(FileUrl(source.file)) + R"("/>)";
  }
  return schema + "</xs:schema>";
}

std::string_view AttributeOf(const xmlNode& element, std::string_view name) {
  for (const xmlAttr* attribute = element.properties; attribute != nullptr; attribute = attribute->next) {
    if (attribute->ns == nullptr && View(attribute->name) == name) return AttributeValue(*attribute);
  }
  return {};
}

/// The URL of the schema that an import names; empty when it names none.
std::string ImportedUrl(const xmlNode& import, const SchemaSource& source) {
  const std::string location(AttributeOf(import, "schemaLocation"));
  if (location.empty()) return {};
  const std::unique_ptr<xmlChar, FreeXml> url(xmlBuildURI(Xml(location.c_str()), Xml(FileUrl(source.file).c_str())));
  return std::string(View(url.get()));
}

/// When a schema imports a namespace of the set, the set's schema is used, whatever location the import gives.
void ReplaceImports(const xmlNode& schema, const SchemaSource& source, const std::vector<SchemaSource>& sources,
                    std::map<std::string, std::string>& replaced) {
  for (const xmlNode* child = schema.children; child != nullptr; child = child->next) {
    if (child->type != XML_ELEMENT_NODE || View(child->name) != "import") continue;
    const std::string_view uri = AttributeOf(*child, "namespace");
    const auto imported = std::find_if(sources.begin(), sources.end(), [&](const SchemaSource& other) {
      return &other != &source && other.targetNamespace == uri;
    });
    if (imported == sources.end()) continue;
    if (std::string url = ImportedUrl(*child, source); !url.empty()) replaced[url] = FileUrl(imported->file);
  }
}

std::shared_ptr<const CXmlTree> ParseSchema(const std::filesystem::path& path, xmlfile::CProblems& problems) {
  const auto embedded = xmlfile::EmbeddedSchema(path);
  return embedded ? ParseXml(xmlfile::ReadFileText(*embedded, problems), problems) : ParseXmlFile(path, problems);
}

/// libxml2 says little about a schema that cannot be read, and nothing about one for another namespace.
void CheckSource(const SchemaSource& source, const std::vector<SchemaSource>& sources,
                 std::map<std::string, std::string>& replaced) {
  xmlfile::CProblems problems;
  const std::shared_ptr<const CXmlTree> tree = ParseSchema(source.file, problems);
  if (tree == nullptr) ThrowSchemaError(source.file.native(), problems.Take().front());
  RequireNamespace(source.file.native(), std::string(AttributeOf(*tree->Root(), "targetNamespace")),
                   source.targetNamespace);
  ReplaceImports(*tree->Root(), source, sources, replaced);
}

struct Validation {
  const CXmlTree& tree;
  const std::vector<SchemaSource>& sources;
  xmlfile::CProblems& problems;
  // Created for the first error. Without the braces, g++ warns where the rest is initialised.
  std::optional<CElementPlaces> places = {};  // NOLINT(readability-redundant-member-init)
};

/// libxml2 writes names with their namespace in braces; for the schemas' own namespaces, the local name is enough.
std::string WithoutNamespaces(std::string text, const std::vector<SchemaSource>& sources) {
  for (const SchemaSource& source : sources) {
    const std::string braced = '{' + source.targetNamespace + '}';
    std::size_t at = 0;
    while ((at = text.find(braced, at)) != std::string::npos) text.erase(at, braced.size());
  }
  return text;
}

void CollectInvalidity(void* data, ErrorPointer error) {
  auto& validation = *static_cast<Validation*>(data);
  const auto* node = static_cast<const xmlNode*>(error->node);
  try {
    if (!validation.places) validation.places.emplace(validation.tree);
    const xmlfile::Place* found = validation.places->Find(node);
    const xmlfile::Place place = found != nullptr ? *found : xmlfile::Place{0, 0};
    const std::string message =
        WithoutNamespaces(error->message != nullptr ? error->message : "unknown error", validation.sources);
    if (node != nullptr && node->type == XML_ATTRIBUTE_NODE) node = node->parent;
    const std::string element = node != nullptr ? QualifiedName(node->ns, node->name) : std::string();
    AddError(validation.problems, *error, place.line, place.column, element, message.c_str());
  } catch (const std::bad_alloc&) {
    validation.problems.RanOutOfMemory();
  }
}

}  // namespace

CSchemaSet::CSchemaSet(const std::vector<SchemaSource>& sources) : m_sources(sources) {
  std::map<std::string, std::string> replaced;
  for (const SchemaSource& source : sources) CheckSource(source, sources, replaced);
  CSchemaLoader loader(std::move(replaced));
  const CThreadErrors otherErrors(CSchemaLoader::ReportError, nullptr);
  const std::string driver = JoiningSchema(sources);
  const ParserPointer context(xmlSchemaNewMemParserCtxt(driver.data(), static_cast<int>(driver.size())));
  if (context == nullptr) throw std::bad_alloc();
  xmlSchemaSetParserStructuredErrors(context.get(), CSchemaLoader::ReportError, nullptr);
  m_schema.reset(xmlSchemaParse(context.get()));
  m_files = loader.Files();
  if (!loader.IsOutOfMemory() && !loader.Failure().empty()) ThrowSchemaError(loader.Failure());
  if (loader.IsOutOfMemory() || m_schema == nullptr) throw std::bad_alloc();
}

bool CSchemaSet::IsCurrent() const {
  return std::all_of(m_files.begin(), m_files.end(), [](const SchemaFile& file) {
    const xmlfile::CInputFile now(file.path);
    return now.IsOpen() && now.GetStamp() == file.stamp;
  });
}

std::shared_ptr<const CSchemaSet> CSchemaSet::Get(const std::vector<SchemaSource>& sources) {
  // Never destroyed: threads may still be loading when the process ends.
  static auto& mutex = *new std::mutex;
  static auto& compiled = *new std::map<std::vector<SchemaSource>, std::shared_ptr<const CSchemaSet>>;
  const std::lock_guard lock(mutex);
  std::shared_ptr<const CSchemaSet>& set = compiled[sources];
  if (set == nullptr || !set->IsCurrent()) {
    set = nullptr;
    set = std::make_shared<const CSchemaSet>(sources);
  }
  return set;
}

void CSchemaSet::Validate(const CXmlTree& tree, xmlfile::CProblems& problems) const {
  Validation validation{tree, m_sources, problems};
  const CThreadErrors otherErrors(CollectInvalidity, &validation);
  const ValidatorPointer context(xmlSchemaNewValidCtxt(m_schema.get()));
  if (context == nullptr) throw std::bad_alloc();
  xmlSchemaSetValidStructuredErrors(context.get(), CollectInvalidity, &validation);
  const int result = xmlSchemaValidateDoc(context.get(), tree.Document());
  if (result < 0 && problems.IsEmpty()) problems.RanOutOfMemory();
  if (result > 0 && problems.IsEmpty()) problems.Add(0, 0, {}, "The document does not fit its schema.");
}

}  // namespace libxml2
