#include "TextReader.h"

#include "BaseUtilities/PathText.h"
#include "Errors.h"
#include "FieldResolver.h"
#include "LineGrammar.h"
#include "LineSource.h"
#include "ProgressMeter.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <regex>
#include <string_view>

namespace vif {

namespace {

/// Turns the lines of one file into fields. Buffers are members, so that lines share their allocations.
class CLineReader {
 public:
  /// For loading: appends the fields to a list.
  CLineReader(const std::vector<VifFieldDef>* table, FieldSink sink)
      : m_resolver(table, sink.componentCount), m_fields(&sink.fields) {}

  /// For checking: reports to the observers.
  CLineReader(const std::vector<VifFieldDef>* table, std::uint32_t component, TextObservers observers)
      : m_resolver(table, component),
        m_lineObserver(observers.lines ? &observers.lines : nullptr),
        m_fieldObserver(observers.fields ? &observers.fields : nullptr) {}

  void ReadLine(std::string_view line) {
    ++m_lineNumber;
    const SplitLine split = SplitContentAndComment(line);
    if (split.content.empty()) return;
    const std::optional<Declaration> declaration = m_grammar.Parse(split.content);
    if (!declaration) {
      Report(line, eVifLineNotUnderstood, split.content);
      return;
    }
    Resolve(declaration->name);
    if (m_lineObserver != nullptr && !IsKnown(*declaration)) Report(line, eVifLineUnknownName, split.content);
    HandOutField(*declaration, split.comment);
  }

  /// Reports that the file could not be read past the last complete line. A partial line before the error is dropped:
  /// its number might have had more digits.
  void ReportReadFailure() {
    ++m_lineNumber;
    Report({}, eVifLineReadFailed, {});
  }

 private:
  void HandOutField(const Declaration& declaration, std::string_view comment) {
    if (m_fields == nullptr && m_fieldObserver == nullptr) return;
    std::string_view value = declaration.value;
    std::string_view description = comment;
    // Only these spellings are replaced, and their comment with them. Others, such as "Yes", stay as written;
    // CVIFField turns them into numbers.
    if (!declaration.isString && (value == "YES" || value == "yes")) {
      value = "1";
      description = "YES";
    } else if (!declaration.isString && (value == "NO" || value == "no")) {
      value = "0";
      description = "NO";
    }
    m_value = value;
    m_description = description;
    if (m_fields != nullptr) {
      m_fields->emplace_back(!declaration.isString, m_resolved.name, m_value, m_description, m_resolved.slots);
    } else {
      const CVIFField field(!declaration.isString, m_resolved.name, m_value, m_description, m_resolved.slots);
      (*m_fieldObserver)(m_lineNumber, field);
    }
  }

  void Resolve(std::string_view name) {
    try {
      m_resolver.Resolve(name, m_resolved);
    } catch (const std::regex_error& error) {
      ThrowRunTimeError(error.what());
    }
  }

  /// Whether a definition knows the name. A string declaration's counts as known when the definitions have it without
  /// its "$", although the field keeps the "$" and gets no location.
  bool IsKnown(const Declaration& declaration) const {
    if (m_resolved.isKnown || !declaration.isString) return m_resolved.isKnown;
    try {
      return m_resolver.Knows(declaration.name.substr(1));
    } catch (const std::regex_error&) {
      return false;  // loading does not ask this, so it must not fail the file
    }
  }

  void Report(std::string_view line, EVifLineProblem problem, std::string_view content) const {
    if (m_lineObserver != nullptr) (*m_lineObserver)({m_lineNumber, TrimBlanks(line), problem, content});
  }

  CLineGrammar m_grammar;
  CFieldResolver m_resolver;
  std::vector<CVIFField>* m_fields = nullptr;         // null when checking
  const VifLineObserver* m_lineObserver = nullptr;    // null when there is none
  const VifFieldObserver* m_fieldObserver = nullptr;  // the same
  size_t m_lineNumber = 0;
  ResolvedName m_resolved;
  std::string m_value;
  std::string m_description;
};

std::unique_ptr<std::istream> Open(const CVifSource& source) {
  if (source.Name().empty() && !source.IsInMemory()) {
    ThrowRunTimeError("%s: Internal error: NULL file name.", "CVIFImpl::ReadTextFile");
  }
  std::unique_ptr<std::istream> stream = source.OpenText();
  if (stream == nullptr) ThrowRunTimeError("Couldn't open Vendor Info File: %S.", PathToSystem(source.Name()));
  return stream;
}

/// Calls `read` with each line, until the stream ends or cannot be read.
template <typename Read>
void ForEachLine(CLineSource& lines, const Read& read) {
  std::string_view line;
  while (lines.Next(line)) read(line);
}

void ReadLines(std::istream& stream, const std::string& pathText, CLineReader& reader) {
  CLineSource lines(stream, pathText);
  ForEachLine(lines, [&](std::string_view line) { reader.ReadLine(line); });
  // A read error that the stream does not report by exception ends the file without one.
  if (lines.HasFailed()) reader.ReportReadFailure();
}

}  // namespace

void ReadTextVif(const CVifSource& source, const std::vector<VifFieldDef>* table, FieldSink sink) {
  const std::unique_ptr<std::istream> stream = Open(source);
  const std::string pathText = PathToSystem(source.Name());
  if (source.Progress() == nullptr) {
    ReadTextVif(*stream, pathText, table, sink);
    return;
  }
  constexpr std::uint64_t stretch = 65'536;
  CProgressMeter meter(source, stretch);
  ++sink.componentCount;
  CLineReader reader(table, sink);
  CLineSource lines(*stream, pathText);
  std::uint64_t bytes = 0;
  ForEachLine(lines, [&](std::string_view line) {
    reader.ReadLine(line);
    bytes += line.size() + 1;  // the line feed
    meter.Reach(bytes, std::min(bytes, meter.Total()));
  });
  meter.Finish();
}

void ReadTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                 FieldSink sink) {
  ++sink.componentCount;
  CLineReader reader(table, sink);
  ReadLines(stream, pathText, reader);
}

void FollowTextVif(const CVifSource& source, const std::vector<VifFieldDef>* table, TextObservers observers) {
  const std::unique_ptr<std::istream> stream = Open(source);
  FollowTextVif(*stream, PathToSystem(source.Name()), table, observers);
}

void FollowTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                   TextObservers observers) {
  constexpr std::uint32_t onlyComponent = 1;
  CLineReader reader(table, onlyComponent, observers);
  ReadLines(stream, pathText, reader);
}

}  // namespace vif
