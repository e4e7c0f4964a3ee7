#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(UnansweredTest, FindsATextThatIsStillTheEditors) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "Captive_Cable", "4", "<select>");
  EXPECT_THAT(laptop.Findings(), Are({{"unanswered", "Component[2]/Captive_Cable",
                                       "Component 2: 'Captive_Cable' is still the editor's \"<select>\""}}));
}

TEST(UnansweredTest, FindsAValueThatIsStillTheEditors) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Nowhere(), "$Product_Revision", "<select>");
  EXPECT_THAT(charger.Findings(),
              Are({{"unanswered", "$Product_Revision", "'$Product_Revision' is still the editor's \"<select>\""}}));
}

// Such a field has the number 4, which other rules would take for an answer.
TEST(UnansweredTest, IsTheOnlyFindingAboutTheField) {
  for (const char* name : {"PD_Port_Type", "Type_C_State_Machine", "PD_Power_As_Source"}) {
    CExample laptop("two-port-laptop.xml");
    laptop.Set(Component(2), name, "4", "<select>");
    for (const Finding& finding : laptop.Findings()) {
      if (finding.severity != Severity::Note) {
        EXPECT_EQ(finding.code, "unanswered") << name << ": " << finding.message;
      }
    }
  }
}

}  // namespace
}  // namespace vifanalysis
