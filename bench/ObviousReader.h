// The reader of text VIFs as one writes it first: with the regular expressions by which the format is defined.
#pragma once

#include "VIFField.h"

#include <filesystem>
#include <vector>

namespace bench {

/// The fields of a text VIF, the same as the library's. The pattern of a line is compiled for each line; those of the
/// names are the built-in definitions', tried in their order.
std::vector<CVIFField> ReadObviously(const std::filesystem::path& path);

}  // namespace bench
