// VIFs to compare, built group by group.
#pragma once

#include <VIFField.h>
#include <analysis/Differences.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace vifanalysis::difftest {

using Fields = std::vector<CVIFField>;

inline GroupPlace Nowhere() {
  return {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
}

inline GroupPlace At(VifIndex first, VifIndex second = CVIFField::UNSPECIFIED_INDEX,
                     VifIndex third = CVIFField::UNSPECIFIED_INDEX) {
  return {first, second, third};
}

inline GroupPlace Component(std::uint64_t component) { return At({eVifLocComponent, component}); }

inline GroupPlace SrcPdo(std::uint64_t pdo, std::uint64_t component = 1) {
  return At({eVifLocComponent, component}, {eVifLocSrcPdo, pdo});
}

inline CVIFField Number(const GroupPlace& place, const std::string& name, const std::string& value) {
  return {true, name, value, "", place};
}

inline CVIFField Number(const GroupPlace& place, const std::string& name, std::uint64_t value) {
  return Number(place, name, std::to_string(value));
}

/// A text as the text form has it.
inline CVIFField Text(const std::string& name, const std::string& value) {
  return {false, "$" + name, value, "", Nowhere()};
}

/// A text as the XML form has it.
inline CVIFField XmlText(const GroupPlace& place, const std::string& name, const std::string& value) {
  return {false, name, "", value, place};
}

/// A fixed source PDO.
inline void AddPdo(Fields& fields, const GroupPlace& place, std::uint64_t voltage, std::uint64_t current = 300) {
  fields.push_back(Number(place, "Src_PDO_Supply_Type", 0));
  fields.push_back(Number(place, "Src_PDO_Peak_Current", 0));
  fields.push_back(Number(place, "Src_PDO_Voltage", voltage));
  fields.push_back(Number(place, "Src_PDO_Max_Current", current));
}

/// Fixed source PDOs of component 1, numbered from 1.
inline Fields Pdos(const std::vector<std::uint64_t>& voltages) {
  Fields fields;
  for (std::size_t i = 0; i < voltages.size(); ++i) AddPdo(fields, SrcPdo(i + 1), voltages[i]);
  return fields;
}

}  // namespace vifanalysis::difftest
