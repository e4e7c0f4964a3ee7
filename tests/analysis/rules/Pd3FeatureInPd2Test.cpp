#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

/// A port of revision 2. Its edition is one that does not yet have the other fields of the revision.
CExample Revision2(const char* name) {
  CExample example(name);
  example.SetEdition("2.04")
      .Set(Component(1), "PD_Specification_Revision", "1")
      .Set(Component(1), "Chunking_Implemented_SOP", "NO")
      .Set(Component(1), "Manufacturer_Info_Supported_Port", "NO");
  return example;
}

Expected CameWithRevision3(const std::string& features) {
  return {"pd3-feature-in-pd2", "PD_Specification_Revision",
          "Component 1: PD_Specification_Revision is 1 (Revision 2), but " + features + " came with revision 3"};
}

TEST(Pd3FeatureInPd2Test, AllowsAPortOfRevision2WithoutThem) {
  EXPECT_THAT(Revision2("dual-role-tablet.txt").Findings(), Are({}));
}

TEST(Pd3FeatureInPd2Test, FindsEachFeature) {
  for (const char* name :
       {"Chunking_Implemented_SOP", "Unchunked_Extended_Messages_Supported", "Security_Msgs_Supported_SOP",
        "Manufacturer_Info_Supported_Port", "FR_Swap_Supported_As_Initial_Sink", "Data_Reset_Supported",
        "Enter_USB_Supported", "EPR_Supported_As_Src", "EPR_Supported_As_Snk"}) {
    CExample tablet = Revision2("dual-role-tablet.txt");
    tablet.Set(Component(1), name, "YES");
    EXPECT_THAT(tablet.Findings(), Are({CameWithRevision3(name)}));
  }
}

TEST(Pd3FeatureInPd2Test, FindsAugmentedPdos) {
  EXPECT_THAT(Revision2("gan-charger-65w.txt").Findings(), Are({CameWithRevision3("augmented source PDOs")}));
  CExample light = Revision2("desk-light.txt");
  light.Add(SnkPdo(1, 3), "Snk_PDO_Supply_Type", "3")
      .Add(SnkPdo(1, 3), "Snk_PDO_Min_Voltage", "33")
      .Add(SnkPdo(1, 3), "Snk_PDO_Max_Voltage", "110")
      .Add(SnkPdo(1, 3), "Snk_PDO_Op_Current", "40");
  EXPECT_THAT(light.Findings(), Are({CameWithRevision3("augmented sink PDOs")}));
}

TEST(Pd3FeatureInPd2Test, NamesAllFeaturesAtOnce) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("2.04").Set(Component(1), "PD_Specification_Revision", "1");
  EXPECT_THAT(charger.Findings(), Are({CameWithRevision3("Chunking_Implemented_SOP, Manufacturer_Info_Supported_Port "
                                                         "and augmented source PDOs")}));
}
}  // namespace
}  // namespace vifanalysis
