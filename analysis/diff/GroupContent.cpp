#include "diff/GroupContent.h"

#include <algorithm>
#include <iterator>

namespace vifanalysis {

namespace {

constexpr std::uint64_t kHashBegin = 0xcbf29ce484222325;

/// FNV-1a.
std::uint64_t Hash(std::string_view text, std::uint64_t hash) {
  constexpr std::uint64_t prime = 0x100000001b3;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * prime;
  return (hash ^ 0xFF) * prime;  // a byte that ends the text and is in no UTF-8
}

std::uint64_t Mix(std::uint64_t hash, std::uint64_t number) {
  constexpr std::uint64_t odd = 0x9e3779b97f4a7c15;
  hash = (hash ^ number) * odd;
  return hash ^ (hash >> 32U);
}

/// Whether the field tells a group from others of its kind.
bool IsTelling(std::string_view name) {
  constexpr std::string_view telling[] = {
      "Src_PDO_Supply_Type",
      "Src_PDO_Voltage",
      "Src_PDO_Min_Voltage",
      "Src_PDO_Max_Voltage",
      "Snk_PDO_Supply_Type",
      "Snk_PDO_Voltage",
      "Snk_PDO_Min_Voltage",
      "Snk_PDO_Max_Voltage",
      "SVID",
      "SVID_SOP",
      "SVID_Mode_Recog_Value",
      "SVID_Mode_Recog_Value_SOP",
      "USB4_Router_ID",
      "USB4_PCIe_Endpoint_Vendor_ID",
      "USB4_PCIe_Endpoint_Device_ID",
      "Port_Label",
  };
  return std::find(std::begin(telling), std::end(telling), name) != std::end(telling);
}

void AddFields(const CGroupView& group, bool isInner, DiffContent& content) {
  constexpr std::uint64_t tellingWeight = 4;
  for (const auto& [name, found, isSound] : group.Fields()) {
    const bool isTelling = IsTelling(name);
    const std::uint64_t nameHash = Hash(name, kHashBegin);
    const std::uint64_t valueHash = Hash(found->field.Value(), nameHash);
    content.names.Add(nameHash, 1);
    content.values.Add(valueHash, isTelling ? tellingWeight : 1);
    content.hash = Mix(content.hash, valueHash);
    if (isTelling && !isInner) content.identity = Mix(content.identity, valueHash);
  }
  for (const CGroupView& inner : group.Groups()) {
    content.hash = Mix(content.hash, static_cast<std::uint64_t>(inner.Kind()));
    AddFields(inner, true, content);
  }
}

}  // namespace

void CWeightedItems::Add(std::uint64_t item, std::uint64_t weight) {
  m_items.emplace_back(item, weight);
  m_total += weight;
}

void CWeightedItems::Finish() {
  std::sort(m_items.begin(), m_items.end());
  auto last = m_items.begin();
  for (auto item = m_items.begin(); item != m_items.end(); ++item) {
    if (item == m_items.begin()) continue;
    if (item->first == last->first) {
      last->second += item->second;
    } else {
      *++last = *item;
    }
  }
  if (!m_items.empty()) m_items.erase(std::next(last), m_items.end());
}

std::uint64_t CWeightedItems::Common(const CWeightedItems& other) const {
  if (m_items.size() > other.m_items.size()) return other.Common(*this);
  std::uint64_t common = 0;
  auto from = other.m_items.begin();
  for (const auto& [item, weight] : m_items) {
    from = std::lower_bound(from, other.m_items.end(), item,
                            [](const auto& entry, std::uint64_t wanted) { return entry.first < wanted; });
    if (from == other.m_items.end()) break;
    if (from->first == item) common += std::min(weight, from->second);
  }
  return common;
}

DiffContent::DiffContent(const CGroupView& ofGroup) : group(&ofGroup) {
  AddFields(ofGroup, false, *this);
  values.Finish();
  names.Finish();
}

}  // namespace vifanalysis
