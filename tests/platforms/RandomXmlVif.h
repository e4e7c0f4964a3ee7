// An XML VIF at random.
#pragma once

#include <random>
#include <string>

namespace platforms {

/// Groups and fields of every kind, known and not, in their places or not, with texts and values of every form, in one
/// of several encodings; now and then with something that makes it invalid.
std::string RandomXmlVif(std::mt19937_64& generator);

}  // namespace platforms
