// Bounds of what is read of an XML file, so that no file takes more time than its size justifies. The same on every
// system, so that a file is valid on all or on none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace xmlfile {

/// No element may stand deeper; the root's depth is 1.
constexpr int kGreatestDepth = 256;

/// In one tag, declarations of namespaces included: a parser compares each attribute of a tag with all others.
constexpr std::size_t kMostAttributes = 1'000;

/// In force at once: a parser looks through them for every name with a prefix.
constexpr std::size_t kMostNamespaces = 1'000;

/// Comments, processing instructions and CDATA sections cut a text in pieces, and validation copies all that it has of
/// a value for each piece that is added. So many bytes may be copied for one value.
constexpr std::uint64_t kMostCopied = 1'000'000'000;

/// Whether the encoding is one in which the bytes of ASCII characters stand for nothing else, or UTF-16. In others,
/// tags could hide from who looks at the bytes.
/// \param name in capitals
bool IsSupportedEncoding(std::string_view name);

/// Whether the name is that of a form of UTF-16.
/// \param name in capitals
bool IsUtf16(std::string_view name);

// What is said of a file that goes beyond them.
std::string TooDeepReason();
std::string TooManyAttributesReason();
std::string TooManyNamespacesReason();
std::string UnsupportedEncodingReason(std::string_view name);
constexpr const char* kTooManyPiecesReason =
    "A text is in too many pieces between comments, processing instructions and CDATA sections.";
constexpr const char* kDocumentTypeReason = "A document type declaration is not allowed.";
constexpr const char* kNulReason = "There is a NUL in the file.";

}  // namespace xmlfile
