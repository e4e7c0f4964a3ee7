// A reader of text VIFs as one would write it first: with the regular expressions that define the format.
#pragma once

#include "VIFField.h"

#include <filesystem>
#include <vector>

namespace bench {

/// The fields of a text VIF, the same as the library's. The pattern of a line is compiled for every line; the patterns
/// of names are those of the built-in definitions, tried in order.
std::vector<CVIFField> ReadObviously(const std::filesystem::path& path);

}  // namespace bench
