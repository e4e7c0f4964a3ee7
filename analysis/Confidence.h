// How well something about the format is known.
#pragma once

#include <cstdint>

namespace vifanalysis {

/// How sure a fact is, least first.
enum class Confidence : std::uint8_t {
  Low,     ///< concluded from files alone
  Medium,  ///< a source says so in other words, or files agree with what one source says
  High,    ///< sources say so
};

}  // namespace vifanalysis
