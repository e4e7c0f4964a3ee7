#include "libxml2/SchemaLoader.h"

#include "libxml2/XmlText.h"
#include "xmlfile/EmbeddedSchemas.h"

#include <libxml/parser.h>
#include <libxml/uri.h>
#include <libxml/xmlIO.h>

#include <atomic>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

namespace libxml2 {

namespace {

constexpr std::string_view kFileScheme = "file://";

/// Where schemas locate the schema for the namespace of `xml:space` and the like. Its content is fixed, so it is built
/// in.
constexpr std::string_view kXmlNamespaceUrl = "http://www.w3.org/2001/xml.xsd";
constexpr std::string_view kXmlNamespaceSchema =
    "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema' targetNamespace='http://www.w3.org/XML/1998/namespace'>"
    "<xs:attribute name='lang' type='xs:string'/>"
    "<xs:attribute name='space'><xs:simpleType><xs:restriction base='xs:NCName'>"
    "<xs:enumeration value='default'/><xs:enumeration value='preserve'/>"
    "</xs:restriction></xs:simpleType></xs:attribute>"
    "<xs:attribute name='base' type='xs:anyURI'/>"
    "<xs:attribute name='id' type='xs:ID'/>"
    "<xs:attributeGroup name='specialAttrs'><xs:attribute ref='xml:base'/><xs:attribute ref='xml:lang'/>"
    "<xs:attribute ref='xml:space'/><xs:attribute ref='xml:id'/></xs:attributeGroup>"
    "</xs:schema>";

/// The loader of a thread that is compiling schemas; null on any other.
thread_local CSchemaLoader* g_loader = nullptr;

/// The previous loader of libxml2, which other threads continue to use.
std::atomic<xmlExternalEntityLoader> g_before = nullptr;

/// The file of a URL; empty when the URL is not for a local file.
std::filesystem::path FileOf(std::string_view url) {
  if (!url.starts_with(kFileScheme) || !url.substr(kFileScheme.size()).starts_with('/')) return {};
  const std::string escaped(url.substr(kFileScheme.size()));
  const std::unique_ptr<char, FreeXml> path(xmlURIUnescapeString(escaped.c_str(), 0, nullptr));
  if (path == nullptr) throw std::bad_alloc();
  return path.get();
}

/// Creates an input that takes over a buffer.
/// \param url base of the references in the schema
/// \param buffer null when memory for it ran out
xmlParserInputPtr MakeInput(const std::string& url, xmlParserCtxtPtr context, xmlParserInputBufferPtr buffer) {
  if (buffer == nullptr) throw std::bad_alloc();
  xmlParserInput* input = xmlNewIOInputStream(context, buffer, XML_CHAR_ENCODING_NONE);
  if (input == nullptr) {
    xmlFreeParserInputBuffer(buffer);
    throw std::bad_alloc();
  }
  input->filename = reinterpret_cast<char*>(xmlStrdup(Xml(url.c_str())));
  return input;
}

xmlParserInputBufferPtr MakeBuffer(std::string_view text) {
  return xmlParserInputBufferCreateMem(text.data(), static_cast<int>(text.size()), XML_CHAR_ENCODING_NONE);
}

}  // namespace

CSchemaLoader::CSchemaLoader(std::map<std::string, std::string> replaced) : m_replaced(std::move(replaced)) {
  g_before = xmlGetExternalEntityLoader();
  g_loader = this;
  xmlSetExternalEntityLoader(Load);
}

CSchemaLoader::~CSchemaLoader() {
  // The host may have set another one meanwhile.
  if (xmlGetExternalEntityLoader() == Load) xmlSetExternalEntityLoader(g_before);
  g_loader = nullptr;
}

xmlParserInputPtr CSchemaLoader::Load(const char* url, const char* id, xmlParserCtxtPtr context) {
  if (g_loader == nullptr) return g_before.load()(url, id, context);
  try {
    if (url == nullptr) return nullptr;
    const auto replaced = g_loader->m_replaced.find(url);
    return g_loader->LoadFile(replaced != g_loader->m_replaced.end() ? replaced->second : url, context);
  } catch (const std::bad_alloc&) {
    g_loader->m_isOutOfMemory = true;
    return nullptr;
  }
}

void CSchemaLoader::ReportError(void*, ErrorPointer error) {
  if (g_loader == nullptr) return;
  if (error->code == XML_ERR_NO_MEMORY) g_loader->m_isOutOfMemory = true;
  if (IsHarmless(*error) || error->message == nullptr) return;
  try {
    // If a file could not be read to its end, libxml2 only reports that it ends too early.
    const bool isUnread = !g_loader->m_open.empty() && g_loader->m_open.back().HasFailed();
    if (isUnread && !g_loader->m_files.empty()) {
      g_loader->Fail(g_loader->m_files.back().path.native() + ": the file " + g_loader->m_open.back().Error());
    }
    std::string_view reason = error->message;
    while (reason.ends_with('\n')) reason.remove_suffix(1);
    g_loader->Fail(g_loader->Place(*error) + ": " + std::string(reason));
  } catch (const std::bad_alloc&) {
    g_loader->m_isOutOfMemory = true;
  }
}

std::string CSchemaLoader::Place(const xmlError& error) const {
  const std::string_view url = error.file != nullptr ? error.file : "";
  if (url.starts_with(kFileScheme)) return FileOf(url).native() + ": line " + std::to_string(error.line);
  // An error in how the schemas fit together concerns the one added last.
  return m_files.empty() ? std::string(url) : m_files.back().path.native();
}

void CSchemaLoader::Fail(std::string reason) {
  if (m_failure.empty()) m_failure = std::move(reason);
}

xmlParserInputPtr CSchemaLoader::LoadFile(const std::string& url, xmlParserCtxtPtr context) {
  if (url == kXmlNamespaceUrl) return MakeInput(url, context, MakeBuffer(kXmlNamespaceSchema));
  const std::filesystem::path path = FileOf(url);
  if (path.empty()) {
    Fail(url + ": nothing is loaded from the network");
    return nullptr;
  }
  if (const auto embedded = xmlfile::EmbeddedSchema(path)) return MakeInput(url, context, MakeBuffer(*embedded));
  xmlfile::CInputFile& file = m_open.emplace_back(path);
  if (!file.IsOpen()) {
    Fail(path.native() + ": the file " + file.Error());
    return nullptr;
  }
  m_files.push_back({path, file.GetStamp()});
  return MakeInput(url, context,
                   xmlParserInputBufferCreateIO(xmlfile::CInputFile::Read, nullptr, &file, XML_CHAR_ENCODING_NONE));
}

std::string FileUrl(const std::filesystem::path& file) {
  const std::string path = std::filesystem::absolute(file).native();
  const std::unique_ptr<xmlChar, FreeXml> escaped(xmlURIEscapeStr(Xml(path.c_str()), Xml("/")));
  if (escaped == nullptr) throw std::bad_alloc();
  return std::string(kFileScheme) + std::string(View(escaped.get()));
}

}  // namespace libxml2
