// What compilers and their standard libraries spell differently.
#pragma once

#include <cstdint>
#include <regex>

#if defined(_MSC_VER) && !defined(__clang__)
#include <intrin.h>
/// The address of the calling function's stack frame.
#define VIF_FRAME_ADDRESS() reinterpret_cast<std::uintptr_t>(_AddressOfReturnAddress())
#else
/// The address of the calling function's stack frame.
#define VIF_FRAME_ADDRESS() reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0))
#endif

#if defined(__has_feature)
#define VIF_HAS_FEATURE(feature) __has_feature(feature)
#else
#define VIF_HAS_FEATURE(feature) 0
#endif

namespace vif {

#if defined(__SANITIZE_ADDRESS__) || VIF_HAS_FEATURE(address_sanitizer) || VIF_HAS_FEATURE(memory_sanitizer)
constexpr bool kHasLargeFrames = true;
#else
/// Whether stack frames are several times as large as usual, as memory sanitizers make them.
constexpr bool kHasLargeFrames = false;
#endif

#if defined(__GLIBCXX__)

/// Whether the standard library has a second engine, which passes over the text once, character by character, and needs
/// no more stack for a longer text. It cannot match back-references.
constexpr bool kHasStepwiseEngine = true;

#if _GLIBCXX_RELEASE >= 16
constexpr bool kHasFramesOnHeap = true;
#else
/// Whether the recursive engine keeps its frames in a vector instead of on the stack, each with one position in the
/// text. Nothing but the memory of the machine limits that vector.
constexpr bool kHasFramesOnHeap = false;
#endif

/// `std::regex_match` with the stepwise engine. An expression with a back-reference is matched recursively.
template <typename Iterator, typename Char>
bool StepwiseRegexMatch(Iterator first, Iterator last, std::match_results<Iterator>& match,
                        const std::basic_regex<Char>& expression) {
  // libstdc++ chooses its engine when it matches, not when it compiles, and lets its own tests request either.
  using std::__detail::_RegexExecutorPolicy;  // NOLINT(bugprone-reserved-identifier): libstdc++'s own
  constexpr auto flags = std::regex_constants::match_default;
#if _GLIBCXX_RELEASE >= 12
  return std::__detail::__regex_algo_impl(first, last, match, expression, flags, _RegexExecutorPolicy::_S_alternate,
                                          true);
#else
  return std::__detail::__regex_algo_impl<Iterator, typename std::match_results<Iterator>::allocator_type, Char,
                                          std::regex_traits<Char>, _RegexExecutorPolicy::_S_alternate, true>(
      first, last, match, expression, flags);
#endif
}

#else

constexpr bool kHasStepwiseEngine = false;
constexpr bool kHasFramesOnHeap = false;

template <typename Iterator, typename Char>
bool StepwiseRegexMatch(Iterator first, Iterator last, std::match_results<Iterator>& match,
                        const std::basic_regex<Char>& expression) {
  return std::regex_match(first, last, match, expression);
}

#endif

}  // namespace vif
