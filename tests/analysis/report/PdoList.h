// PDOs made for a test.
#pragma once

#include "Example.h"
#include "rules/PdoFacts.h"
#include "rules/VifView.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vifanalysis {

/// The PDOs of one side of a port, with numbers as a file has them.
class CPdoList {
 public:
  explicit CPdoList(PdoSide side = PdoSide::Source) : m_side(side) {}

  CPdoList& Fixed(std::uint64_t voltage, std::uint64_t current) {
    return Pdo(0).With("Voltage", voltage).With(Ending("Current"), current);
  }
  CPdoList& Battery(std::uint64_t lowest, std::uint64_t highest, std::uint64_t power) {
    return Pdo(1).Range(lowest, highest).With(Ending("Power"), power);
  }
  CPdoList& Variable(std::uint64_t lowest, std::uint64_t highest, std::uint64_t current) {
    return Pdo(2).Range(lowest, highest).With(Ending("Current"), current);
  }
  CPdoList& Pps(std::uint64_t lowest, std::uint64_t highest, std::uint64_t current) {
    return Pdo(3).With("APDO_Type", 0).Range(lowest, highest).With(Ending("Current"), current);
  }
  CPdoList& EprAvs(std::uint64_t lowest, std::uint64_t highest, std::uint64_t rating) {
    return Pdo(3).With("APDO_Type", 1).Range(lowest, highest).With("PDP_Rating", rating);
  }
  CPdoList& SprAvs(std::uint64_t lowest, std::uint64_t highest) {
    return Pdo(3).With("APDO_Type", 2).Range(lowest, highest);
  }

  /// Begins a PDO with no more than a type of supply.
  CPdoList& Pdo(std::uint64_t supplyType) {
    ++m_count;
    return With("Supply_Type", supplyType);
  }

  /// Gives the last PDO a field.
  CPdoList& With(std::string_view ending, std::uint64_t number) {
    const Place place = m_side == PdoSide::Source ? SrcPdo(1, m_count) : SnkPdo(1, m_count);
    const std::string name = std::string(m_side == PdoSide::Source ? "Src_PDO_" : "Snk_PDO_").append(ending);
    m_fields.push_back({CVIFField(true, name, std::to_string(number), place), m_fields.size() + 1, 0, name});
    return *this;
  }

  const FoundFields& Fields() const { return m_fields; }
  PdoSide Side() const { return m_side; }

 private:
  CPdoList& Range(std::uint64_t lowest, std::uint64_t highest) {
    return With("Min_Voltage", lowest).With("Max_Voltage", highest);
  }
  std::string Ending(std::string_view quantity) const {
    return std::string(m_side == PdoSide::Source ? "Max_" : "Op_").append(quantity);
  }

  PdoSide m_side;
  std::uint64_t m_count = 0;
  FoundFields m_fields;
};

/// A charger of 240 W with one of nearly everything that there is.
inline CPdoList EprCharger() {
  CPdoList list;
  list.Fixed(100, 300).Fixed(180, 300).Fixed(300, 300).Fixed(400, 500).Pps(33, 110, 100).Pps(33, 210, 100);
  return list.Fixed(560, 500).Fixed(720, 500).Fixed(960, 500).EprAvs(150, 480, 240);
}

/// The PDOs of such a list.
class CPdoListView {
 public:
  explicit CPdoListView(const CPdoList& list) : m_list(list), m_view(m_list.Fields()) {}

  std::span<const CPdoView> Pdos() const {
    if (m_view.Components().empty()) return {};
    return m_view.Components().front().Pdos(m_list.Side());
  }

 private:
  CPdoList m_list;
  CVifView m_view;
};

}  // namespace vifanalysis
