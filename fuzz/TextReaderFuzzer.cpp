// Reads arbitrary bytes as a text VIF. This must never fail, and the fields must be sound.
#include "Checks.h"
#include "TextReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using fuzz::Require;

void CheckPlace(const CVIFField& field) {
  EVifLocation around = eVifLocUnset;
  for (const auto& [location, number] : field.Indexes()) {
    if (location == eVifLocUnset) break;
    Require(GetVifLocParent(location) == around, "the slots lead from the outermost group to the innermost");
    Require(location != eVifLocComponent || number == 1, "the file is component 1");
    around = location;
  }
}

void CheckTexts(const CVIFField& field) {
  Require(*field.Name() != '\0', "a field has a name");
  Require(field.IsNumeric() == (*field.Name() != '$'), "string declarations keep their $, and only they");
  for (const std::string_view text : {field.Name(), field.Value(), field.Description()}) {
    Require(text.find('\n') == std::string_view::npos, "a field comes from one line");
  }
}

std::vector<CVIFField> Load(const std::string& text) {
  std::istringstream stream(text);
  std::vector<CVIFField> fields;
  std::uint32_t componentCount = 0;
  vif::ReadTextVif(stream, "fuzzed", nullptr, {fields, componentCount});
  Require(componentCount == 1, "a text VIF is one component");
  return fields;
}

/// Checks and collects what the observers are told, for comparison with loading.
class CObserved {
 public:
  void Line(const VifLineReport& report) {
    Advance(report.line);
    Require(report.problem == eVifLineNotUnderstood || report.problem == eVifLineUnknownName,
            "reading from memory does not fail");
    Require(!report.content.empty(), "a reported line has content");
    Require(report.text.substr(0, report.content.size()) == report.content, "the content begins the text");
  }

  void Field(std::size_t line, const CVIFField& field) {
    Require(line > m_lineOfField, "a line yields at most one field");
    m_lineOfField = line;
    Advance(line);
    m_fields.push_back(field);
  }

  const std::vector<CVIFField>& Fields() const { return m_fields; }
  std::size_t LastLine() const { return m_line; }

 private:
  void Advance(std::size_t line) {
    Require(line > 0 && line >= m_line, "reports come in the order of the file");
    m_line = line;
  }

  std::size_t m_line = 0;
  std::size_t m_lineOfField = 0;
  std::vector<CVIFField> m_fields;
};

CObserved Follow(const std::string& text) {
  std::istringstream stream(text);
  CObserved observed;
  const VifLineObserver lines = [&](const VifLineReport& report) { observed.Line(report); };
  const VifFieldObserver fields = [&](std::size_t line, const CVIFField& field) { observed.Field(line, field); };
  vif::FollowTextVif(stream, "fuzzed", nullptr, {lines, fields});
  return observed;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const std::vector<CVIFField> fields = Load(text);
  for (const CVIFField& field : fields) {
    fuzz::CheckField(field);
    CheckPlace(field);
    CheckTexts(field);
  }
  const CObserved observed = Follow(text);
  Require(fuzz::AreSame(fields, observed.Fields()), "following a file yields the fields that loading it yields");
  const auto lineFeeds = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  Require(observed.LastLine() <= lineFeeds + 1, "no line is reported after the last");
  return 0;
}
