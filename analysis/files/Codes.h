// The kinds of findings. The codes are part of the command's interface: scripts look for them.
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
                                                 "a line that yields no field, and why"};
inline constexpr FindingCode kReadFailed = {Severity::Error, "read-failed",
                                            "the file could not be read on from this line"};
inline constexpr FindingCode kNoIndex = {Severity::Warning, "no-index",
                                         "a name without the number of its group, such as Src_PDO_Voltage"};
inline constexpr FindingCode kNumberingGap = {Severity::Warning, "numbering-gap",
                                              "groups that are not numbered through, such as SrcPdo 1 and 3"};
inline constexpr FindingCode kByteOrderMark = {Severity::Warning, "byte-order-mark",
                                               "a byte order mark before a comment, to which nothing is lost"};
inline constexpr FindingCode kTextInGroup = {Severity::Warning, "text-in-group",
                                             "a text ($Name) where a numbered group has a number; it is in no group"};

// Of XML files.
inline constexpr FindingCode kNotValid = {Severity::Error, "not-valid", "why the file cannot be loaded at all"};
inline constexpr FindingCode kMisplaced = {Severity::Error, "misplaced",
                                           "a field in another group than its definition says"};
inline constexpr FindingCode kNoField = {Severity::Warning, "no-field", "an element that yields no field"};
inline constexpr FindingCode kForeign = {Severity::Error, "foreign-element",
                                         "an element of another namespace, which is lost with all that is in it"};
inline constexpr FindingCode kNoValue = {Severity::Error, "no-value",
                                         "a numeric or boolean element without the value attribute"};

// Of both.
inline constexpr FindingCode kNothingRead = {Severity::Error, "nothing-read", "a file that yields no field at all"};
inline constexpr FindingCode kDeclaredTwice = {Severity::Error, "declared-twice",
                                               "a field that its group has already, on an earlier line"};
inline constexpr FindingCode kNoNumber = {Severity::Error, "no-number", "a numeric value that stands for no number"};
inline constexpr FindingCode kNumberPartlyRead = {Severity::Warning, "number-partly-read",
                                                  "a numeric value with more than a number in it"};
inline constexpr FindingCode kCountMismatch = {Severity::Error, "count-mismatch",
                                               "a count that disagrees with the groups there, or with itself"};
inline constexpr FindingCode kCountOutOfRange = {Severity::Warning, "count-out-of-range",
                                                 "fewer or more groups than a minimum and a maximum say"};
inline constexpr FindingCode kUnknownName = {Severity::Warning, "unknown-name",
                                             "a name that no definition knows, and the nearest one"};

/// All of them, in the order in which the help lists them.
inline constexpr const FindingCode* kAll[] = {
    &kNotADeclaration, &kReadFailed, &kNotValid,    &kNothingRead,   &kForeign,          &kMisplaced,
    &kDeclaredTwice,   &kNoNumber,   &kNoValue,     &kCountMismatch, &kCountOutOfRange,  &kNoIndex,
    &kNumberingGap,    &kNoField,    &kTextInGroup, &kByteOrderMark, &kNumberPartlyRead, &kUnknownName,
};

}  // namespace code

}  // namespace vifanalysis
