// Texts as the caller gets them.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vifc {

/// Whether a text is UTF-8. Does not allocate unless it has characters beyond ASCII.
bool IsUtf8(std::string_view text);

/// Replaces bytes that are not UTF-8 by U+FFFD, and NULs, at which a C text would end.
void MakeUtf8(std::string& text);

/// The path that a caller's text names.
/// \throws CFailure when it is null or empty
std::filesystem::path PathOf(const char* text);

/// A caller's list of texts.
/// \param noun what each of them is
/// \throws CFailure when one of them is null, or the list although it is not empty
std::vector<std::string> TextsOf(const char* const* texts, std::size_t count, const std::string& noun);

/// A caller's bytes.
/// \throws CFailure when they are null although there are some
std::string_view ContentOf(const void* bytes, std::size_t size);

}  // namespace vifc
