// How certain facts about the format are.
#pragma once

#include <cstdint>

namespace vifanalysis {

/// How certain a fact is, least first.
enum class Confidence : std::uint8_t {
  Low,     ///< inferred from files alone
  Medium,  ///< a source says so in other words, or files agree with what one source says
  High,    ///< sources say so
};

}  // namespace vifanalysis
