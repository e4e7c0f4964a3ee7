// Random VIFs, and random changes to them.
#pragma once

#include "diff/Vif.h"
#include "support/Random.h"

#include <cstddef>
#include <random>
#include <string>
#include <utility>

namespace vifanalysis::difftest {

/// Fields of a few names and values in groups of every kind, with and without numbers, names several times in one
/// group, and names that only the vocabulary places. So two of them have much in common.
class CRandomVif {
 public:
  explicit CRandomVif(std::mt19937_64& generator) : m_generator(generator) {}

  Fields Make() {
    Fields fields;
    const std::size_t count = Below(60);
    for (std::size_t i = 0; i < count; ++i) fields.push_back(Field());
    return fields;
  }

 private:
  std::size_t Below(std::size_t bound) { return testsupport::RandomBelow(m_generator, bound); }

  std::uint64_t GroupNumber(std::size_t below) {
    return Below(20) == 0 ? CVIFField::INDEX_NOT_SPECIFIED : std::uint64_t{1 + Below(below)};
  }

  GroupPlace Place() {
    const VifIndex component = {eVifLocComponent, 1 + Below(2)};
    switch (Below(8)) {
      case 0: return Nowhere();
      case 1: return At({eVifLocVif, 0});
      case 2: return At({eVifLocProduct, 0}, {eVifLocRouter, Below(3)}, {eVifLocRouterPcie, GroupNumber(3)});
      case 3: return At(component);
      case 4: return At(component, {eVifLocSopSvid, GroupNumber(3)}, {eVifLocSopSvidMode, GroupNumber(3)});
      case 5: return At(component, {eVifLocSopSvid, GroupNumber(3)});
      default: return At(component, {eVifLocSrcPdo, GroupNumber(5)});
    }
  }

  CVIFField Field() {
    static constexpr const char* names[] = {
        "Src_PDO_Voltage", "Src_PDO_Max_Current",  "SVID_SOP", "$Port_Label", "Odd", "UUT_Device_Type",
        "PD_Port_Type",    "SVID1_Mode2_Enter_SOP"};
    static constexpr const char* values[] = {"0", "1", "YES", "0x1", "100", "0x64", "", "text", "12 V"};
    const bool isNumeric = Below(4) != 0;
    return {isNumeric, names[Below(std::size(names))], values[Below(std::size(values))], Below(2) == 0 ? "" : "words",
            Place()};
  }

  std::mt19937_64& m_generator;
};

}  // namespace vifanalysis::difftest
