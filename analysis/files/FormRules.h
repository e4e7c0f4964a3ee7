// What is looked for in the fields of a file.
#pragma once

#include "FoundField.h"

#include <string>
#include <string_view>

namespace vifanalysis {

// Each rule adds what it finds to the list. It takes all fields of one file, in the order of the file, and time that
// grows with their number.

/// A field that its group has already.
void FindDuplicates(const FoundFields& fields, Findings& findings);

/// Numeric values that give no number, or not all of what they say.
void FindBadNumbers(const FoundFields& fields, Findings& findings);

/// A file that yields no field at all and about which nothing else is found that would be an error.
void FindNothing(const FoundFields& fields, Findings& findings);

/// Counts, such as Num_Src_PDOs, that disagree with the groups that are there.
void FindWrongCounts(const FoundFields& fields, Findings& findings);

// The place of a field of a text file follows from its name.

/// Groups without a number, and groups that are not numbered through.
void FindBadNumbering(const FoundFields& fields, Findings& findings);

/// Texts that have the name of a field in a numbered group.
void FindTextsForGroups(const FoundFields& fields, Findings& findings);

// A field of an XML file has any name in any place.

/// Names that no definition knows.
void FindUnknownNames(const FoundFields& fields, Findings& findings);

/// Fields that are known to be numeric or boolean, but have no value.
void FindMissingValues(const FoundFields& fields, Findings& findings);

/// Fields in another place than their definition says.
void FindMisplaced(const FoundFields& fields, Findings& findings);

/// "no definition knows this name", with the nearest one.
std::string UnknownNameMessage(std::string_view name);

}  // namespace vifanalysis
