#include "DifferenceLines.h"
#include "DifferenceWriters.h"
#include "Output.h"
#include "Style.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>

#include <algorithm>
#include <string_view>

namespace cli {

using vifanalysis::Amount;
using vifanalysis::Differences;
using vifanalysis::Finding;
using vifanalysis::FindingChanges;
using vifanalysis::GroupPlace;
using vifanalysis::PlaceInWords;
using vifanalysis::PortComparison;

namespace {

std::string HeadingOf(const GroupPlace& place) {
  const EVifLocation kind = std::get<0>(place.front());
  if (kind == eVifLocProduct) return "Product";
  if (kind == eVifLocUnset) return "In no group";
  if (kind == eVifLocVif || kind == eVifLocAppVersion) return "File";
  GroupPlace outermost;
  outermost.fill(CVIFField::UNSPECIFIED_INDEX);
  outermost.front() = place.front();
  return PlaceInWords(outermost);
}

void WriteIndented(const std::string& text) {
  Write("  ");
  Write(text + '\n');
}

void WriteLines(const Differences& differences, bool withDescriptions) {
  std::string heading;
  for (const DifferenceLine& line : DifferenceLines(differences, withDescriptions)) {
    const std::string own = HeadingOf(line.place);
    if (own != heading) Write(Heading(own) + '\n');
    heading = own;
    WriteIndented(line.text);
  }
  if (!differences.IsEmpty()) Write("\n");
}

void WriteFinding(const std::string& what, const Finding& finding) {
  Write(what + ' ' + SeverityName(finding.severity) + ": " + finding.message + " [" + finding.code + "]\n");
}

/// "2 findings fixed, 1 new"; the noun stands once.
std::string SummaryOf(const FindingChanges& findings) {
  const std::size_t fixed = findings.fixed.size();
  const std::size_t added = findings.added.size();
  if (fixed == 0) return Amount(added, "new finding");
  std::string summary = Amount(fixed, "finding") + " fixed";
  return added == 0 ? summary : summary.append(", ").append(std::to_string(added)).append(" new");
}

void WriteFindings(const FindingChanges& findings) {
  if (findings.fixed.empty() && findings.added.empty()) return;
  Write("\n");
  for (const Finding& finding : findings.fixed) WriteFinding(Added("fixed"), finding);
  for (const Finding& finding : findings.added) WriteFinding(Removed("new"), finding);
  Write(SummaryOf(findings) + '\n');
}

const char* WhyNothingIsCompared(std::size_t components) {
  if (components == 0) return "the file has no components\n";
  return components == 1 ? "the file has only one component\n" : "no two components are of the same kind\n";
}

}  // namespace

void WriteComparisonAsText(const FileComparison& comparison, bool withDescriptions) {
  WriteLines(comparison.differences, withDescriptions);
  Write(DifferenceSummary(comparison.differences) + '\n');
  WriteFindings(comparison.findings);
}

void WritePortsAsText(const FilePorts& ports, bool withDescriptions) {
  if (ports.ports.empty()) Write(WhyNothingIsCompared(ports.components));
  const char* separator = "";
  for (const PortComparison& port : ports.ports) {
    std::string pair = "Component ";
    pair.append(std::to_string(port.component)).append(", compared with Component ").append(std::to_string(port.other));
    Write(separator);
    Write(Heading(pair) + '\n');
    for (const DifferenceLine& line : DifferenceLines(port.differences, withDescriptions)) {
      WriteIndented(line.text);
    }
    WriteIndented(DifferenceSummary(port.differences));
    separator = "\n";
  }
}

}  // namespace cli
