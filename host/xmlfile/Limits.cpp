#include "xmlfile/Limits.h"

#include <algorithm>
#include <iterator>

namespace xmlfile {

namespace {

/// Prefixes of the names. Shift_JIS, GBK, GB18030 and Big5 are not among them: there, a byte that is a bracket in ASCII
/// may be the second half of a character.
constexpr std::string_view kEncodings[] = {"UTF-8",     "UTF8",      "UTF-16",   "UTF16",     "US-ASCII", "ASCII",
                                           "ISO-8859-", "ISO_8859-", "ISO8859-", "ISO LATIN", "LATIN",    "WINDOWS-125",
                                           "CP125",     "EUC-",      "GB2312",   "KOI8-",     "TIS-620"};

}  // namespace

bool IsSupportedEncoding(std::string_view name) {
  return std::any_of(std::begin(kEncodings), std::end(kEncodings), [&](auto begin) { return name.starts_with(begin); });
}

bool IsUtf16(std::string_view name) { return name.starts_with("UTF-16") || name.starts_with("UTF16"); }

std::string TooDeepReason() { return "Elements are nested more than " + std::to_string(kGreatestDepth) + " deep."; }

std::string TooManyAttributesReason() {
  return "An element has more than " + std::to_string(kMostAttributes) + " attributes.";
}

std::string TooManyNamespacesReason() {
  return "There are declarations of more than " + std::to_string(kMostNamespaces) + " namespaces around this element.";
}

std::string UnsupportedEncodingReason(std::string_view name) {
  return "The encoding " + std::string(name) + " is not supported here.";
}

}  // namespace xmlfile
