#include "msxml/XmlParser.h"

#include "BaseUtilities/StringConvert.h"
#include "msxml/CountBytes.h"
#include "msxml/InputFile.h"
#include "msxml/Limits.h"
#include "msxml/MemoryWatch.h"
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
#include <cstring>
#include <mutex>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace msxml {

namespace {

// The limits that libxml2 sets on the length of texts and names are lifted: a text takes little more memory than the
// file has, and entities, which could multiply it, cannot be declared. That the five entities of every document are
// replaced everywhere has to be asked for.
constexpr int kOptions = XML_PARSE_NONET | XML_PARSE_HUGE | XML_PARSE_NOENT;

struct FreeContext {
  void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using ContextPointer = std::unique_ptr<xmlParserCtxt, FreeContext>;

/// One run of the parser. It stands behind the parser's `_private` pointer.
struct Run {
  CProblems& problems;
  const CTagGuard& guard;
  CTreeBuilder& builder;
  std::vector<Position> positions;
  std::uint64_t textLength = 0;  // since the last tag
  std::uint64_t copied = 0;      // of that text
  bool isStopped = false;        // what the parser says then is of no interest

  void BeginText() { textLength = copied = 0; }
};

Run& RunOf(const xmlParserCtxt& context) { return *static_cast<Run*>(context._private); }

/// What the parser reads from: a file whose tags are kept within bounds.
struct Source {
  CInputFile file;
  CTagGuard guard;
  xmlParserCtxt& context;

  /// Ends where the file is no longer well-formed: behind that the parser, which goes on, may find tags where the guard
  /// sees none.
  static int Read(void* data, char* buffer, int length) noexcept {
    auto& source = *static_cast<Source*>(data);
    if (source.context.wellFormed == 0) {
      RunOf(source.context).isStopped = true;
      return 0;
    }
    const int count = CInputFile::Read(&source.file, buffer, length);
    return count <= 0 || source.guard.Take(buffer, static_cast<std::size_t>(count)) ? count : -1;
  }
};

std::uint32_t CountCharacters(std::string_view utf8) {
  const auto isFirstByte = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
  return static_cast<std::uint32_t>(CountBytes(utf8, isFirstByte));
}

/// Where the start tag begins whose attributes have just been parsed. The column is 0 when the beginning of its line
/// is no longer in the parser's buffer.
Position StartTagPosition(const xmlParserInput& input) {
  const std::string_view read = Between(input.base, input.cur);
  const void* found = memrchr(read.data(), '<', read.size());  // no attribute's value can contain one
  const std::size_t begin =
      found != nullptr ? static_cast<std::size_t>(static_cast<const char*>(found) - read.data()) : 0;
  const std::string_view tag = read.substr(begin);
  const auto line = static_cast<std::uint32_t>(std::max(input.line, 1));
  if (tag.find('\n') == std::string_view::npos) {
    const std::uint32_t behind = CountCharacters(tag);
    const auto column = static_cast<std::uint32_t>(std::max(input.col, 1));
    return {line, column > behind ? column - behind : 0};
  }
  const auto lineFeeds = static_cast<std::uint32_t>(std::count(tag.begin(), tag.end(), '\n'));
  const std::string_view before = read.substr(0, begin);
  const std::size_t lineBegin = before.rfind('\n') + 1;  // npos + 1 is 0
  const bool isKnown = lineBegin > 0 || line == lineFeeds + 1;
  return {line - std::min(line, lineFeeds), isKnown ? CountCharacters(before.substr(lineBegin)) + 1 : 0};
}

void Stop(xmlParserCtxt& context, std::string_view element, std::string_view reason) {
  Run& run = RunOf(context);
  if (std::exchange(run.isStopped, true)) return;
  const Position position = context.input != nullptr ? StartTagPosition(*context.input) : Position{};
  run.problems.Add(position.line, position.column, element, reason);
  xmlStopParser(&context);
}

/// Does what the parser calls for, unless memory runs out.
template <typename Action>
void Build(xmlParserCtxt& context, const Action& action) noexcept {
  try {
    action(RunOf(context));
  } catch (const std::bad_alloc&) {
    RunOf(context).problems.RanOutOfMemory();
    xmlStopParser(&context);
  }
}

void AddElement(xmlParserCtxt& context, Run& run, const StartTag& tag) {
  run.BeginText();
  if (context.nodeNr >= kGreatestDepth) {
    Stop(context, QualifiedName(tag.prefix, tag.name), TooDeepReason());
  } else if (static_cast<std::size_t>(context.nsNr) / 2 > kMostNamespaces) {
    Stop(context, QualifiedName(tag.prefix, tag.name), TooManyNamespacesReason());
  } else {
    run.positions.push_back(StartTagPosition(*context.input));
    CXmlTree::SetNumber(run.builder.StartElement(tag), run.positions.size());
  }
}

void StartElement(void* data, const xmlChar* name, const xmlChar* prefix, const xmlChar* uri, int namespaceCount,
                  const xmlChar** namespaces, int attributeCount, int, const xmlChar** attributes) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  const StartTag tag{name,       prefix,
                     uri,        static_cast<std::size_t>(namespaceCount),
                     namespaces, static_cast<std::size_t>(attributeCount),
                     attributes};
  Build(context, [&](Run& run) { AddElement(context, run, tag); });
}

void EndElement(void* data, const xmlChar*, const xmlChar*, const xmlChar*) {
  Build(*static_cast<xmlParserCtxt*>(data), [](Run& run) {
    run.BeginText();
    run.builder.EndElement();
  });
}

void Characters(void* data, const xmlChar* text, int length) {
  Build(*static_cast<xmlParserCtxt*>(data), [&](Run& run) {
    run.textLength += static_cast<std::uint64_t>(length);
    run.builder.AddText(Between(text, text + length));
  });
}

/// Counts what the piece behind costs.
void EndPiece(xmlParserCtxt& context) {
  Run& run = RunOf(context);
  run.copied += run.textLength;
  if (run.copied <= kMostCopied) return;
  const xmlChar* name = context.node != nullptr ? context.node->name : nullptr;
  Stop(context, View(name), kTooManyPiecesReason);
}

void Comment(void* data, const xmlChar* text) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  Build(context, [&](Run& run) {
    EndPiece(context);
    run.builder.AddComment(View(text));
  });
}

void Instruction(void* data, const xmlChar* target, const xmlChar* text) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  Build(context, [&](Run& run) {
    EndPiece(context);
    run.builder.AddInstruction(target, View(text));
  });
}

void CData(void* data, const xmlChar* text, int length) {
  auto& context = *static_cast<xmlParserCtxt*>(data);
  Build(context, [&](Run& run) {
    EndPiece(context);
    run.textLength += static_cast<std::uint64_t>(length);
    run.builder.AddCData(Between(text, text + length));
  });
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
  Build(context, [&](const Run& run) {
    const std::string encoding = Encoding(context);
    const bool isKnown = encoding.empty() || IsSupportedEncoding(encoding);
    if (isKnown && IsUtf16(encoding) == run.guard.IsUtf16()) {
      xmlSAX2StartDocument(&context);
    } else {
      Stop(context, {}, UnsupportedEncodingReason(encoding.empty() ? "UTF-8" : encoding));
    }
  });
}

void RefuseDocumentType(void* data, const xmlChar* name, const xmlChar*, const xmlChar*) {
  Stop(*static_cast<xmlParserCtxt*>(data), View(name), kDocumentTypeReason);
}

void ReportError(void* data, xmlErrorPtr error) {
  const auto& context = *static_cast<xmlParserCtxt*>(data);
  if (RunOf(context).isStopped && error->code != XML_ERR_NO_MEMORY) return;
  // A namespace is a name, whether or not it has the form of a URI.
  if (error->code == XML_WAR_NS_URI) return;
  const std::string_view element = context.node != nullptr ? View(context.node->name) : std::string_view();
  // What concerns the decoding knows no line of its own.
  const int line = error->line > 0 || context.input == nullptr ? error->line : context.input->line;
  AddError(RunOf(context).problems, *error, static_cast<std::size_t>(std::max(line, 0)),
           static_cast<std::size_t>(std::max(error->int2, 0)), element);
}

/// How much memory to begin with. A VIF's tree takes about seven times as much as its file; the more pieces it comes
/// in, the more is asked of the system, and given back to it at the end.
std::size_t MemoryFor(const CInputFile& file) {
  constexpr std::int64_t most = std::int64_t{1} << 20;
  return static_cast<std::size_t>(8 * std::clamp<std::int64_t>(file.GetStamp().size, 512, most / 8));
}

ContextPointer MakeContext() {
  const CThreadErrors otherErrors(CThreadErrors::Ignore, nullptr);  // that there is no memory, which would be printed
  ContextPointer context(xmlNewParserCtxt());
  if (context == nullptr) throw std::bad_alloc();
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
  const CMemoryWatch watch;
  const ContextPointer context = MakeContext();
  Source source{CInputFile(path), {}, *context};
  if (!source.file.IsOpen()) {
    problems.Add(0, 0, {}, "The file " + source.file.Error() + ".");
    return nullptr;
  }
  auto memory = std::make_unique<TreeMemory>(MemoryFor(source.file));
  CTreeBuilder builder(*context, *memory);
  Run run{problems, source.guard, builder, {}};
  context->_private = &run;
  const CThreadErrors otherErrors(ReportError, context.get());
  DocumentPointer document(xmlCtxtReadIO(context.get(), Source::Read, nullptr, &source, nullptr, nullptr, kOptions));
  watch.RequireMemory();
  // What the parser says of a file that ends too early is of no interest.
  if (source.file.HasFailed() || source.guard.HasTripped()) problems.Clear();
  if (source.file.HasFailed()) problems.Add(0, 0, {}, "The file " + source.file.Error() + ".");
  if (source.guard.HasTripped()) {
    problems.Add(source.guard.Line(), 0, {}, TooManyAttributesReason());
  }
  const bool isSound = document != nullptr && context->wellFormed == 1;
  // The parser takes a NUL for the end.
  if (isSound && context->input != nullptr && context->input->cur < context->input->end) {
    problems.Add(static_cast<std::size_t>(std::max(context->input->line, 0)), 0, {}, kNulReason);
  }
  if (!isSound && problems.IsEmpty()) problems.Add(0, 0, {}, "The file is not well-formed XML.");
  if (!problems.IsEmpty()) return nullptr;
  builder.Attach(*document);
  return std::make_shared<const CXmlTree>(std::move(memory), std::move(document), std::move(run.positions));
}

void InitializeXmlLibrary() {
  CMemoryWatch::Install();
  static std::once_flag once;
  std::call_once(once, [] {
    const CThreadErrors otherErrors(CThreadErrors::Ignore, nullptr);
    const CMemoryWatch watch;
    xmlInitParser();
    xmlSchemaInitTypes();   // has no lock of its own
    watch.RequireMemory();  // the next call tries again
  });
}

}  // namespace msxml
