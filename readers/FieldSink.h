// Where the readers put what they read.
#pragma once

#include "VIFField.h"

#include <cstdint>
#include <vector>

namespace vif {

/// The field list that a reader appends to, and the running count from which it numbers components. Both are borrowed
/// for one read.
struct FieldSink {
  std::vector<CVIFField>& fields;
  std::uint32_t& componentCount;
};

}  // namespace vif
