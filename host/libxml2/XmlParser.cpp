#include "libxml2/XmlParser.h"

#include "libxml2/Errors.h"
#include "libxml2/XmlText.h"
#include "xmlfile/Bounds.h"
#include "xmlfile/Limits.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/xmlschemastypes.h>

#include <algorithm>
#include <mutex>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace libxml2 {

namespace {

// XML_PARSE_HUGE lifts libxml2's limits on the length of texts and names: a text takes little more memory than the
// file, and entities, which could multiply it, cannot be declared. XML_PARSE_NOENT is needed to replace the five
// predefined entities everywhere. XML_PARSE_COMPACT keeps short texts in their nodes, which makes parsing a tenth
// faster.
constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOENT | XML_PARSE_COMPACT;

using ContextPointer = std::unique_ptr<xmlParserCtxt, Freeing<xmlFreeParserCtxt>>;

/// An element whose end tag has not been read, by its name.
struct OpenElement {
  const xmlChar* prefix;  // null when there is none or its namespace is declared
  const xmlChar* name;
};

/// One run of the parser over the bytes of a file, which may end early.
struct Run {
  xmlfile::CProblems& problems;
  std::string_view bytes;
  std::size_t tagCount;  // the greatest number of elements allowed
  bool isWhole;          // whether the bytes are the whole file
  xmlParserCtxt* context = nullptr;
  std::size_t elementCount = 0;
  std::vector<OpenElement> open = {};  // NOLINT(readability-redundant-member-init): GCC asks for it
  bool isMalformed = false;
  bool isStopped = false;  // errors from then on are ignored
};

/// The run of this thread. libxml2 does not pass the same pointer to all callbacks.
thread_local Run* g_run = nullptr;

/// Ends the input where the file is no longer well-formed: the parser, which goes on after an error, might find tags
/// there that the check of the bounds would have refused.
int Read(void*, char* buffer, int length) noexcept {
  Run& run = *g_run;
  if (run.isMalformed) {
    run.isStopped = true;
    return 0;
  }
  const std::string_view piece = run.bytes.substr(0, static_cast<std::size_t>(length));
  std::copy(piece.begin(), piece.end(), buffer);
  run.bytes.remove_prefix(piece.size());
  return static_cast<int>(piece.size());
}

/// Whether the parser only complains about what was cut off.
bool IsCutOff(const Run& run, const xmlError& error) {
  return !run.isWhole && run.bytes.empty() &&
         (error.code == XML_ERR_TAG_NOT_FINISHED || error.code == XML_ERR_DOCUMENT_EMPTY);
}

void ReportError(void*, ErrorPointer error) {
  Run& run = *g_run;
  if (error->level == XML_ERR_FATAL) run.isMalformed = true;
  if ((run.isStopped || IsCutOff(run, *error)) && error->code != XML_ERR_NO_MEMORY) return;
  try {
    const OpenElement element = run.open.empty() ? OpenElement{} : run.open.back();
    // Errors in decoding have no line of their own.
    const int line = error->line > 0 ? error->line : xmlSAX2GetLineNumber(run.context);
    AddError(run.problems, *error, static_cast<std::size_t>(std::max(line, 0)),
             static_cast<std::size_t>(std::max(error->int2, 0)), QualifiedName(element.prefix, element.name),
             error->message);
  } catch (const std::bad_alloc&) {
    run.problems.RanOutOfMemory();
  }
}

void StartElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
                  const xmlChar** namespaces, int attributeCount, int defaultedCount, const xmlChar** attributes) {
  Run& run = *g_run;
  try {
    // This happens only if the file is decoded in another way than expected.
    if (++run.elementCount > run.tagCount) {
      if (!run.isStopped) run.problems.Add(1, 0, {}, "The encoding of the file is not supported here.");
      run.isStopped = true;
      xmlStopParser(run.context);
      return;
    }
    run.open.push_back({uri == nullptr ? prefix : nullptr, name});
  } catch (const std::bad_alloc&) {
    run.problems.RanOutOfMemory();
  }
  xmlSAX2StartElementNs(data, name, prefix, uri, namespaceCount, namespaces, attributeCount, defaultedCount,
                        attributes);
}

void EndElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) {
  if (!g_run->open.empty()) g_run->open.pop_back();
  xmlSAX2EndElementNs(data, name, prefix, uri);
}

ContextPointer MakeContext() {
  xmlSAXHandler handler = {};
  xmlSAXVersion(&handler, 2);
  handler.startElementNs = StartElement;
  handler.endElementNs = EndElement;
  handler.serror = ReportError;
#if LIBXML_VERSION >= 21100
  ContextPointer context(xmlNewSAXParserCtxt(&handler, nullptr));
  if (context == nullptr) throw std::bad_alloc();
#else
  ContextPointer context(xmlNewParserCtxt());
  if (context == nullptr) throw std::bad_alloc();
  *context->sax = handler;
#endif
  return context;
}

/// Makes a run the current one of this thread while it lives.
class CCurrentRun {
 public:
  explicit CCurrentRun(Run& run) { g_run = &run; }
  CCurrentRun(const CCurrentRun&) = delete;
  CCurrentRun& operator=(const CCurrentRun&) = delete;
  ~CCurrentRun() { g_run = nullptr; }
};

/// \return null when the bytes are not a document
DocumentPointer Parse(Run& run) {
  const CCurrentRun current(run);
  const CThreadErrors otherErrors(ReportError, nullptr);
  const ContextPointer context = MakeContext();
  run.context = context.get();
  run.open.reserve(xmlfile::kGreatestDepth);
  return DocumentPointer(xmlCtxtReadIO(context.get(), Read, nullptr, nullptr, nullptr, nullptr, kOptions));
}

}  // namespace

std::shared_ptr<const CXmlTree> ParseXmlFile(const std::filesystem::path& path, xmlfile::CProblems& problems) {
  return ParseXml(xmlfile::ReadFileText(path, problems), problems);
}

std::shared_ptr<const CXmlTree> ParseXml(std::optional<xmlfile::FileText> file, xmlfile::CProblems& problems) {
  if (!file) return nullptr;
  const xmlfile::Bounds bounds = xmlfile::CheckBounds(*file);
  const std::string_view bytes = std::string_view(file->bytes).substr(0, file->ByteOffset(bounds.end));
  InitializeXmlLibrary();
  Run run{problems, bytes, bounds.tagCount, !bounds.problem};
  DocumentPointer document = Parse(run);
  if (!problems.IsEmpty()) return nullptr;
  if (const auto& beyond = bounds.problem; beyond) {
    problems.Add(beyond->line, beyond->column, beyond->element, beyond->reason);
  } else if (document == nullptr) {
    problems.Add(0, 0, {}, "The file is not well-formed XML.");
  } else {
    return std::make_shared<const CXmlTree>(std::move(document), std::move(*file));
  }
  return nullptr;
}

void InitializeXmlLibrary() {
  static std::once_flag once;
  std::call_once(once, [] {
    const CThreadErrors otherErrors(CThreadErrors::Ignore, nullptr);
    xmlInitParser();
    xmlSchemaInitTypes();  // is not thread-safe
  });
}

}  // namespace libxml2
