#include <analysis/FieldText.h>
#include <analysis/Text.h>
#include <analysis/Writers.h>

#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string Quoted(std::string_view text) {
  std::string valid = ValidUtf8(text);
  if (valid.find_first_of(",\"\r\n") == std::string::npos) return valid;
  std::string out = "\"";
  for (const char c : valid) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + '"';
}

std::string Line(const CVIFField& field) {
  std::string line = Quoted(field.Name()) + ',' + Quoted(field.Value()) + ',' + Quoted(field.Description()) + ',';
  line += field.IsNumeric() ? "true," : "false,";
  if (HasNumber(field)) line += std::to_string(field.GetULongNumericValue());
  for (const VifIndex& slot : field.Indexes()) {
    line += ',' + (IsUsed(slot) ? LocationName(slot) : std::string()) + ',';
    if (IsUsed(slot) && HasNumber(slot)) line += std::to_string(std::get<1>(slot));
  }
  return line.append(kLineEnd);
}

}  // namespace

void WriteFieldsAsCsv(std::span<const CVIFField> fields, const TextSink& sink) {
  std::string header = "name,value,description,numeric,number";
  for (size_t slot = 1; slot <= CVIFField::MAX_INDEX_DEPTH; ++slot) {
    const std::string number = std::to_string(slot);
    header.append(",location").append(number).append(",index").append(number);
  }
  sink(header.append(kLineEnd));
  for (const CVIFField& field : fields) sink(Line(field));
}

}  // namespace vifanalysis
