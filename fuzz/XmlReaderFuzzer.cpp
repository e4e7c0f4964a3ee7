// Reads arbitrary bytes as an XML VIF: they become fields, or one of the documented exceptions says why not.
#include "BaseUtilities/Exceptions.h"
#include "Checks.h"
#include "ElementMutator.h"
#include "MemoryFile.h"
#include "VIFInvalidFile.h"
#include "VIFXmlCheck.h"
#include "XmlReader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using fuzz::Require;

const fuzz::CMemoryFile& File() {
  static const fuzz::CMemoryFile file;
  return file;
}

void CheckProblems(const std::vector<DOMDocProblem>& problems) {
  Require(!problems.empty(), "a file is not invalid without a reason");
  for (const DOMDocProblem& problem : problems) {
    Require(!problem.reason.empty(), "a problem has a reason");
    for (const std::string& text : {problem.reason, problem.element}) {
      Require(fuzz::IsUtf8(text), "a problem's texts are UTF-8");
      Require(std::none_of(text.begin(), text.end(), [](char c) { return c >= '\0' && c < ' '; }),
              "a problem's texts are on one line");
    }
    Require(problem.line != 0 || problem.column == 0, "a column is in a line");
  }
}

/// Runs the function and returns the message of the exception that it throws, or nothing if it throws none.
std::string FailureOf(const std::function<void()>& function) {
  try {
    function();
    return {};
  } catch (const CVIFInvalidFile& error) {
    CheckProblems(error.Problems());
    return error.what();
  } catch (const CZoException& error) {
    const std::string_view text = error.what();
    Require(!text.starts_with("Couldn't load the schema"), "the schemas can be loaded");
    Require(!text.empty(), "an exception has a message");
    return error.what();
  }
}

void CheckPlace(const CVIFField& field, std::uint32_t componentCount) {
  const auto& [outermost, number] = field.Indexes()[0];
  switch (outermost) {
    case eVifLocComponent: Require(number >= 1 && number <= componentCount, "components are numbered from 1"); break;
    case eVifLocVif: Require(number == 0, "there is one file"); break;
    default:
      Require(outermost == eVifLocProduct || outermost == eVifLocUnset,
              "a place is in the header, a product or a component");
  }
}

struct Outcome {
  std::vector<CVIFField> fields;
  std::string failure;  // empty when there was none
};

/// Appends the file to a list that already has a field, which must stay.
Outcome Load() {
  const CVIFField first(true, "Num_Src_PDOs", "7", {eVifLocComponent, 9}, CVIFField::UNSPECIFIED_INDEX,
                        CVIFField::UNSPECIFIED_INDEX);
  Outcome outcome{{first}, {}};
  std::uint32_t componentCount = 0;
  outcome.failure = FailureOf([&] { vif::ReadXmlVif(File().Path(), {outcome.fields, componentCount}); });
  Require(!outcome.fields.empty() && fuzz::AreSame(outcome.fields.front(), first), "what was loaded before stays");
  outcome.fields.erase(outcome.fields.begin());
  Require(outcome.fields.empty() || !outcome.failure.ends_with(" is not a valid Vendor Info File."),
          "a file that is not valid yields nothing");
  for (const CVIFField& field : outcome.fields) {
    fuzz::CheckField(field);
    CheckPlace(field, componentCount);
  }
  return outcome;
}

/// The lines of a text, provided the parser sees every byte as the same character; none for any other text.
std::vector<std::string> PlainLines(const std::string& text) {
  const bool isPlain =
      std::all_of(text.begin(), text.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); });
  const bool isRecoded = text.find("encoding") != std::string::npos && text.find("\"utf-8\"") == std::string::npos;
  std::vector<std::string> lines;
  if (!isPlain || isRecoded) return lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

void CheckReport(const VifElementReport& report, const std::vector<std::string>& lines) {
  Require(report.path.starts_with("VIF/"), "an element's path begins at the root");
  Require(report.line > 0, "every element has a line");
  if (lines.empty() || report.column == 0) return;
  Require(report.line <= lines.size() && report.column <= lines[report.line - 1].size() &&
              lines[report.line - 1][report.column - 1] == '<',
          "an element's position is that of its start tag");
}

/// Reads the file as `CheckXmlVif` does.
Outcome Check(const std::string& text) {
  const std::vector<std::string> lines = PlainLines(text);
  Outcome outcome;
  bool isSkipped = false;
  const VifElementObserver observer = [&](const VifElementReport& report) {
    CheckReport(report, lines);
    Require(report.field == nullptr || !isSkipped, "skipped elements are reported last");
    isSkipped = report.field == nullptr;
    if (report.field != nullptr) outcome.fields.push_back(*report.field);
  };
  outcome.failure = FailureOf([&] { CheckXmlVif(File().Path(), observer); });
  return outcome;
}

constexpr std::string_view kValidFile = R"(<?xml version="1.0" encoding="utf-8"?>
<vif:VIF xmlns:vif="http://usb.org/VendorInfoFile.xsd">
  <vif:Vendor_Name>A maker</vif:Vendor_Name>
  <vif:Component>
    <vif:SrcPdoList>
      <vif:SrcPDO>
        <vif:Src_PDO_Voltage value="100">5000 mV</vif:Src_PDO_Voltage>
      </vif:SrcPDO>
    </vif:SrcPdoList>
  </vif:Component>
</vif:VIF>
)";

}  // namespace

/// Makes sure that the schemas are found and work; without them the fuzzer would reach next to nothing.
extern "C" int LLVMFuzzerInitialize(int*, char***) {
  std::string text(kValidFile);
  File().Write(text);
  Require(Load().failure.empty() && Check(text).fields.size() == 2, "a valid file is read");
  text.replace(text.find("100"), 3, "1oo");
  File().Write(text);
  Require(!Load().failure.empty(), "a file with a value that the schema rejects is not read");
  return 0;
}

/// Mostly mutates whole elements; otherwise mutates as libFuzzer does.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
  std::minstd_rand random(seed);
  if (std::bernoulli_distribution(0.25)(random)) return LLVMFuzzerMutate(data, size, maxSize);
  const std::string text = fuzz::MutateElements(std::string(data, data + size), random);
  if (text.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  std::copy(text.begin(), text.end(), data);
  return text.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  File().Write(text);
  const Outcome loaded = Load();
  const Outcome checked = Check(text);
  Require(loaded.failure == checked.failure, "checking a file fails as loading it does");
  if (!loaded.failure.empty()) return 0;
  Require(fuzz::AreSame(loaded.fields, checked.fields), "checking a file reports the fields that loading it yields");
  return 0;
}
