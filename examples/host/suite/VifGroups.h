// A VIF taken apart into its groups, and the numbers in them.
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
/// A group of a text VIF has no number when the names of its fields have none, such as `Src_PDO_Voltage`; then it is
/// `CVIFField::INDEX_NOT_SPECIFIED`.
using Groups = std::map<VifIndexNumber, Fields>;

/// The groups at a location that the fields are in. Taking a list apart looks at each field once; a query for each
/// group would look at all fields each time, which a file with very many groups makes slow.
Groups SplitByGroup(const Fields& fields, EVifLocation location);

Groups Components(const CVendorInfoFile& vif);
Groups Routers(const CVendorInfoFile& vif);

/// "Component 1", or "Component without a number".
std::string GroupText(const char* kind, VifIndexNumber number);

/// What fields say under a name.
struct NumberFound {
  std::optional<std::uint64_t> number;  ///< nothing when there is none to be had
  bool isMissing = false;               ///< whether that is because there is no such field
  std::string problem;                  ///< why there is none: "Src_PDO_Voltage is missing"
};

NumberFound FindNumber(const Fields& fields, const char* name);

}  // namespace suite
