// CDOMDoc where there is no MSXML.
#include "BaseUtilities/PathText.h"
#include "BaseUtilities/StringConvert.h"
#include "TestUtilities/DOMDoc.h"
#include "TestUtilities/DOMDocReasons.h"
#include "msxml/DomDocument.h"
#include "msxml/ElementPaths.h"
#include "msxml/SchemaSet.h"
#include "msxml/XmlParser.h"
#include "msxml/XmlText.h"

#include <utility>

namespace {

/// In a function, because GCC loses the memory when a constructor throws in the initialiser of a member.
CComPointer<msxml::CDomDocument> MakeDocument() {
  return CComPointer<msxml::CDomDocument>(new msxml::CDomDocument, false);
}

}  // namespace

struct CDOMDoc::Content {
  std::vector<msxml::SchemaSource> schemas;
  std::string rootNamespace;  // with rootName: what the root must be; any when rootName is empty
  std::string rootName;
  std::filesystem::path file;
  std::vector<DOMDocProblem> problems;
  std::unique_ptr<const msxml::CElementPaths> paths;  // of the document's elements; made when first asked for
  CComPointer<msxml::CDomDocument> document = MakeDocument();

  /// Parses a file; null when it cannot be, with the reasons in `problems`.
  std::shared_ptr<const msxml::CXmlTree> Parse(const std::filesystem::path& path);

  /// Whether the tree is valid; the reasons are in `problems` when it is not.
  bool Validate(const msxml::CXmlTree& tree);
};

namespace {

using msxml::View;

/// Adds a problem when the root is not the element asked for.
/// \param namespaceUri null when any will do
void CheckRoot(const msxml::CXmlTree& tree, const std::string* namespaceUri, const std::string& name,
               msxml::CProblems& problems) {
  const xmlNode& root = *tree.Root();
  const std::string_view rootNamespace = root.ns != nullptr ? View(root.ns->href) : std::string_view();
  if (name.empty() || (View(root.name) == name && (namespaceUri == nullptr || rootNamespace == *namespaceUri))) return;
  const msxml::Position* position = tree.Locate(&root);
  problems.Add(position->line, position->column, View(root.name),
               WrongRootReason(View(root.name), rootNamespace, name, namespaceUri));
}

}  // namespace

std::shared_ptr<const msxml::CXmlTree> CDOMDoc::Content::Parse(const std::filesystem::path& path) {
  msxml::CProblems found;
  std::shared_ptr<const msxml::CXmlTree> tree = msxml::ParseXmlFile(path, found);
  problems = found.Take();
  return tree;
}

bool CDOMDoc::Content::Validate(const msxml::CXmlTree& tree) {
  msxml::CProblems found;
  CheckRoot(tree, &rootNamespace, rootName, found);
  // An element that is not the root asked for is no use to the schemas, and what they said would only confuse.
  if (found.IsEmpty() && !schemas.empty()) msxml::CSchemaSet::Get(schemas)->Validate(tree, found);
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
  const std::shared_ptr<const msxml::CXmlTree> tree = m_content->Parse(PathFromLosslessWide(fileName));
  if (tree == nullptr) return false;
  msxml::CProblems found;
  CheckRoot(*tree, nullptr, Utf16ToUtf8(rootName), found);
  m_content->problems = found.Take();
  return m_content->problems.empty() && (!validate || m_content->Validate(*tree));
}

bool CDOMDoc::ParseDoc() {
  m_content->paths = nullptr;
  m_content->document->SetTree(nullptr);
  m_content->document->SetTree(m_content->Parse(m_content->file));
  return m_content->document->Tree() != nullptr;
}

bool CDOMDoc::ValidateDoc(const std::filesystem::path& file) {
  m_content->file = file;
  if (!ParseDoc()) return false;
  const msxml::CXmlTree* tree = m_content->document->Tree();
  return tree != nullptr && m_content->Validate(*tree);
}

DOMElementPtr CDOMDoc::GetRootElement() const {
  DOMElementPtr root;
  RequireSuccess(Document().get_documentElement(root.Receive()), Document(), IID_IXMLDOMDocument2);
  return root;
}

const std::vector<DOMDocProblem>& CDOMDoc::Problems() const noexcept { return m_content->problems; }

bool CDOMDoc::Locate(IXMLDOMNode& node, std::size_t& line, std::size_t& column) const {
  line = column = 0;
  const msxml::CXmlTree* tree = m_content->document->Tree();
  const msxml::Position* position = tree != nullptr ? tree->Locate(msxml::NodeBehind(node, *tree)) : nullptr;
  if (position == nullptr) return false;
  line = position->line;
  column = position->column;
  return true;
}

std::string CDOMDoc::PathOf(IXMLDOMNode& node) const {
  const msxml::CXmlTree* tree = m_content->document->Tree();
  const xmlNode* element = tree != nullptr ? msxml::NodeBehind(node, *tree) : nullptr;
  if (element == nullptr || element->type != XML_ELEMENT_NODE) return {};
  if (m_content->paths == nullptr) m_content->paths = std::make_unique<msxml::CElementPaths>(*tree);
  return m_content->paths->PathOf(*element);
}

IXMLDOMDocument2& CDOMDoc::Document() const noexcept { return *m_content->document.GetInterfacePtr(); }

void CDOMDoc::RequireRoot(const std::wstring& namespaceUri, const std::wstring& localName) {
  m_content->rootNamespace = Utf16ToUtf8(namespaceUri);
  m_content->rootName = Utf16ToUtf8(localName);
}
