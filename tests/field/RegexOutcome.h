// What a match with a regular expression ends in.
#pragma once

#include "Compiler.h"
#include "GuardedRegex.h"
#include "NamePattern.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <regex>
#include <string>
#include <string_view>

namespace testsupport {

/// The syntax of name patterns.
constexpr auto kNameSyntax = std::regex_constants::ECMAScript | std::regex_constants::icase;

/// Whether the standard library has a way to match names of any length.
constexpr bool kHasStepwise = vif::kHasStepwiseEngine;

/// An answer, or the code of the error that takes its place.
struct RegexOutcome {
  std::optional<bool> answer;
  std::regex_constants::error_type error{};

  bool IsWantOfStackOrTime() const {
    return !answer && (error == std::regex_constants::error_stack || error == std::regex_constants::error_complexity);
  }
};

template <typename Match>
RegexOutcome RegexOutcomeOf(const Match& match) {
  try {
    return {match(), {}};
  } catch (const std::regex_error& error) {
    return {std::nullopt, error.code()};
  }
}

/// How far down the recursive engine goes where another can take over.
inline std::uintptr_t RecursionLimit() {
  return std::max(vif::LowestFrame(), VIF_FRAME_ADDRESS() - vif::kRecursionBudget);
}

inline RegexOutcome GuardedOutcome(const std::string& pattern, std::string_view text) {
  return RegexOutcomeOf([&] {
    vif::GuardedMatch<char> match;
    return vif::GuardedRegexMatch(text, match, std::regex(pattern, kNameSyntax),
                                  {RecursionLimit(), vif::kMatchStepBudget});
  });
}

inline RegexOutcome NamePatternOutcome(const std::string& pattern, const std::string& name) {
  return RegexOutcomeOf([&] { return vif::CNamePattern(pattern.c_str()).Matches(name.c_str()); });
}

}  // namespace testsupport
