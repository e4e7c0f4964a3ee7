#include "libxml2/FileDocument.h"

#include "libxml2/SchemaSet.h"
#include "libxml2/XmlParser.h"
#include "libxml2/XmlText.h"

namespace libxml2 {

CFileDocument::CFileDocument() : m_document(new CDomDocument, false) {}

void CFileDocument::Load(const std::filesystem::path& file, xmlfile::CProblems& problems) {
  m_places = nullptr;
  m_document->SetTree(nullptr);
  m_document->SetTree(ParseXmlFile(file, problems));
}

xmlfile::Root CFileDocument::Root() const {
  const xmlNode& root = *m_document->Tree()->Root();
  return {std::string(View(root.name)), root.ns != nullptr ? std::string(View(root.ns->href)) : std::string()};
}

xmlfile::Place CFileDocument::RootPlace() const { return xmlfile::FindTags(m_document->Tree()->File()).at(1).place; }

void CFileDocument::Validate(const std::vector<xmlfile::SchemaSource>& schemas, xmlfile::CProblems& problems) const {
  CSchemaSet::Get(schemas)->Validate(*m_document->Tree(), problems);
}

xmlfile::Place CFileDocument::Locate(IXMLDOMNode& node) {
  const xmlNode* found = IsLoaded() ? NodeBehind(node, *m_document->Tree()) : nullptr;
  const xmlfile::Place* place = found != nullptr ? Places().Find(found) : nullptr;
  return place != nullptr ? *place : xmlfile::Place{0, 0};
}

std::string CFileDocument::PathOf(IXMLDOMNode& node) {
  const xmlNode* element = IsLoaded() ? NodeBehind(node, *m_document->Tree()) : nullptr;
  if (element == nullptr || element->type != XML_ELEMENT_NODE) return {};
  return Places().PathOf(*element);
}

const CElementPlaces& CFileDocument::Places() {
  if (m_places == nullptr) m_places = std::make_unique<const CElementPlaces>(*m_document->Tree());
  return *m_places;
}

}  // namespace libxml2
