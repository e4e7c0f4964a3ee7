#include "Json.h"
#include "Output.h"
#include "Writers.h"

#include <analysis/FieldText.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace cli {

using vifanalysis::HasNumber;
using vifanalysis::IsUsed;
using vifanalysis::LocationName;

namespace {

/// The number of bytes to collect before writing them.
constexpr std::size_t kBlock = std::size_t{64} * 1024;

bool IsSimple(char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; }

/// Most text needs no escapes. Listing a file of 200 components takes three times as long when all of it goes through
/// the JSON library.
void AppendText(std::string& out, std::string_view text) {
  if (!std::all_of(text.begin(), text.end(), IsSimple)) {
    out += Dump(Json(text));
    return;
  }
  out += '"';
  out += text;
  out += '"';
}

void AppendIndexes(std::string& out, const CVIFField& field) {
  out += '[';
  const char* separator = "";
  for (const VifIndex& slot : field.Indexes()) {
    if (!IsUsed(slot)) continue;
    out.append(separator).append(R"({"location":)");
    AppendText(out, LocationName(slot));
    out.append(R"(,"index":)").append(HasNumber(slot) ? std::to_string(std::get<1>(slot)) : "null").append("}");
    separator = ",";
  }
  out += ']';
}

void AppendField(std::string& out, const CVIFField& field) {
  out += R"({"name":)";
  AppendText(out, field.Name());
  out += R"(,"value":)";
  AppendText(out, field.Value());
  out += R"(,"description":)";
  AppendText(out, field.Description());
  out.append(R"(,"numeric":)").append(field.IsNumeric() ? "true" : "false");
  out.append(R"(,"number":)").append(HasNumber(field) ? std::to_string(field.GetULongNumericValue()) : "null");
  out += R"(,"indexes":)";
  AppendIndexes(out, field);
  out += '}';
}

}  // namespace

// Writes block by block, so that a large file is not in memory twice.
void WriteJson(const std::vector<std::string>& fileNames, const CVendorInfoFile& vif) {
  std::string block = "{\"files\":" + Dump(fileNames) + ",\n";
  block.append("\"componentCount\":").append(std::to_string(vif.ComponentCount())).append(",\n\"fields\":[");
  const char* separator = "\n";
  for (const CVIFField& field : vif.Fields()) {
    block += separator;
    AppendField(block, field);
    separator = ",\n";
    if (block.size() < kBlock) continue;
    Write(block);
    block.clear();
  }
  Write(block + "\n]}\n");
}

}  // namespace cli
