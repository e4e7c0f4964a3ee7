// The rules about the form of a file. Scripts depend on the codes.
#pragma once

#include <analysis/Rules.h>

namespace vifanalysis::code {

/// A rule for all editions.
constexpr RuleInfo FormRule(const char* code, Severity severity, const char* what, const char* why) {
  return {code, severity, {}, Confidence::High, "", what, why};
}

// Of text files.
inline constexpr RuleInfo kNotADeclaration = FormRule(
    "not-a-declaration", Severity::Error, "a line that yields no field, with the reason",
    "A line of a text VIF is \"Name: number ; comment\" or \"$Name: \"text\" ; comment\". Loading skips any other "
    "line without an error, so what it was meant to declare is lost. The message says what keeps the line from "
    "being one.");
inline constexpr RuleInfo kReadFailed = FormRule(
    "read-failed", Severity::Error, "reading the file failed in this line",
    "The system reported a read error. Loading takes that for the end of the file, so all that follows is lost.");
inline constexpr RuleInfo kNoIndex = FormRule(
    "no-index", Severity::Warning, "a name without the number of its group, such as Src_PDO_Voltage",
    "In a text VIF the name of a field says which PDO, SVID, mode, router or endpoint it is about: "
    "Src_PDO_Voltage2 is about source PDO 2. Without the number, a query for any such group does not find it.");
inline constexpr RuleInfo kNumberingGap = FormRule(
    "numbering-gap", Severity::Warning, "a gap in the numbers of groups, such as SrcPdo 1 and 3",
    "PDOs, SVIDs, modes and endpoints are numbered from 1 without gaps, routers from 0. A program that counts up "
    "stops at the gap.");
inline constexpr RuleInfo kByteOrderMark =
    FormRule("byte-order-mark", Severity::Warning, "a byte order mark before a comment, which does no harm",
             "Some editors put a byte order mark before the first line. Before a comment nothing is lost, but before a "
             "declaration the field would be. Save the file as UTF-8 without the mark.");
inline constexpr RuleInfo kTextInGroup =
    FormRule("text-in-group", Severity::Warning,
             "a text ($Name) with the name of a field in a numbered group; it is in no group",
             "The dollar sign makes the field a text, and its name is taken as it is, with the digits. So it is in no "
             "group, where no query for the group finds it. Write it without the dollar sign and the quotes.");

// Of XML files.
inline constexpr RuleInfo kNotValid = FormRule(
    "not-valid", Severity::Error, "a reason why the file cannot be loaded",
    "An XML VIF is loaded as a whole or not at all. It must be well-formed, fit the schemas, and have each group "
    "where it belongs.");
inline constexpr RuleInfo kMisplaced = FormRule(
    "misplaced", Severity::Error, "a field in another group than its definition says",
    "In an XML VIF a field is where its element is. A program that asks for it where the format has it does not "
    "find it.");
inline constexpr RuleInfo kNoField =
    FormRule("no-field", Severity::Warning, "an element that yields no field",
             "Loading skips the element, because of where it is or because it is empty.");
inline constexpr RuleInfo kForeign =
    FormRule("foreign-element", Severity::Error, "an element of another namespace, which is lost with its content",
             "Only elements in the namespace of the VIF, or in that of optional content, are read. Often the prefix is "
             "missing: <Vendor_Name> instead of <vif:Vendor_Name>.");
inline constexpr RuleInfo kNoValue =
    FormRule("no-value", Severity::Error, "a numeric or boolean element without the value attribute",
             "The number of an element is in its attribute \"value\"; what stands between the tags is its description. "
             "Without the attribute the field has no number.");

// Of both.
inline constexpr RuleInfo kWrongExtension =
    FormRule("wrong-extension", Severity::Error, "XML in a file named *.txt, or text in one named *.xml",
             "The extension alone decides how a file is read. Rename the file.");
inline constexpr RuleInfo kNothingRead =
    FormRule("nothing-read", Severity::Error, "a file that yields no field", "There is nothing to test a product by.");
inline constexpr RuleInfo kDeclaredTwice =
    FormRule("declared-twice", Severity::Error, "a field that its group already has",
             "A program that asks for the one field of that name gets an error, and one that asks for the first gets a "
             "value that its author may have corrected further down. Keep one of them.");
inline constexpr RuleInfo kNoNumber = FormRule(
    "no-number", Severity::Error, "a numeric value that is not a valid number",
    "Numbers are decimal, or hexadecimal with 0x, without a sign and of 64 bits at most; YES and true are 1, NO "
    "and false are 0.");
inline constexpr RuleInfo kNumberPartlyRead = FormRule(
    "number-partly-read", Severity::Warning, "a numeric value with more than a number in it",
    "A number ends before the first character that is not a digit: \"12 V\" is 12, and so is \"12.5\". Units and "
    "texts belong in the description.");
inline constexpr RuleInfo kCountMismatch = FormRule(
    "count-mismatch", Severity::Error, "a count that differs from the number of groups, or a minimum above its maximum",
    "A field such as Num_Src_PDOs counts groups of the file. When they differ, either the count is wrong or a "
    "group is missing or superfluous.");
inline constexpr RuleInfo kCountOutOfRange = FormRule(
    "count-out-of-range", Severity::Warning, "fewer or more groups than the minimum and maximum allow",
    "The minimum and maximum say how many SVIDs or modes the product may answer with. A file may describe fewer, "
    "but then the lab does not know them.");
inline constexpr RuleInfo kUnknownName = FormRule(
    "unknown-name", Severity::Warning, "a name that no edition of the format has, with the similar names that exist",
    "The field is kept, but under a name that no program asks for, and in a text VIF in no group. The name is "
    "misspelled, or the file's own.");
inline constexpr RuleInfo kOtherSpelling = FormRule(
    "other-spelling", Severity::Note, "a field's name as some editions or a common mistake spell it",
    "Early editions spell some names otherwise, such as PD_Power_as_Sink, and some programs that write VIFs have had "
    "mistakes in names. Loading takes only the spelling of the later editions: the field is kept, but a query for that "
    "spelling does not find it, and in a text VIF it is in no group. Correct the name if programs are to find the "
    "field.");
inline constexpr RuleInfo kOlderName = FormRule(
    "older-name", Severity::Note, "the name of a field that has been renamed, split or dropped since",
    "Early editions have fields that later ones call otherwise, such as Externally_Powered, or no longer have. Loading "
    "knows only the names of the later editions: the field is kept, but a query for its present name does not find it, "
    "and in a text VIF it is in no group. Use the present name if programs are to find the field.");
inline constexpr RuleInfo kNewerField = FormRule(
    "newer-field", Severity::Note, "a field that came only after the edition that the file follows",
    "No known file of that edition or an earlier one has the field, such as Has_Invariant_PDOs before edition 3.22. "
    "Either VIF_Specification is out of date, or the field is not for this file.");

/// All of them in the order of the help.
inline constexpr const RuleInfo* kAll[] = {
    &kWrongExtension, &kNotADeclaration, &kReadFailed, &kNotValid,    &kNothingRead,   &kForeign,
    &kMisplaced,      &kDeclaredTwice,   &kNoNumber,   &kNoValue,     &kCountMismatch, &kCountOutOfRange,
    &kNoIndex,        &kNumberingGap,    &kNoField,    &kTextInGroup, &kByteOrderMark, &kNumberPartlyRead,
    &kUnknownName,    &kOtherSpelling,   &kOlderName,  &kNewerField,
};

}  // namespace vifanalysis::code
