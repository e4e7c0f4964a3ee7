#include "xmlfile/FileDocument.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml6/DocumentLoader.h"
#include "msxml6/ElementPlaces.h"
#include "msxml6/SchemaCache.h"

#include <optional>

namespace xmlfile {

using msxml6::CElementPlaces;

struct CFileDocument::Content {
  DOMDocument2Ptr document = msxml6::MakeDocument();
  std::optional<FileText> file;            // the text that the document was loaded from
  std::unique_ptr<CElementPlaces> places;  // created on first use

  void Clear() {
    places = nullptr;
    file.reset();
  }

  CElementPlaces& Places() {
    if (places == nullptr) places = std::make_unique<CElementPlaces>(*document, FindTags(*file));
    return *places;
  }
};

CFileDocument::CFileDocument() : m_content(std::make_unique<Content>()) {}

CFileDocument::~CFileDocument() = default;

IXMLDOMDocument2& CFileDocument::Document() const { return *m_content->document; }

void CFileDocument::Load(const std::filesystem::path& file, CProblems& problems) {
  m_content->Clear();
  m_content->file = msxml6::LoadFile(Document(), file, problems);
}

void CFileDocument::Load(std::string_view content, CProblems& problems) {
  m_content->Clear();
  m_content->file = msxml6::LoadContent(Document(), content, problems);
}

bool CFileDocument::IsLoaded() const { return m_content->file.has_value(); }

xmlfile::Root CFileDocument::Root() const {
  DOMElementPtr root;
  RequireSuccess(Document().get_documentElement(root.Receive()), Document(), IID_IXMLDOMDocument2);
  CBstr name;
  RequireSuccess(root->get_baseName(name.Receive()), *root, IID_IXMLDOMNode);
  CBstr uri;
  RequireSuccess(root->get_namespaceURI(uri.Receive()), *root, IID_IXMLDOMNode);
  return {Utf16ToUtf8(name.View()), Utf16ToUtf8(uri.View())};
}

Place CFileDocument::RootPlace() const { return FindTags(*m_content->file).at(1).place; }

void CFileDocument::Validate(const std::vector<SchemaSource>& schemas, CProblems& problems) const {
  msxml6::Validate(Document(), schemas, problems);
}

Place CFileDocument::Locate(IXMLDOMNode& node) {
  const Tag* tag = IsLoaded() ? m_content->Places().Find(node) : nullptr;
  return tag != nullptr ? tag->place : Place{0, 0};
}

std::string CFileDocument::PathOf(IXMLDOMNode& node) {
  return IsLoaded() ? m_content->Places().PathOf(node) : std::string();
}

}  // namespace xmlfile
