#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

enum ProductType : std::uint8_t { PortProduct = 0, Cable = 1, Repeater = 2 };

constexpr std::uint64_t kEMarker = 5;  // PD_Port_Type

CMentions OfACable(const CComponentView& component) {
  CMentions mentions;
  for (const std::string_view beginning : {"Cable_", "Active_Cable_", "Type_C_To_", "SBU_"}) {
    mentions.AddFields(component, beginning);
  }
  for (const std::string_view name : {"VBUS_Through_Cable", "Max_VBUS_Voltage_Vdm_V2", "EPR_Mode_Capable"}) {
    mentions.AddField(component, name);
  }
  for (const CGroupView& svid : component.AllGroups(eVifLocCableSvid)) mentions.AddGroup(svid, "a cable's SVID");
  return mentions;
}

CMentions OfAPort(const CComponentView& component) {
  CMentions mentions;
  if (component.Number("PD_Port_Type").value_or(kEMarker) != kEMarker) {
    mentions.Add(*component.Find("PD_Port_Type"), NameAndValue(component, "PD_Port_Type"));
  }
  for (const std::string_view rating : {"PD_Power_As_Source", "PD_Power_As_Sink"}) {
    if (component.Number(rating).value_or(0) != 0) mentions.AddField(component, rating);
  }
  for (const CGroupView& pdo : component.AllGroups(eVifLocSrcPdo)) mentions.AddGroup(pdo, "a source PDO");
  for (const CGroupView& pdo : component.AllGroups(eVifLocSnkPdo)) mentions.AddGroup(pdo, "a sink PDO");
  for (const CGroupView& svid : component.AllGroups(eVifLocSopSvid)) mentions.AddGroup(svid, "a port's SVID");
  return mentions;
}

bool IsOfAnEMarker(const CComponentView& component) {
  return component.MayBeYes("Captive_Cable_Is_eMarked") || component.Number("PD_Port_Type") == kEMarker;
}

void Report(const CMentions& mentions, const CVifView& file, std::string_view what, CReporter& reporter) {
  if (mentions.IsEmpty()) return;
  reporter.Add(mentions.First(), FieldIs(*file.FindHeader("VIF_Product_Type"), file)
                                     .append(", but ")
                                     .append(mentions.InWords())
                                     .append(mentions.Size() == 1 ? " belongs to " : " belong to ")
                                     .append(what));
}

void CheckCertification(const CVifView& file, std::uint64_t type, CReporter& reporter) {
  constexpr std::uint64_t referencePlatform = 1;
  constexpr std::uint64_t silicon = 2;
  const CGroupView* product = file.Product();
  const std::optional<std::uint64_t> certification =
      product != nullptr ? product->Number("Certification_Type") : std::nullopt;
  if (!certification) return;
  const bool isWrong =
      (type == Cable && *certification == referencePlatform) || (type == Repeater && *certification != silicon);
  if (!isWrong) return;
  const FoundField& blamed = *product->Find("Certification_Type");
  reporter.Add(blamed, FieldIs(blamed, file)
                           .append(", which is not for a product whose ")
                           .append(FieldIs(*file.FindHeader("VIF_Product_Type"), file)));
}

}  // namespace

void CheckCableAndPort(const CVifView& file, CReporter& reporter) {
  const std::optional<std::uint64_t> type = file.HeaderNumber("VIF_Product_Type");
  if (!type) return;
  CheckCertification(file, *type, reporter);
  for (const CComponentView& component : file.Components()) {
    if (type == PortProduct && !IsOfAnEMarker(component)) Report(OfACable(component), file, "a cable", reporter);
    if (type == Cable) Report(OfAPort(component), file, "a port", reporter);
  }
}

}  // namespace vifanalysis
