// A second decoder of UTF-8, which is simple instead of fast.
#pragma once

#include <string>
#include <string_view>

namespace fuzz {

/// The characters of a text. Each longest part that a character of UTF-8 could begin with, but does not go on from, is
/// U+FFFD, and so is each byte that none begins with.
std::u32string DecodeUtf8Simply(std::string_view text);

/// The UTF-8 form of characters; what is none becomes U+FFFD.
std::string EncodeUtf8Simply(std::u32string_view characters);

}  // namespace fuzz
