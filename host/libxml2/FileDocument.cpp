#include "xmlfile/FileDocument.h"

#include "libxml2/DomDocument.h"
#include "libxml2/ElementPlaces.h"
#include "libxml2/SchemaSet.h"
#include "libxml2/XmlParser.h"
#include "libxml2/XmlText.h"
#include "msxml/ComPointer.h"

namespace xmlfile {

using libxml2::CElementPlaces;
using libxml2::View;

struct CFileDocument::Content {
  // Not in the member's own initialiser: there, GCC does not free the document if its constructor throws.
  Content() : document(new libxml2::CDomDocument, false) {}

  const libxml2::CXmlTree& Tree() const { return *document->Tree(); }

  const CElementPlaces& Places() {
    if (places == nullptr) places = std::make_unique<const CElementPlaces>(Tree());
    return *places;
  }

  void Clear() {
    places = nullptr;
    document->SetTree(nullptr);
  }

  CComPointer<libxml2::CDomDocument> document;
  std::unique_ptr<const CElementPlaces> places;  // created on first use
};

CFileDocument::CFileDocument() : m_content(std::make_unique<Content>()) {}

CFileDocument::~CFileDocument() = default;

IXMLDOMDocument2& CFileDocument::Document() const { return *m_content->document; }

void CFileDocument::Load(const std::filesystem::path& file, CProblems& problems) {
  m_content->Clear();
  m_content->document->SetTree(libxml2::ParseXmlFile(file, problems));
}

void CFileDocument::Load(std::string_view content, CProblems& problems) {
  m_content->Clear();
  m_content->document->SetTree(libxml2::ParseXml(ReadFileText(content, problems), problems));
}

bool CFileDocument::IsLoaded() const { return m_content->document->Tree() != nullptr; }

xmlfile::Root CFileDocument::Root() const {
  const xmlNode& root = *m_content->Tree().Root();
  return {std::string(View(root.name)), root.ns != nullptr ? std::string(View(root.ns->href)) : std::string()};
}

Place CFileDocument::RootPlace() const { return FindTags(m_content->Tree().File()).at(1).place; }

void CFileDocument::Validate(const std::vector<SchemaSource>& schemas, CProblems& problems) const {
  libxml2::CSchemaSet::Get(schemas)->Validate(m_content->Tree(), problems);
}

Place CFileDocument::Locate(IXMLDOMNode& node) {
  const xmlNode* found = IsLoaded() ? libxml2::NodeBehind(node, m_content->Tree()) : nullptr;
  const Place* place = found != nullptr ? m_content->Places().Find(found) : nullptr;
  return place != nullptr ? *place : Place{0, 0};
}

std::string CFileDocument::PathOf(IXMLDOMNode& node) {
  const xmlNode* element = IsLoaded() ? libxml2::NodeBehind(node, m_content->Tree()) : nullptr;
  if (element == nullptr || element->type != XML_ELEMENT_NODE) return {};
  return m_content->Places().PathOf(*element);
}

}  // namespace xmlfile
