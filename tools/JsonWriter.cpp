#include "FieldText.h"
#include "Json.h"
#include "Output.h"
#include "Writers.h"

namespace tool {

namespace {

Json ToJson(const CVIFField& field) {
  Json indexes = Json::array();
  for (const VifIndex& slot : field.Indexes()) {
    if (!IsUsed(slot)) continue;
    const Json number = HasNumber(slot) ? Json(std::get<1>(slot)) : Json();
    indexes.push_back({{"location", LocationName(slot)}, {"index", number}});
  }
  return {
      {"name", field.Name()},
      {"value", field.Value()},
      {"description", field.Description()},
      {"numeric", field.IsNumeric()},
      {"number", HasNumber(field) ? Json(field.GetULongNumericValue()) : Json()},
      {"indexes", std::move(indexes)},
  };
}

}  // namespace

// Written field by field, so that a large file needs no second copy of itself in memory.
void WriteJson(const std::vector<std::string>& fileNames, const CVendorInfoFile& vif) {
  Write("{\"files\":" + Dump(fileNames) + ",\n");
  Write("\"componentCount\":" + std::to_string(vif.ComponentCount()) + ",\n");
  Write("\"fields\":[");
  const VifFieldList fields = vif.GetFields();
  const char* separator = "\n";
  for (const CVIFField& field : *fields) {
    Write(separator + Dump(ToJson(field)));
    separator = ",\n";
  }
  Write("\n]}\n");
}

}  // namespace tool
