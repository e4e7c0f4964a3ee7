// The rules that the fields of a file are checked against.
#pragma once

#include "FoundField.h"
#include "GroupTree.h"
#include "KnownNames.h"

namespace vifanalysis {

// Each rule takes all fields of one file, in the order of the file, or its groups, and adds its findings to the list.
// The time it takes is linear in the number of fields, but for a logarithm.

/// Fields that their group already has.
void FindDuplicates(const FoundFields& fields, const GroupTree& tree, Findings& findings);

/// Numeric values that are not valid numbers, or are more than a number.
void FindBadNumbers(const FoundFields& fields, Findings& findings);

/// A file that yields no field and has no other error.
void FindNothing(const FoundFields& fields, Findings& findings);

/// Counts, such as Num_Src_PDOs, that differ from the number of groups.
void FindWrongCounts(const GroupTree& tree, Findings& findings);

// In a text file, the name of a field decides its place.

/// Groups without a number, and gaps in their numbers.
void FindBadNumbering(const FoundFields& fields, const GroupTree& tree, Findings& findings);

/// Texts with the name of a field in a numbered group.
void FindTextsForGroups(const FoundFields& fields, Findings& findings);

// In an XML file, a field of any name can be in any place.

/// Numeric or boolean fields without a value.
void FindMissingValues(const FoundFields& fields, Findings& findings);

/// Fields in another place than their definition says.
void FindMisplaced(const FoundFields& fields, Findings& findings);

/// Names that nobody knows, those of other editions, and fields that came after the file's edition. Of the latter, only
/// the first with each name.
/// \param edition the file's; {0, 0} when it is not known
void FindUndefinedNames(const UndefinedNames& names, NameStyle style, const Edition& edition, Findings& findings);

}  // namespace vifanalysis
