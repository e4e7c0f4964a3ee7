// Splits a VIF into its groups, and finds numbers in them.
#pragma once

#include <VendorInfoFile.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace suite {

using Fields = std::vector<CVIFField>;

/// Groups of one kind, such as source PDOs, by their numbers, each with its fields and those of the groups inside it.
///
/// A group of a text VIF has no number if the names of its fields have none, such as `Src_PDO_Voltage`; then it is
/// `CVIFField::INDEX_NOT_SPECIFIED`.
using Groups = std::map<VifIndexNumber, Fields>;

/// The groups at one location to which the fields belong. Splitting a list visits each field once; a query for each
/// group would visit all fields each time, which is slow for a file with very many groups.
Groups SplitByGroup(const Fields& fields, EVifLocation location);

Groups Components(const CVendorInfoFile& vif);
Groups Routers(const CVendorInfoFile& vif);

/// "Component 1", or "Component without a number".
std::string GroupText(const char* kind, VifIndexNumber number);

/// The number that fields declare under a name.
struct NumberFound {
  std::optional<std::uint64_t> number;  ///< absent if there is none
  bool isMissing = false;               ///< whether that is because there is no such field
  std::string problem;                  ///< why there is none: "Src_PDO_Voltage is missing"
};

NumberFound FindNumber(const Fields& fields, const char* name);

}  // namespace suite
