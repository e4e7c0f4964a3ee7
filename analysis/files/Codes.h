// The kinds of findings. Scripts depend on the codes.
#pragma once

#include <analysis/Finding.h>

#include <string_view>

namespace vifanalysis {

struct FindingCode {
  Severity severity;
  std::string_view name;
  std::string_view meaning;
};

namespace code {

// Of text files.
inline constexpr FindingCode kNotADeclaration = {Severity::Error, "not-a-declaration",
                                                 "a line that yields no field, with the reason"};
inline constexpr FindingCode kReadFailed = {Severity::Error, "read-failed", "reading the file failed in this line"};
inline constexpr FindingCode kNoIndex = {Severity::Warning, "no-index",
                                         "a name without the number of its group, such as Src_PDO_Voltage"};
inline constexpr FindingCode kNumberingGap = {Severity::Warning, "numbering-gap",
                                              "a gap in the numbers of groups, such as SrcPdo 1 and 3"};
inline constexpr FindingCode kByteOrderMark = {Severity::Warning, "byte-order-mark",
                                               "a byte order mark before a comment, which does no harm"};
inline constexpr FindingCode kTextInGroup = {
    Severity::Warning, "text-in-group",
    "a text ($Name) with the name of a field in a numbered group; it is in no group"};

// Of XML files.
inline constexpr FindingCode kNotValid = {Severity::Error, "not-valid", "a reason why the file cannot be loaded"};
inline constexpr FindingCode kMisplaced = {Severity::Error, "misplaced",
                                           "a field in another group than its definition says"};
inline constexpr FindingCode kNoField = {Severity::Warning, "no-field", "an element that yields no field"};
inline constexpr FindingCode kForeign = {Severity::Error, "foreign-element",
                                         "an element of another namespace, which is lost with its content"};
inline constexpr FindingCode kNoValue = {Severity::Error, "no-value",
                                         "a numeric or boolean element without the value attribute"};

// Of both.
inline constexpr FindingCode kWrongExtension = {Severity::Error, "wrong-extension",
                                                "XML in a file named *.txt, or text in one named *.xml"};
inline constexpr FindingCode kNothingRead = {Severity::Error, "nothing-read", "a file that yields no field"};
inline constexpr FindingCode kDeclaredTwice = {Severity::Error, "declared-twice", "a field that its group already has"};
inline constexpr FindingCode kNoNumber = {Severity::Error, "no-number", "a numeric value that is not a valid number"};
inline constexpr FindingCode kNumberPartlyRead = {Severity::Warning, "number-partly-read",
                                                  "a numeric value with more than a number in it"};
inline constexpr FindingCode kCountMismatch = {
    Severity::Error, "count-mismatch",
    "a count that differs from the number of groups, or a minimum above its maximum"};
inline constexpr FindingCode kCountOutOfRange = {Severity::Warning, "count-out-of-range",
                                                 "fewer or more groups than the minimum and maximum allow"};
inline constexpr FindingCode kUnknownName = {Severity::Warning, "unknown-name",
                                             "a name without a definition, with the similar names that have one"};

/// All codes in the order of the help.
inline constexpr const FindingCode* kAll[] = {
    &kWrongExtension, &kNotADeclaration, &kReadFailed,       &kNotValid,     &kNothingRead,
    &kForeign,        &kMisplaced,       &kDeclaredTwice,    &kNoNumber,     &kNoValue,
    &kCountMismatch,  &kCountOutOfRange, &kNoIndex,          &kNumberingGap, &kNoField,
    &kTextInGroup,    &kByteOrderMark,   &kNumberPartlyRead, &kUnknownName,
};

}  // namespace code

}  // namespace vifanalysis
