// The fields of an XML VIF that stand directly under its root.
#pragma once

#include "VIFLocations.h"

#include <array>
#include <string_view>

namespace vif {

struct HeaderElement {
  std::string_view name;
  EVifLocation location;  // of the field
};

/// Elements under the root that become fields as they stand, in the order of their fields. Of several with one name the
/// first counts. `VIF_App` and `VIF_Specification` make fields too, but not as they stand.
constexpr std::array<HeaderElement, 6> kHeaderElements = {{
    {"Vendor_Name", eVifLocVif},
    {"Model_Part_Number", eVifLocVif},
    {"Product_Revision", eVifLocVif},
    {"TID", eVifLocVif},
    {"VIF_Product_Type", eVifLocVif},
    {"Certification_Type", eVifLocProduct},  // the product's, although it stands among the file's own
}};

}  // namespace vif
