#include "TextReader.h"

#include "Errors.h"
#include "FieldResolver.h"
#include "LineGrammar.h"
#include "LineSource.h"
#include "PathText.h"

#include <fstream>
#include <optional>
#include <regex>
#include <string_view>
#include <system_error>

namespace vif {

namespace {

/// Turns the lines of one file into fields. What it works with from line to line is kept, to save allocations.
class CLineReader {
 public:
  CLineReader(const std::vector<VifFieldDef>* table, FieldSink sink, const VifLineObserver* observer)
      : m_resolver(table, sink.componentCount), m_fields(sink.fields), m_observer(observer) {}

  void ReadLine(std::string_view line) {
    ++m_lineNumber;
    const SplitLine split = SplitContentAndComment(line);
    if (split.content.empty()) return;
    const std::optional<Declaration> declaration = m_grammar.Parse(split.content);
    if (!declaration) {
      Report(line, eVifLineNotUnderstood);
      return;
    }
    Resolve(declaration->name);
    if (m_observer != nullptr && !IsKnown(*declaration)) Report(line, eVifLineUnknownName);
    AppendField(*declaration, split.comment);
  }

  /// Reports that the file could not be read on behind the last line. The piece of a line that may have come
  /// before the error is not taken for a line: its number might have gone on.
  void ReportReadFailure() {
    ++m_lineNumber;
    Report({}, eVifLineReadFailed);
  }

 private:
  void AppendField(const Declaration& declaration, std::string_view comment) {
    std::string_view value = declaration.value;
    std::string_view description = comment;
    // Just these spellings: others, such as "Yes", stay as they are written and are read by CVIFField. The
    // comment gives way to the word.
    if (!declaration.isString && (value == "YES" || value == "yes")) {
      value = "1";
      description = "YES";
    } else if (!declaration.isString && (value == "NO" || value == "no")) {
      value = "0";
      description = "NO";
    }
    m_value = value;
    m_description = description;
    m_fields.emplace_back(!declaration.isString, m_resolved.name, m_value, m_description, m_resolved.slots);
  }

  void Resolve(std::string_view name) {
    try {
      m_resolver.Resolve(name, m_resolved);
    } catch (const std::regex_error& error) {
      ThrowRunTimeError(error.what());
    }
  }

  /// Whether a definition knows the name. The built-in definitions know the names of string declarations without
  /// the "$", although they are stored with it and in no group.
  bool IsKnown(const Declaration& declaration) const {
    if (m_resolved.isKnown || !declaration.isString) return m_resolved.isKnown;
    try {
      return m_resolver.Knows(declaration.name.substr(1));
    } catch (const std::regex_error&) {
      return false;  // loading never asks this, so it cannot fail the file
    }
  }

  void Report(std::string_view line, EVifLineProblem problem) const {
    if (m_observer != nullptr) (*m_observer)({m_lineNumber, TrimBlanks(line), problem});
  }

  CLineGrammar m_grammar;
  CFieldResolver m_resolver;
  std::vector<CVIFField>& m_fields;
  const VifLineObserver* m_observer;
  size_t m_lineNumber = 0;
  ResolvedName m_resolved;
  std::string m_value;
  std::string m_description;
};

}  // namespace

void ReadTextVif(const std::filesystem::path& path, const std::vector<VifFieldDef>* table, FieldSink sink,
                 const VifLineObserver* observer) {
  if (path.empty()) ThrowRunTimeError("%s: Internal error: NULL file name.", "CVIFImpl::ReadTextFile");

  std::error_code statusError;
  std::ifstream stream;
  if (std::filesystem::is_regular_file(path, statusError)) stream.open(path);
  const std::string pathText = NarrowPathText(path);
  if (!stream.is_open()) ThrowRunTimeError("Couldn't open Vendor Info File: %S.", pathText);

  ReadTextVif(stream, pathText, table, sink, observer);
}

void ReadTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                 FieldSink sink, const VifLineObserver* observer) {
  ++sink.componentCount;
  CLineReader reader(table, sink, observer);
  CLineSource lines(stream, pathText);
  std::string_view line;
  while (lines.Next(line)) reader.ReadLine(line);
  // A read error of which the stream makes no exception ends the file quietly.
  if (lines.HasFailed()) reader.ReportReadFailure();
}

}  // namespace vif
