#include "msxml/XmlParser.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml/InputFile.h"
#include "msxml/Limits.h"
#include "msxml/TagGuard.h"
#include "msxml/ThreadErrors.h"
#include "msxml/XmlError.h"
#include "msxml/XmlText.h"

#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlschemastypes.h>

#include <algorithm>
#include <cstdint>
#include <mutex>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace msxml {

namespace {

// The limits that libxml2 sets on the length of texts and names are lifted: a text takes no more memory than the file
// has, and entities, which could multiply it, cannot be declared.
// That the five entities of every document are replaced everywhere has to be asked for.
constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOENT;

/// What the parser reads from: a file whose tags are kept within bounds.
struct Source {
  CInputFile file;
  CTagGuard guard;

  static int Read(void* context, char* buffer, int length) noexcept {
    auto& source = *static_cast<Source*>(context);
    const int count = CInputFile::Read(&source.file, buffer, length);
    return count <= 0 || source.guard.Take(buffer, static_cast<std::size_t>(count)) ? count : -1;
  }
};

struct FreeContext {
  void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using ContextPointer = std::unique_ptr<xmlParserCtxt, FreeContext>;

/// One run of the parser. It stands behind the parser's `_private` pointer.
struct Run {
  CProblems& problems;
  std::vector<Position> positions;
  const CTagGuard& guard;
  std::uint64_t textLength = 0;  // since the last tag
  std::uint64_t copied = 0;      // of that text
  bool isStopped = false;        // what the parser says then is of no interest

  void BeginText() { textLength = copied = 0; }
};

Run& RunOf(const xmlParserCtxt& context) { return *static_cast<Run*>(context._private); }

std::uint32_t CountCharacters(const xmlChar* begin, const xmlChar* end) {
  return static_cast<std::uint32_t>(std::count_if(begin, end, [](xmlChar c) { return (c & 0xC0) != 0x80; }));
}

/// Where the start tag begins whose attributes have just been parsed. The column is 0 when the beginning of its line
/// is no longer in the parser's buffer.
Position StartTagPosition(const xmlParserInput& input) {
  const xmlChar* tag = input.cur;
  while (tag > input.base && *tag != '<') --tag;  // no attribute's value can contain one
  const auto line = static_cast<std::uint32_t>(std::max(input.line, 1));
  const auto lineFeeds = static_cast<std::uint32_t>(std::count(tag, input.cur, '\n'));
  if (lineFeeds == 0) {
    const std::uint32_t behind = CountCharacters(tag, input.cur);
    const auto column = static_cast<std::uint32_t>(std::max(input.col, 1));
    return {line, column > behind ? column - behind : 0};
  }
  const xmlChar* lineBegin = tag;
  while (lineBegin > input.base && lineBegin[-1] != '\n') --lineBegin;
  const bool isKnown = lineBegin > input.base || line == lineFeeds + 1;
  return {line - std::min(line, lineFeeds), isKnown ? CountCharacters(lineBegin, tag) + 1 : 0};
}

void Stop(xmlParserCtxt& context, std::string_view element, std::string_view reason) {
  Run& run = RunOf(context);
  if (std::exchange(run.isStopped, true)) return;
  const Position position = context.input != nullptr ? StartTagPosition(*context.input) : Position{};
  run.problems.Add(position.line, position.column, element, reason);
  xmlStopParser(&context);
}

void StartElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
                  const xmlChar** namespaces, int attributeCount, int defaultedCount, const xmlChar** attributes) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  Run& run = RunOf(context);
  run.BeginText();
  try {
    if (context.nodeNr >= kGreatestDepth) {
      Stop(context, QualifiedName(prefix, name), TooDeepReason());
      return;
    }
    if (static_cast<std::size_t>(context.nsNr) / 2 > kMostNamespaces) {
      Stop(context, QualifiedName(prefix, name), TooManyNamespacesReason());
      return;
    }
    run.positions.push_back(StartTagPosition(*context.input));
  } catch (const std::bad_alloc&) {
    run.problems.RanOutOfMemory();
    xmlStopParser(&context);
    return;
  }
  xmlSAX2StartElementNs(data, name, prefix, uri, namespaceCount, namespaces, attributeCount, defaultedCount,
                        attributes);
  if (context.node != nullptr) CXmlTree::SetNumber(*context.node, run.positions.size());
}

void EndElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri) {
  RunOf(*static_cast<const xmlParserCtxt*>(data)).BeginText();
  xmlSAX2EndElementNs(data, name, prefix, uri);
}

void Characters(void* data, const xmlChar* text, int length) {
  RunOf(*static_cast<const xmlParserCtxt*>(data)).textLength += static_cast<std::uint64_t>(length);
  xmlSAX2Characters(data, text, length);
}

/// Counts what the piece behind costs.
void EndPiece(void* data) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  Run& run = RunOf(context);
  run.copied += run.textLength;
  if (run.copied <= kMostCopied) return;
  const xmlChar* name = context.node != nullptr ? context.node->name : nullptr;
  Stop(context, View(name), kTooManyPiecesReason);
}

