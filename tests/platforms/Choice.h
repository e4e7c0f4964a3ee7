// Random choices.
#pragma once

#include "support/Random.h"

#include <cstddef>
#include <iterator>
#include <random>

namespace platforms {

inline bool OneIn(std::size_t count, std::mt19937_64& generator) {
  return testsupport::RandomBelow(generator, count) == 0;
}

/// One of the elements of a container or an array, which must not be empty.
template <typename Container>
auto OneOf(const Container& container, std::mt19937_64& generator) {
  return *(std::begin(container) +
           static_cast<std::ptrdiff_t>(testsupport::RandomBelow(generator, std::size(container))));
}

}  // namespace platforms
