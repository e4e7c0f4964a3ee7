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

}  // namespace
}  // namespace vifanalysis