void Comment(void* data, const xmlChar* text) {
  EndPiece(data);
  xmlSAX2Comment(data, text);
}

void Instruction(void* data, const xmlChar* target, const xmlChar* text) {
  EndPiece(data);
  xmlSAX2ProcessingInstruction(data, target, text);
}

void CData(void* data, const xmlChar* text, int length) {
  EndPiece(data);
  RunOf(*static_cast<const xmlParserCtxt*>(data)).textLength += static_cast<std::uint64_t>(length);
  xmlSAX2CDataBlock(data, text, length);
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  ToUpper(upper);
  return upper;
}

/// The encoding that the file is decoded from; empty for UTF-8, which needs no decoding.
std::string Encoding(const xmlParserCtxt& context) {
  const xmlParserInputBuffer* buffer = context.input != nullptr ? context.input->buf : nullptr;
  if (buffer == nullptr || buffer->encoder == nullptr || buffer->encoder->name == nullptr) return {};
  return UpperCase(buffer->encoder->name);
}

/// Is called behind the XML declaration, when the encoding is settled.
void StartDocument(void* data) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  try {
    const std::string encoding = Encoding(context);
    const bool isKnown = encoding.empty() || IsSupportedEncoding(encoding);
    if (!isKnown || IsUtf16(encoding) != RunOf(context).guard.IsUtf16()) {
      Stop(context, {}, UnsupportedEncodingReason(encoding.empty() ? "UTF-8" : encoding));
      return;
    }
  } catch (const std::bad_alloc&) {
    RunOf(context).problems.RanOutOfMemory();
    xmlStopParser(&context);
    return;
  }
  xmlSAX2StartDocument(data);
}

void RefuseDocumentType(void* data, const xmlChar* name, const xmlChar*, const xmlChar*) {
  Stop(*static_cast<xmlParserCtxt*>(data), View(name), kDocumentTypeReason);
}

void ReportError(void* data, xmlErrorPtr error) {
  const auto& context = *static_cast<xmlParserCtxt*>(data);
  if (RunOf(context).isStopped && error->code != XML_ERR_NO_MEMORY) return;
  const std::string_view element = context.node != nullptr ? View(context.node->name) : std::string_view();
  // What concerns the decoding knows no line of its own.
  const int line = error->line > 0 || context.input == nullptr ? error->line : context.input->line;
  AddError(RunOf(context).problems, *error, static_cast<std::size_t>(std::max(line, 0)),
           static_cast<std::size_t>(std::max(error->int2, 0)), element);
}

ContextPointer MakeContext(Run& run) {
  ContextPointer context(xmlNewParserCtxt());
  if (context == nullptr) throw std::bad_alloc();
  context->_private = &run;
  context->sax->startDocument = StartDocument;
  context->sax->startElementNs = StartElement;
  context->sax->endElementNs = EndElement;
  context->sax->characters = Characters;
  context->sax->ignorableWhitespace = Characters;
  context->sax->comment = Comment;
  context->sax->processingInstruction = Instruction;
  context->sax->cdataBlock = CData;
  context->sax->internalSubset = RefuseDocumentType;
  context->sax->serror = ReportError;
  return context;
}

}  // namespace

std::shared_ptr<const CXmlTree> ParseXmlFile(const std::filesystem::path& path, CProblems& problems) {
  InitializeXmlLibrary();
  Source source{CInputFile(path), {}};
  if (!source.file.IsOpen()) {
    problems.Add(0, 0, {}, "The file " + source.file.Error() + ".");
    return nullptr;
  }
  Run run{problems, {}, source.guard};
  const ContextPointer context = MakeContext(run);
  const CThreadErrors otherErrors(ReportError, context.get());
  DocumentPointer document(xmlCtxtReadIO(context.get(), Source::Read, nullptr, &source, nullptr, nullptr, kOptions));
  // What the parser says of a file that ends too early is of no interest.
  if (source.file.HasFailed() || source.guard.HasTripped()) problems.Clear();
  if (source.file.HasFailed()) problems.Add(0, 0, {}, "The file " + source.file.Error() + ".");
  if (source.guard.HasTripped()) {
    problems.Add(source.guard.Line(), 0, {}, TooManyAttributesReason());
  }
  const bool isSound = document != nullptr && context->wellFormed == 1 && context->nsWellFormed == 1;
  // The parser takes a NUL for the end.
  if (isSound && context->input != nullptr && context->input->cur < context->input->end) {
    problems.Add(static_cast<std::size_t>(std::max(context->input->line, 0)), 0, {}, kNulReason);
  }
  if (!isSound && problems.IsEmpty()) problems.Add(0, 0, {}, "The file is not well-formed XML.");
  if (!problems.IsEmpty()) return nullptr;
  return std::make_shared<const CXmlTree>(std::move(document), std::move(run.positions));
}

void InitializeXmlLibrary() {
  static std::once_flag once;
  std::call_once(once, [] {
    xmlInitParser();
    xmlSchemaInitTypes();  // has no lock of its own
  });
}

}  // namespace msxml
