// Numbers at the beginning of the texts of fields.
#pragma once

#include <analysis/Vocabulary.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace vifanalysis {

/// The quantity of a text that says nothing else, apart from a remark in parentheses: "9000 mV (Factor = 50)", "2.25
/// A", "8 msec". In mV, mA, mW, ms or %, and nothing when it is not a whole number of these.
std::optional<Quantity> QuantityIn(std::string_view text);

/// The decimal number of a text that says nothing else, or that goes on with a word of the field's name: "3 Snk PDOs"
/// as the text of Num_Snk_PDOs. Nothing for "2 cells" as that of Num_Fixed_Batteries, which counts something else.
std::optional<std::uint64_t> CountIn(std::string_view text, std::string_view fieldName);

/// The hexadecimal number of a text that says nothing else, apart from a remark in parentheses: "FF01 (DisplayPort)".
/// Without "0x", it has as many digits as an ID, four, or more. Nothing when it has more than 16 digits.
std::optional<std::uint64_t> HexadecimalIn(std::string_view text);

}  // namespace vifanalysis
