// The few things that compilers spell differently.
#pragma once

#include <cstdint>

#if defined(_MSC_VER) && !defined(__clang__)
#include <intrin.h>
/// The address of the calling function's stack frame.
#define VIF_FRAME_ADDRESS() reinterpret_cast<std::uintptr_t>(_AddressOfReturnAddress())
#else
/// The address of the calling function's stack frame.
#define VIF_FRAME_ADDRESS() reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0))
#endif

#if defined(__GLIBCXX__)
/// A syntax option under which a match goes through the text character by character, in time and stack that do not
/// run away, in exchange for references back to groups; 0 where the standard library has none.
#define VIF_REGEX_STEPWISE std::regex_constants::__polynomial
#else
#define VIF_REGEX_STEPWISE (std::regex_constants::syntax_option_type{})
#endif
