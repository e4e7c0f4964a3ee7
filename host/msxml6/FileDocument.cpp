#include "msxml6/FileDocument.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml6/DocumentLoader.h"
#include "msxml6/SchemaCache.h"

namespace msxml6 {

CFileDocument::CFileDocument() : m_document(MakeDocument()) {}

void CFileDocument::Load(const std::filesystem::path& file, xmlfile::CProblems& problems) {
  m_places = nullptr;
  m_file.reset();
  m_file = LoadFile(*m_document, file, problems);
}

xmlfile::Root CFileDocument::Root() const {
  DOMElementPtr root;
  RequireSuccess(m_document->get_documentElement(root.Receive()), *m_document, IID_IXMLDOMDocument2);
  CBstr name;
  RequireSuccess(root->get_baseName(name.Receive()), *root, IID_IXMLDOMNode);
  CBstr uri;
  RequireSuccess(root->get_namespaceURI(uri.Receive()), *root, IID_IXMLDOMNode);
  return {Utf16ToUtf8(name.View()), Utf16ToUtf8(uri.View())};
}

xmlfile::Place CFileDocument::RootPlace() const { return xmlfile::FindTags(*m_file).at(1).place; }

void CFileDocument::Validate(const std::vector<xmlfile::SchemaSource>& schemas, xmlfile::CProblems& problems) const {
  msxml6::Validate(*m_document, schemas, problems);
}

xmlfile::Place CFileDocument::Locate(IXMLDOMNode& node) {
  const xmlfile::Tag* tag = IsLoaded() ? Places().Find(node) : nullptr;
  return tag != nullptr ? tag->place : xmlfile::Place{0, 0};
}

std::string CFileDocument::PathOf(IXMLDOMNode& node) { return IsLoaded() ? Places().PathOf(node) : std::string(); }

CElementPlaces& CFileDocument::Places() {
  if (m_places == nullptr) m_places = std::make_unique<CElementPlaces>(*m_document, xmlfile::FindTags(*m_file));
  return *m_places;
}

}  // namespace msxml6
