// Outcomes of matching a regular expression.
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

/// Whether names of any length can be matched with this standard library. That is libstdc++; libc++ copies the text
/// before it matches, keeps its states on the heap, and gives up (`error_complexity`) after 4,096 steps for each
/// character of the text.
constexpr bool kHasStepwise = vif::kHasStepwiseEngine;

/// An answer, or the code of the error thrown instead.
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

/// How deep the recursive engine goes where another can take over.
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
