// A random text VIF.
#pragma once

#include <random>
#include <string>

namespace platforms {

/// Lines as people and their programs write them: known names with all kinds of indexes, other names, numbers in every
/// form, comments, blanks, either line end, and lines that are not declarations.
std::string RandomTextVif(std::mt19937_64& generator);

}  // namespace platforms
