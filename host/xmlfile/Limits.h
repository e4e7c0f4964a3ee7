// Limits on the XML that is read, so that no file takes more time than its size justifies. They are the same on every
// system, so that a file is valid on all or on none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace xmlfile {

/// No element may be nested deeper; the root's depth is 1.
constexpr int kGreatestDepth = 256;

/// In one tag, including namespace declarations: a parser compares each attribute of a tag with all others.
constexpr std::size_t kMostAttributes = 1'000;

/// In scope at once: a parser searches them for every name with a prefix.
constexpr std::size_t kMostNamespaces = 1'000;

/// Comments, processing instructions and CDATA sections split a text into pieces, and validation copies all that it has
/// of a value for each piece that is added. This is how many bytes may be copied for one value.
constexpr std::uint64_t kMostCopied = 1'000'000'000;

/// Whether the encoding is UTF-16, or one in which ASCII bytes always mean ASCII characters. In any other, tags could
/// hide from a check of the bytes.
/// \param name in upper case
bool IsSupportedEncoding(std::string_view name);

/// Whether the name is one of the UTF-16 encodings.
/// \param name in upper case
bool IsUtf16(std::string_view name);

// Reasons for refusing a file that exceeds them.
std::string TooDeepReason();
std::string TooManyAttributesReason();
std::string TooManyNamespacesReason();
std::string UnsupportedEncodingReason(std::string_view name);
constexpr const char* kTooManyPiecesReason =
    "A text is in too many pieces between comments, processing instructions and CDATA sections.";
constexpr const char* kDocumentTypeReason = "A document type declaration is not allowed.";
constexpr const char* kNulReason = "There is a NUL in the file.";

}  // namespace xmlfile
