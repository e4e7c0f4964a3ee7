#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

Expected Against(const std::string& name, const std::string& message) {
  return {"product-type-against-role", name, "Component 1: " + message};
}

TEST(ProductTypeAgainstRoleTest, FindsAPeripheralOrHubThatIsNotADevice) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Product_Type_UFP_SOP", "1");
  EXPECT_THAT(light.Findings(),
              Are({Against("Product_Type_UFP_SOP",
                           "Product_Type_UFP_SOP is 1 (PDUSB Hub), but Type_C_Can_Act_As_Device is NO")}));
  light.Set(Component(1), "Product_Type_UFP_SOP", "2");
  EXPECT_THAT(light.Findings(),
              Are({Against("Product_Type_UFP_SOP",
                           "Product_Type_UFP_SOP is 2 (PDUSB Peripheral), but Type_C_Can_Act_As_Device is NO")}));
}

TEST(ProductTypeAgainstRoleTest, AllowsOtherTypesThatAreNotADevice) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Product_Type_UFP_SOP", "3");
  EXPECT_THAT(light.Findings(), Are({}));
}

TEST(ProductTypeAgainstRoleTest, FindsATypeThatNoUfpHas) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Product_Type_UFP_SOP", "4");
  EXPECT_THAT(light.Findings(),
              Are({Against("Product_Type_UFP_SOP", "Product_Type_UFP_SOP is 4, which stands for no type of product")}));
}

TEST(ProductTypeAgainstRoleTest, FindsAHostOrHubThatIsNotAHost) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Type_DFP_SOP", "1");
  EXPECT_THAT(charger.Findings(),
              Are({Against("Product_Type_DFP_SOP",
                           "Product_Type_DFP_SOP is 1 (PDUSB Hub), but Type_C_Can_Act_As_Host is NO")}));
  charger.Set(Component(1), "Product_Type_DFP_SOP", "2");
  EXPECT_THAT(charger.Findings(),
              Are({Against("Product_Type_DFP_SOP",
                           "Product_Type_DFP_SOP is 2 (PDUSB Host), but Type_C_Can_Act_As_Host is NO")}));
}

TEST(ProductTypeAgainstRoleTest, FindsAPowerBrickThatConsumes) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Product_Type_DFP_SOP", "3");
  EXPECT_THAT(light.Findings(),
              Are({Against("Product_Type_DFP_SOP",
                           "Product_Type_DFP_SOP is 3 (Power Brick), but PD_Port_Type is 0 (Consumer Only)")}));
  light.SetEdition("1.36").Set(Component(1), "PD_Port_Type", "1");
  EXPECT_THAT(light.Findings(),
              Are({Against("Product_Type_DFP_SOP",
                           "Product_Type_DFP_SOP is 3 (Power Brick), but PD_Port_Type is 1 (Consumer/Provider)")}));
}

TEST(ProductTypeAgainstRoleTest, FindsATypeInARoleInWhichThePortDoesNotRespond) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Product_Type_DFP_SOP", "4");
  EXPECT_THAT(light.Findings(), Are({Against("Product_Type_DFP_SOP",
                                             "Product_Type_DFP_SOP is 4 (Alternate Mode Controller (AMC)), but "
                                             "Responds_To_Discov_SOP_DFP is NO")}));
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Type_UFP_SOP", "3");
  EXPECT_THAT(
      charger.Findings(),
      Are({Against("Product_Type_UFP_SOP", "Product_Type_UFP_SOP is 3 (PSD), but Responds_To_Discov_SOP_UFP is NO")}));
}

TEST(ProductTypeAgainstRoleTest, IsSilentWhereTheResponseIsMissing) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Type_UFP_SOP", "3").Remove(Component(1), "Responds_To_Discov_SOP_UFP");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(ProductTypeAgainstRoleTest, IsSilentAboutATypeThatNobodyHasChosen) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Product_Type_UFP_SOP", "4", "<select>");
  EXPECT_THAT(light.Findings(), Are({{"unanswered", "Product_Type_UFP_SOP",
                                      "Component 1: 'Product_Type_UFP_SOP' is still the editor's \"<select>\""}}));
}

TEST(ProductTypeAgainstRoleTest, IsNotForOlderEditions) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.35").Set(Component(1), "Product_Type_DFP_SOP", "1");
  EXPECT_THAT(charger.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis
