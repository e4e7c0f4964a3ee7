// A second UTF-8 decoder, simple instead of fast.
#pragma once

#include <string>
#include <string_view>

namespace fuzz {

/// The characters of a text. The longest possible beginning of a UTF-8 character that then does not continue becomes
/// one U+FFFD, and so does each byte with which no character begins.
std::u32string DecodeUtf8Simply(std::string_view text);

/// The UTF-8 form of characters; anything that is not a character becomes U+FFFD.
std::string EncodeUtf8Simply(std::u32string_view characters);

}  // namespace fuzz
