// Aligns two lists so that the sum of the scores of their pairs is greatest.
#pragma once

#include "diff/UniqueKeys.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace vifanalysis {

/// How good it is to pair an element of the first list with one of the second; 0 when they must not be paired.
using PairScore = std::function<std::uint64_t(std::size_t a, std::size_t b)>;

/// The pairs in the order of both lists.
/// \param isExact whether to consider all pairs; otherwise only those within a band of fixed width around the diagonal,
///   so that the time grows linearly with the longer list
std::vector<IndexPair> AlignInBand(std::size_t sizeA, std::size_t sizeB, bool isExact, const PairScore& score);

}  // namespace vifanalysis
