#include "msxml6/DocumentLoader.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml6/MarkupCheck.h"
#include "msxml6/MsXmlIds.h"
#include "xmlfile/Bounds.h"
#include "xmlfile/Limits.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace msxml6 {

namespace {

/// Bytes in the form that COM expects.
class CByteArray {
 public:
  /// \param bytes no more than `kLargestFile`
  explicit CByteArray(std::string_view bytes) {
    m_variant.vt = VT_ARRAY | VT_UI1;
    m_variant.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    void* data = nullptr;
    if (m_variant.parray == nullptr || FAILED(SafeArrayAccessData(m_variant.parray, &data))) {
      VariantClear(&m_variant);
      _com_issue_error(E_OUTOFMEMORY);
    }
    if (!bytes.empty()) std::memcpy(data, bytes.data(), bytes.size());
    SafeArrayUnaccessData(m_variant.parray);
  }
  CByteArray(const CByteArray&) = delete;
  CByteArray& operator=(const CByteArray&) = delete;
  ~CByteArray() { VariantClear(&m_variant); }

  const VARIANT& get() const { return m_variant; }

 private:
  VARIANT m_variant = {};
};

/// If it fails for lack of memory, nothing can be done; the document is of no use then anyway.
void Clear(IXMLDOMDocument2& document) {
  VARIANT_BOOL isLoaded = VARIANT_FALSE;
  document.loadXML(CBstr(L"").get(), &isLoaded);  // fails and leaves the document empty
}

/// The more informative of MSXML's error and the mismatched tag.
DOMDocProblem Malformedness(const std::optional<DOMDocProblem>& said, const std::optional<DOMDocProblem>& mismatch) {
  if (said && said->line != 0) {
    DOMDocProblem problem = *said;
    if (mismatch && mismatch->line == said->line) problem.element = mismatch->element;
    return problem;
  }
  if (mismatch) return *mismatch;
  const std::string reason = said && !said->reason.empty() ? ": " + said->reason : std::string(".");
  return {0, 0, {}, "The file is not well-formed XML" + reason};
}

bool LoadBytes(IXMLDOMDocument2& document, const std::string& bytes, const std::optional<DOMDocProblem>& mismatch,
               xmlfile::CProblems& problems) {
  VARIANT_BOOL isLoaded = VARIANT_FALSE;
  RequireSuccess(document.load(CByteArray(bytes).get(), &isLoaded), document, IID_IXMLDOMDocument2);
  if (isLoaded != VARIANT_FALSE) return true;
  CComPointer<IXMLDOMParseError> error;
  RequireSuccess(document.get_parseError(error.Receive()), document, IID_IXMLDOMDocument2);
  const DOMDocProblem problem = Malformedness(ProblemOf(*error), mismatch);
  problems.Add(problem.line, problem.column, problem.element, problem.reason);
  return false;
}

/// Not every MSXML honours "ProhibitDTD".
bool HasDocumentType(IXMLDOMDocument2& document) {
  CComPointer<IXMLDOMDocumentType> type;
  RequireSuccess(document.get_doctype(type.Receive()), document, IID_IXMLDOMDocument2);
  return static_cast<bool>(type);
}

void SetProperty(IXMLDOMDocument2& document, const wchar_t* name, VARIANT value) {
  // If this MSXML lacks the property, it lacks what the property controls too.
  static_cast<void>(document.setProperty(CBstr(name).get(), value));
}

VARIANT Boolean(bool value) {
  VARIANT variant = {};
  variant.vt = VT_BOOL;
  variant.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  return variant;
}

VARIANT Number(LONG value) {
  VARIANT variant = {};
  variant.vt = VT_I4;
  variant.lVal = value;
  return variant;
}

/// Loads the text of a file into an empty document; if that fails, the document is still empty.
/// \param file nothing if it could not be read, which is a problem already
std::optional<xmlfile::FileText> LoadText(IXMLDOMDocument2& document, std::optional<xmlfile::FileText> file,
                                          xmlfile::CProblems& problems) {
  if (!file) return std::nullopt;
  const xmlfile::Bounds bounds = xmlfile::CheckBounds(*file);
  const MarkupFindings markup = CheckMarkup(*file, bounds.end);
  if (const auto& problem = markup.problem ? markup.problem : bounds.problem; problem) {
    problems.Add(problem->line, problem->column, problem->element, problem->reason);
    return std::nullopt;
  }
  if (!LoadBytes(document, file->bytes, markup.mismatch, problems)) return std::nullopt;
  if (HasDocumentType(document)) {
    problems.Add(0, 0, {}, xmlfile::kDocumentTypeReason);
  } else if (bounds.tagCount == 0) {
    // Only in a document whose encoding was misjudged can there be no tags, and so no bounds.
    problems.Add(0, 0, {}, "The encoding of the file is not supported here.");
  } else {
    return file;
  }
  Clear(document);
  return std::nullopt;
}

}  // namespace

DOMDocument2Ptr MakeDocument() {
  DOMDocument2Ptr document;
  void** place = reinterpret_cast<void**>(document.Receive());
  const HRESULT result = CoCreateInstance(kDocumentClass, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument2, place);
  if (FAILED(result)) _com_issue_errorex(result, nullptr, IID_IXMLDOMDocument2);
  RequireSuccess(document->put_async(VARIANT_FALSE), *document, IID_IXMLDOMDocument2);
  RequireSuccess(document->put_resolveExternals(VARIANT_FALSE), *document, IID_IXMLDOMDocument2);
  RequireSuccess(document->put_validateOnParse(VARIANT_FALSE), *document, IID_IXMLDOMDocument2);
  SetProperty(*document, L"ProhibitDTD", Boolean(true));
  SetProperty(*document, L"UseInlineSchema", Boolean(false));
  SetProperty(*document, L"NormalizeAttributeValues", Boolean(true));
  SetProperty(*document, L"MaxElementDepth", Number(xmlfile::kGreatestDepth + 1));  // our own limit is lower
  return document;
}

std::optional<xmlfile::FileText> LoadFile(IXMLDOMDocument2& document, const std::filesystem::path& path,
                                          xmlfile::CProblems& problems) {
  Clear(document);  // before anything can fail
  return LoadText(document, xmlfile::ReadFileText(path, problems), problems);
}

std::optional<xmlfile::FileText> LoadContent(IXMLDOMDocument2& document, std::string_view content,
                                             xmlfile::CProblems& problems) {
  Clear(document);
  return LoadText(document, xmlfile::ReadFileText(content, problems), problems);
}

std::optional<DOMDocProblem> ProblemOf(IXMLDOMParseError& error) {
  LONG code = 0;
  RequireSuccess(error.get_errorCode(&code), error, IID_IXMLDOMParseError);
  if (code == 0) return std::nullopt;
  CBstr reason;
  LONG line = 0;
  LONG column = 0;
  RequireSuccess(error.get_reason(reason.Receive()), error, IID_IXMLDOMParseError);
  RequireSuccess(error.get_line(&line), error, IID_IXMLDOMParseError);
  RequireSuccess(error.get_linepos(&column), error, IID_IXMLDOMParseError);
  return DOMDocProblem{static_cast<std::size_t>(std::max(line, LONG{0})),
                       static_cast<std::size_t>(std::max(column, LONG{0})),
                       {},
                       Utf16ToUtf8(reason.View())};
}

}  // namespace msxml6
