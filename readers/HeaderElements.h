// The fields of an XML VIF directly under its root.
#pragma once

#include "VIFLocations.h"

#include <array>
#include <string_view>

namespace vif {

struct HeaderElement {
  std::string_view name;
  EVifLocation location;  // of the field
};

/// Elements under the root that become fields as they are, in the order of their fields. Of several with the same name,
/// the first counts. `VIF_App` and `VIF_Specification` become fields too, but not as they are.
constexpr std::array<HeaderElement, 6> kHeaderElements = {{
    {"Vendor_Name", eVifLocVif},
    {"Model_Part_Number", eVifLocVif},
    {"Product_Revision", eVifLocVif},
    {"TID", eVifLocVif},
    {"VIF_Product_Type", eVifLocVif},
    {"Certification_Type", eVifLocProduct},  // the product's, although it is among the file's own
}};

}  // namespace vif
