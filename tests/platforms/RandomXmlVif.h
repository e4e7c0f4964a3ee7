// A random XML VIF.
#pragma once

#include <random>
#include <string>

namespace platforms {

/// Groups and fields of every kind, known or unknown, in the right place or not, with texts and values of every form,
/// in one of several encodings; occasionally with something that makes it invalid.
std::string RandomXmlVif(std::mt19937_64& generator);

}  // namespace platforms
