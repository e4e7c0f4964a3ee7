// Source and sink PDOs in volts, amperes and watts.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>

#include <string>
#include <vector>

namespace vifanalysis {

/// One PDO, ready to be read. A text is empty where the PDO says nothing, and "?" where what it says cannot be
/// converted: the supply type is not known, or the value is no number.
struct PowerProfile {
  std::string supply;                    ///< "Fixed", "Battery", "Variable", "PPS", or "?"
  std::string voltage;                   ///< "5 V", or "3.3 to 11 V"
  std::string current;                   ///< "3 A"
  std::string power;                     ///< "15 W"
  std::vector<const CVIFField*> others;  ///< the fields that are not in the above; borrowed
};

/// \param fields the fields of one source or sink PDO
VIF_ANALYSIS_API PowerProfile DescribePdo(const std::vector<const CVIFField*>& fields);

}  // namespace vifanalysis
