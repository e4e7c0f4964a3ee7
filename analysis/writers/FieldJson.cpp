#include "writers/JsonText.h"

namespace vifanalysis {

namespace {

void AppendField(std::string& out, const CVIFField& field) {
  out += R"({"name":)";
  AppendJson(out, field.Name());
  AppendMember(out, "value", field.Value());
  AppendMember(out, "description", field.Description());
  out.append(R"(,"numeric":)").append(field.IsNumeric() ? "true" : "false");
  out.append(R"(,"number":)").append(HasNumber(field) ? std::to_string(field.GetULongNumericValue()) : "null");
  AppendMember(out, "indexes", field.Indexes());
  out += '}';
}

}  // namespace

void WriteFieldsAsJson(std::span<const std::string> fileNames, std::uint32_t componentCount,
                       std::span<const CVIFField> fields, const TextSink& sink) {
  std::string begin = R"({"files":[)";
  const char* separator = "";
  for (const std::string& name : fileNames) {
    begin += separator;
    AppendJson(begin, name);
    separator = ",";
  }
  begin.append("],\n\"componentCount\":").append(std::to_string(componentCount)).append(",\n\"fields\":");
  // An empty list has its end on a line of its own, too.
  if (fields.empty()) {
    sink(begin + "[\n]}\n");
    return;
  }
  WriteList(std::move(begin), fields, AppendField, sink);
  sink("}\n");
}

}  // namespace vifanalysis
