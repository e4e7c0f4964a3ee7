// A text VIF at random.
#pragma once

#include <random>
#include <string>

namespace platforms {

/// Lines as people and their programs write them: known names with all kinds of indexes, others, numbers of every form,
/// comments, blanks, either line end, and lines that are none.
std::string RandomTextVif(std::mt19937_64& generator);

}  // namespace platforms
