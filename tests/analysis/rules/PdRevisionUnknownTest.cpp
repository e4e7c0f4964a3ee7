#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

void Replace(CExample& example, const char* name, const char* value) {
  example.Remove(Component(1), name).Add(Component(1), name, value);
}

CExample Charger(const char* revisionMinor, const char* versionMajor, const char* versionMinor) {
  CExample charger("gan-charger-65w.txt");
  Replace(charger, "PD_Spec_Revision_Minor", revisionMinor);
  Replace(charger, "PD_Spec_Version_Major", versionMajor);
  Replace(charger, "PD_Spec_Version_Minor", versionMinor);
  return charger;
}

/// A port of revision 2 without anything of revision 3.
CExample Revision2(const char* revisionMinor, const char* versionMinor) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "PD_Specification_Revision", "1")
      .Set(Component(1), "PD_Spec_Revision_Major", "2")
      .Set(Component(1), "Chunking_Implemented_SOP", "NO")
      .Set(Component(1), "Manufacturer_Info_Supported_Port", "NO")
      .Remove(Component(1), "Manufacturer_Info_VID_Port")
      .Remove(Component(1), "Manufacturer_Info_PID_Port");
  Replace(tablet, "PD_Spec_Revision_Minor", revisionMinor);
  Replace(tablet, "PD_Spec_Version_Minor", versionMinor);
  return tablet;
}

Expected Unknown(const std::string& specification) {
  return {"pd-revision-unknown", "PD_Spec_Revision_Minor",
          "Component 1: there is no USB PD specification of " + specification};
}

TEST(PdRevisionUnknownTest, KnowsWhatWasPublished) {
  EXPECT_THAT(Charger("0", "1", "0").Findings(), Are({}));
  EXPECT_THAT(Charger("0", "1", "2").Findings(), Are({}));
  EXPECT_THAT(Charger("0", "2", "0").Findings(), Are({}));
  EXPECT_THAT(Charger("1", "1", "0").Findings(), Are({}));
  EXPECT_THAT(Charger("2", "1", "0").Findings(), Are({}));
  EXPECT_THAT(Revision2("0", "0").Findings(), Are({}));
  EXPECT_THAT(Revision2("0", "3").Findings(), Are({}));
}

TEST(PdRevisionUnknownTest, FindsVersionsThatWereNotPublished) {
  EXPECT_THAT(Charger("0", "1", "3").Findings(), Are({Unknown("revision 3.0, version 1.3")}));
  EXPECT_THAT(Charger("0", "2", "1").Findings(), Are({Unknown("revision 3.0, version 2.1")}));
  EXPECT_THAT(Charger("1", "1", "9").Findings(), Are({Unknown("revision 3.1, version 1.9")}));
  EXPECT_THAT(Charger("1", "0", "8").Findings(), Are({Unknown("revision 3.1, version 0.8")}));
  EXPECT_THAT(Charger("2", "2", "0").Findings(), Are({Unknown("revision 3.2, version 2.0")}));
  EXPECT_THAT(Revision2("0", "4").Findings(), Are({Unknown("revision 2.0, version 1.4")}));
}

TEST(PdRevisionUnknownTest, FindsRevisionsThatWereNotPublished) {
  EXPECT_THAT(Revision2("1", "0").Findings(), Are({Unknown("revision 2.1, version 1.0")}));
}

TEST(PdRevisionUnknownTest, AllowsVersionsThatAreYetToCome) {
  EXPECT_THAT(Charger("2", "1", "18446744073709551614").Findings(), Are({}));
  EXPECT_THAT(Charger("3", "1", "0").Findings(), Are({}));
}

TEST(PdRevisionUnknownTest, IsSilentWhereANumberIsMissing) {
  CExample charger = Charger("2", "2", "0");
  charger.Remove(Component(1), "PD_Spec_Version_Minor");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(PdRevisionUnknownTest, IsNotForOlderEditions) {
  CExample charger = Charger("2", "2", "0");
  charger.SetEdition("2.04");
  EXPECT_THAT(charger.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis
