// Source and sink PDOs in volts, amperes and watts.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>
#include <analysis/Vocabulary.h>

#include <string>
#include <vector>

namespace vifanalysis {

/// One PDO as text. A text is empty where the PDO has no field for it, and "?" where the field cannot be converted
/// because the supply type is not known, such a supply has no such number, or the value is not a number.
struct PowerProfile {
  std::string supply;                    ///< "Fixed", "Battery", "Variable", "PPS", "Augmented" for others, or "?"
  std::string voltage;                   ///< "5 V", or "3.3 to 11 V"
  std::string current;                   ///< "3 A"
  std::string power;                     ///< "15 W"
  std::vector<const CVIFField*> others;  ///< the fields not shown above; borrowed
  PdoContext context;                    ///< what the units of its fields depend on
};

/// \param fields the fields of one source or sink PDO
/// \param edition of the file; may be not known
VIF_ANALYSIS_API PowerProfile DescribePdo(const std::vector<const CVIFField*>& fields, const Edition& edition = {});

}  // namespace vifanalysis
