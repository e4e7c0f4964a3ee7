#include "TestUtilities/DOMDoc.h"

#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDocReasons.h"
#include "msxml/ComTypes.h"
#include "xmlfile/FileDocument.h"

#include <utility>

using xmlfile::CFileDocument;

struct CDOMDoc::Content {
  std::vector<xmlfile::SchemaSource> schemas;
  std::string rootNamespace;  // with rootName: the root that is required; any when rootName is empty
  std::string rootName;
  std::filesystem::path file;
  std::vector<DOMDocProblem> problems;
  CFileDocument document;

  /// Loads a file into a document; if that fails, `problems` has the reasons.
  /// \param source a path, or the bytes of a file
  template <typename Source>
  bool Load(const Source& source, CFileDocument& into);

  /// Whether a loaded document is valid; if not, `problems` has the reasons.
  bool Validate(CFileDocument& loaded);
};

namespace {

/// Adds a problem when the root is not the required element.
/// \param namespaceUri null for any
/// \param name empty for any, whatever its namespace
void CheckRoot(CFileDocument& document, const std::string* namespaceUri, const std::string& name,
               xmlfile::CProblems& problems) {
  if (name.empty()) return;
  const xmlfile::Root root = document.Root();
  if (root.name == name && (namespaceUri == nullptr || root.uri == *namespaceUri)) return;
  const xmlfile::Place place = document.RootPlace();
  problems.Add(place.line, place.column, root.name, WrongRootReason(root.name, root.uri, name, namespaceUri));
}

}  // namespace

template <typename Source>
bool CDOMDoc::Content::Load(const Source& source, CFileDocument& into) {
  xmlfile::CProblems found;
  into.Load(source, found);
  problems = found.Take();
  return into.IsLoaded();
}

bool CDOMDoc::Content::Validate(CFileDocument& loaded) {
  xmlfile::CProblems found;
  CheckRoot(loaded, &rootNamespace, rootName, found);
  // If the root is not the required element, the schemas do not apply, and their errors would only confuse.
  if (found.IsEmpty() && !schemas.empty()) loaded.Validate(schemas, found);
  problems = found.Take();
  return problems.empty();
}

CDOMDoc::CDOMDoc(const std::vector<std::pair<std::wstring, std::wstring>>& schemas)
    : m_content(std::make_unique<Content>()) {
  for (const auto& [file, targetNamespace] : schemas) {
    m_content->schemas.push_back({PathFromLosslessWide(file), Utf16ToUtf8(targetNamespace)});
  }
}

CDOMDoc::~CDOMDoc() = default;

bool CDOMDoc::CanLoadDoc(const std::wstring& fileName, const std::wstring& rootName, bool validate) {
  CFileDocument document;
  if (!m_content->Load(PathFromLosslessWide(fileName), document)) return false;
  xmlfile::CProblems found;
  CheckRoot(document, nullptr, Utf16ToUtf8(rootName), found);
  m_content->problems = found.Take();
  return m_content->problems.empty() && (!validate || m_content->Validate(document));
}

bool CDOMDoc::ParseDoc() { return m_content->Load(m_content->file, m_content->document); }

bool CDOMDoc::ValidateDoc(const std::filesystem::path& file) {
  m_content->file = file;
  if (!ParseDoc()) return false;
  return m_content->document.IsLoaded() && m_content->Validate(m_content->document);
}

bool CDOMDoc::ValidateContent(std::string_view content) {
  m_content->file.clear();
  return m_content->Load(content, m_content->document) && m_content->Validate(m_content->document);
}

DOMElementPtr CDOMDoc::GetRootElement() const {
  DOMElementPtr root;
  RequireSuccess(Document().get_documentElement(root.Receive()), Document(), IID_IXMLDOMDocument2);
  return root;
}

const std::vector<DOMDocProblem>& CDOMDoc::Problems() const noexcept { return m_content->problems; }

bool CDOMDoc::Locate(IXMLDOMNode& node, std::size_t& line, std::size_t& column) const {
  line = column = 0;
  const xmlfile::Place place = m_content->document.Locate(node);
  if (place.line == 0) return false;
  line = place.line;
  column = place.column;
  return true;
}

std::string CDOMDoc::PathOf(IXMLDOMNode& node) const { return m_content->document.PathOf(node); }

IXMLDOMDocument2& CDOMDoc::Document() const noexcept { return m_content->document.Document(); }

void CDOMDoc::RequireRoot(const std::wstring& namespaceUri, const std::wstring& localName) {
  m_content->rootNamespace = Utf16ToUtf8(namespaceUri);
  m_content->rootName = Utf16ToUtf8(localName);
}
