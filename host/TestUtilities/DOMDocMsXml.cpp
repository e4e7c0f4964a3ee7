// CDOMDoc over MSXML 6.
#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDoc.h"
#include "TestUtilities/DOMDocReasons.h"
#include "msxml6/DocumentLoader.h"
#include "msxml6/ElementPlaces.h"
#include "msxml6/SchemaCache.h"

#include <optional>
#include <utility>

struct CDOMDoc::Content {
  std::vector<msxml6::SchemaSource> schemas;
  std::string rootNamespace;  // with rootName: what the root must be; any when rootName is empty
  std::string rootName;
  std::filesystem::path file;
  std::vector<DOMDocProblem> problems;
  DOMDocument2Ptr document = msxml6::MakeDocument();
  std::optional<msxml6::CElementPlaces> places;  // of the document's elements; none when it is empty

  /// Whether a document that has been loaded is valid; the reasons are in `problems` when it is not.
  bool Validate(IXMLDOMDocument2& loaded, const std::vector<msxml6::Tag>& itsTags);
};

namespace {

/// What a call has put into a text, as UTF-8.
std::string Received(HRESULT result, IXMLDOMNode& node, const CBstr& text) {
  RequireSuccess(result, node, IID_IXMLDOMNode);
  return Utf16ToUtf8(text.View());
}

DOMElementPtr RootOf(IXMLDOMDocument2& document) {
  DOMElementPtr root;
  RequireSuccess(document.get_documentElement(root.Receive()), document, IID_IXMLDOMDocument2);
  return root;
}

/// Adds a problem when the root is not the element asked for.
/// \param namespaceUri null when any will do
void CheckRoot(IXMLDOMDocument2& document, const std::vector<msxml6::Tag>& tags, const std::string* namespaceUri,
               const std::string& name, msxml::CProblems& problems) {
  const DOMElementPtr root = RootOf(document);
  CBstr text;
  const std::string actualName = Received(root->get_baseName(text.Receive()), *root, text);
  const std::string actualNamespace = Received(root->get_namespaceURI(text.Receive()), *root, text);
  if (name.empty() || (actualName == name && (namespaceUri == nullptr || actualNamespace == *namespaceUri))) return;
  problems.Add(tags.at(1).line, tags.at(1).column, actualName,
               WrongRootReason(actualName, actualNamespace, name, namespaceUri));
}

}  // namespace

bool CDOMDoc::Content::Validate(IXMLDOMDocument2& loaded, const std::vector<msxml6::Tag>& itsTags) {
  msxml::CProblems found;
  CheckRoot(loaded, itsTags, &rootNamespace, rootName, found);
  // An element that is not the root asked for is no use to the schemas, and what they said would only confuse.
  if (found.IsEmpty() && !schemas.empty()) msxml6::Validate(loaded, schemas, found);
  problems = found.Take();
  return problems.empty();
}

CDOMDoc::CDOMDoc(const std::vector<std::pair<std::wstring, std::wstring>>& schemas)
    : m_content(std::make_unique<Content>()) {
  for (const auto& [file, targetNamespace] : schemas) {
    m_content->schemas.push_back({PathFromLosslessWide(file), targetNamespace});
  }
}

CDOMDoc::~CDOMDoc() = default;

bool CDOMDoc::CanLoadDoc(const std::wstring& fileName, const std::wstring& rootName, bool validate) {
  const DOMDocument2Ptr document = msxml6::MakeDocument();
  msxml::CProblems found;
  const auto tags = msxml6::LoadFile(*document, PathFromLosslessWide(fileName), found);
  if (tags) CheckRoot(*document, *tags, nullptr, Utf16ToUtf8(rootName), found);
  m_content->problems = found.Take();
  return m_content->problems.empty() && (!validate || m_content->Validate(*document, *tags));
}

bool CDOMDoc::ParseDoc() {
  msxml::CProblems found;
  m_content->places.reset();
  auto tags = msxml6::LoadFile(Document(), m_content->file, found);
  m_content->problems = found.Take();
  if (tags) m_content->places.emplace(Document(), std::move(*tags));
  return m_content->places.has_value();
}

bool CDOMDoc::ValidateDoc(const std::filesystem::path& file) {
  m_content->file = file;
  if (!ParseDoc()) return false;
  return m_content->places && m_content->Validate(Document(), m_content->places->Tags());
}

DOMElementPtr CDOMDoc::GetRootElement() const { return RootOf(Document()); }

const std::vector<DOMDocProblem>& CDOMDoc::Problems() const noexcept { return m_content->problems; }

bool CDOMDoc::Locate(IXMLDOMNode& node, std::size_t& line, std::size_t& column) const {
  line = column = 0;
  const msxml6::Tag* tag = m_content->places ? m_content->places->Find(node) : nullptr;
  if (tag == nullptr) return false;
  line = tag->line;
  column = tag->column;
  return true;
}

std::string CDOMDoc::PathOf(IXMLDOMNode& node) const {
  return m_content->places ? m_content->places->PathOf(node) : std::string();
}

IXMLDOMDocument2& CDOMDoc::Document() const noexcept { return *m_content->document.GetInterfacePtr(); }

void CDOMDoc::RequireRoot(const std::wstring& namespaceUri, const std::wstring& localName) {
  m_content->rootNamespace = Utf16ToUtf8(namespaceUri);
  m_content->rootName = Utf16ToUtf8(localName);
}
