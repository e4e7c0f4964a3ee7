// Where the readers put what they read.
#pragma once

#include "VIFField.h"

#include <cstdint>
#include <vector>

namespace vif {

/// The field list that a reader appends to and the running component count that it numbers components from. Both
/// are borrowed for the time of one read.
struct FieldSink {
  std::vector<CVIFField>& fields;
  std::uint32_t& componentCount;
};

}  // namespace vif
