#include <analysis/FieldText.h>

namespace vifanalysis {

namespace {

/// What a group is called in a sentence; null for groups that need no mention.
const char* GroupName(EVifLocation kind) {
  switch (kind) {
    case eVifLocComponent: return "Component ";
    case eVifLocSrcPdo: return "Source PDO ";
    case eVifLocSnkPdo: return "Sink PDO ";
    case eVifLocSopSvid: return "SOP SVID ";
    case eVifLocCableSvid: return "Cable SVID ";
    case eVifLocSopSvidMode:
    case eVifLocCableSvidMode: return "Mode ";
    case eVifLocRouter: return "Router ";
    case eVifLocRouterPcie: return "PCIe Endpoint ";
    case eVifLocUnset:
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct: break;
  }
  return nullptr;
}

}  // namespace

std::string LocationName(const VifIndex& slot) { return GetVifLocInfo(std::get<0>(slot)).name; }

bool IsUsed(const VifIndex& slot) { return std::get<0>(slot) != eVifLocUnset; }

bool HasNumber(const VifIndex& slot) { return std::get<1>(slot) != CVIFField::INDEX_NOT_SPECIFIED; }

bool HasNumber(const CVIFField& field) {
  return field.IsNumeric() && field.GetULongNumericValue() != CVIFField::VIF_VALUE_UNSET_64;
}

std::string NumberText(const VifIndex& slot) { return HasNumber(slot) ? std::to_string(std::get<1>(slot)) : "?"; }

std::string LocationText(const CVIFField& field) {
  std::string text;
  for (const VifIndex& slot : field.Indexes()) {
    if (!IsUsed(slot)) continue;
    if (!text.empty()) text += " \u00B7 ";
    text += LocationName(slot) + ' ' + NumberText(slot);
  }
  return text;
}

std::string PlaceInWords(const GroupPlace& place, std::size_t from) {
  std::string words;
  for (std::size_t depth = from; depth < place.size(); ++depth) {
    const char* name = GroupName(std::get<0>(place[depth]));
    if (name == nullptr) continue;
    words.append(words.empty() ? "" : ", ").append(name).append(NumberText(place[depth]));
  }
  return words;
}

}  // namespace vifanalysis
