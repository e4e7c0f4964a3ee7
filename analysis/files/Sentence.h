// Parts of the messages of findings.
#pragma once

#include <VIFField.h>

#include <span>
#include <string>
#include <string_view>

namespace vifanalysis {

/// Text from a file in single quotes, printable, and shortened if it is long.
std::string Quoted(std::string_view text);

/// A field by its name and, if it has one, its place: 'Src_PDO_Voltage' (Component 1 · SrcPdo 2).
std::string NameAndPlace(const CVIFField& field);

/// "A", "A and B", "A, B and C".
std::string Listed(std::span<const std::string_view> words);

}  // namespace vifanalysis
