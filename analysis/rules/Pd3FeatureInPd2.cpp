#include "files/Sentence.h"
#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

constexpr std::string_view kFeatures[] = {
    "Chunking_Implemented_SOP",
    "Unchunked_Extended_Messages_Supported",
    "Security_Msgs_Supported_SOP",
    "Manufacturer_Info_Supported_Port",
    "FR_Swap_Supported_As_Initial_Sink",
    "Data_Reset_Supported",
    "Enter_USB_Supported",
    "EPR_Supported_As_Src",
    "EPR_Supported_As_Snk",
};

bool HasAugmented(const std::vector<CPdoView>& pdos) {
  return std::any_of(pdos.begin(), pdos.end(), [](const CPdoView& pdo) { return pdo.OwnNumber("Supply_Type") == 3U; });
}

std::vector<std::string_view> NewerFeatures(const CComponentView& component) {
  std::vector<std::string_view> features;
  for (const std::string_view feature : kFeatures) {
    if (component.IsYes(feature)) features.push_back(feature);
  }
  if (HasAugmented(component.Pdos(PdoSide::Source))) features.push_back("augmented source PDOs");
  if (HasAugmented(component.Pdos(PdoSide::Sink))) features.push_back("augmented sink PDOs");
  return features;
}

}  // namespace

void CheckPd3FeatureInPd2(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view revision = "PD_Specification_Revision";
  if (component.Number(revision) != 1U || reporter.HasFound("pd-revision-pair", component)) return;
  const std::vector<std::string_view> features = NewerFeatures(component);
  if (features.empty()) return;
  reporter.Add(*component.Find(revision),
               FieldIs(component, revision) + ", but " + Listed(features) + " came with revision 3");
}

}  // namespace vifanalysis
