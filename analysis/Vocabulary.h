// What the fields of a VIF mean: names in every edition, types, units, values and their texts.
//
// Everything here describes the format, never a file. The field definition table (VIFFieldDefs.h) alone decides what
// loading makes of a name; the vocabulary is knowledge beside it. It was gathered from real files and public documents
// (see `Sources.h`; source C, the files in which everything is counted, is "the corpus" below). So a fact can
// be weak: `Confidence` says so, and so does a `files` of 0, which means that no file of the corpus has it. Show that
// with the fact.
//
// All texts are UTF-8 and, like all tables and rows, live unchanged as long as the library is loaded. Texts and spans
// are empty where there is nothing to say. Unless it says otherwise, a function throws nothing, allocates nothing and
// may be called from any number of threads at once.
#pragma once

#include <VIFLocations.h>
#include <analysis/Confidence.h>
#include <analysis/Edition.h>
#include <analysis/Export.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vifanalysis {

/// Whether the edition is known: 0.0 stands for one that is not.
constexpr bool IsKnown(const Edition& edition) noexcept { return edition != Edition{}; }

/// Two editions and those between them, both known or neither.
struct EditionRange {
  Edition first{};  ///< the earliest
  Edition last{};   ///< the latest; not before `first`

  /// Whether there are any editions in the range.
  constexpr bool IsKnown() const noexcept { return vifanalysis::IsKnown(first); }
};

/// What kind of value a field has.
enum class FieldType : std::uint8_t {
  Unknown,      ///< not known
  Text,         ///< any text
  Number,       ///< a number, which may have a unit
  Boolean,      ///< NO (0) or YES (1)
  Enumeration,  ///< a number that is the code of one of several choices
  Group,        ///< no value: an element with elements inside
};

/// How a field stands to the field definition table.
enum class FieldStanding : std::uint8_t {
  Defined,          ///< in the table
  Newer,            ///< not in the table, which is older than the field
  Older,            ///< not in the table, which no longer has the field, and nothing replaces it
  XmlStructure,     ///< an element of the XML form that is read as a field but is not one
  OptionalContent,  ///< part of the optional content of a file
};

/// What a number is a multiple of, or how to read it.
enum class Unit : std::uint8_t {
  Unknown,            ///< a physical quantity in a unit that is not known
  MilliVolt,          ///< mV
  MilliAmpere,        ///< mA
  MilliWatt,          ///< mW
  Watt,               ///< W
  MilliSecond,        ///< ms
  Percent,            ///< %
  MilliOhm,           ///< mOhm
  DegreeCelsius,      ///< degrees Celsius
  Count,              ///< a number of things
  Identifier,         ///< an ID of 16 bits, written in hexadecimal, such as a vendor ID
  DecimalIdentifier,  ///< an ID written in decimal, such as an XID
  Bits,               ///< 32 bits, written in hexadecimal
};

/// One value of a field, with its text.
struct FieldValue {
  std::string_view field;                        ///< the field's canonical name
  std::uint64_t value = 0;                       ///< the number
  std::string_view text;                         ///< what it stands for, in the newest edition
  std::uint32_t files = 0;                       ///< how many files of the corpus have it; 0: not seen
  EditionRange seen{};                           ///< the editions of these files; not known when there are none
  Confidence confidence = {};                    ///< how certain it is that the number stands for the text
  std::string_view sources;                      ///< codes of `Sources`, separated by blanks
  std::array<std::string_view, 2> otherTexts{};  ///< other texts in use for the value; unused ones empty
  // Rows leave it out, which g++ warns about where there is no initializer.
  // NOLINTNEXTLINE(readability-redundant-member-init)
  std::string_view olderText{};  ///< the text that it had up to edition `olderUntil`, or empty
  Edition olderUntil{};          ///< not known when there is no older text
};

/// The unit of a field's numbers, under a condition. Of the masks, bit n stands for type n, and 0 for no condition.
struct FieldUnit {
  std::string_view field;           ///< the field's canonical name
  std::uint8_t supplyTypes = 0;     ///< supply types of the PDO (0 fixed, 1 battery, 2 variable, 3 augmented)
  std::uint8_t apdoTypes = 0;       ///< APDO types of an augmented PDO (0 PPS, 1 EPR AVS, 2 SPR AVS)
  std::uint8_t thresholdTypes = 0;  ///< values of `Src_PD_OCP_UV_Threshold_Type`
  Unit unit = {};                   ///< the unit
  std::uint32_t scale = 1;          ///< how many units a step of 1 is; 1 for identifiers, bits and unknown units
  std::uint32_t places = 0;         ///< how often the corpus has a number and a text that confirm it
  std::uint32_t files = 0;          ///< in how many files; 0: not seen
  Confidence confidence = {};       ///< how certain it is
  std::string_view sources;         ///< codes of `Sources`, separated by blanks
};

/// Why a name means a field.
enum class NameKind : std::uint8_t {
  Unknown,          ///< it means none
  Canonical,        ///< it is the name of a field of the definition table
  TextForm,         ///< it has the dollar sign with which text files write a text field: `$Vendor_Name`
  LetterCase,       ///< it is in a letter case that no edition uses
  OtherSpelling,    ///< some editions spell the field like that; loading does not know the spelling
  OlderField,       ///< earlier editions had the field under this name, or had it and dropped it
  NewerField,       ///< a field that the definition table does not have yet
  Mistake,          ///< a mistake that files are known to contain
  XmlStructure,     ///< an element of the XML form that is not a field
  OptionalContent,  ///< a name from optional content
};

/// A name of a field other than its canonical one.
struct FieldSpelling {
  std::string_view spelling;   ///< the name; each `#` stands for the digits of an index, of which there may be none
  std::string_view field;      ///< the canonical name of the field that it means
  NameKind kind = {};          ///< Canonical, TextForm, OtherSpelling, OlderField or Mistake
  Confidence confidence = {};  ///< how certain it is that this field is meant
  std::uint32_t files = 0;     ///< how many files of the corpus have it; 0: not seen
  EditionRange seen{};         ///< the editions of these files; not known when there are none
  std::string_view sources;    ///< codes of `Sources`, separated by blanks
  // Rows leave it out, which g++ warns about where there is no initializer.
  // NOLINTNEXTLINE(readability-redundant-member-init)
  std::string_view why{};  ///< how that is known, as a sentence; empty when the kind says it all
};

/// One field of the format.
struct FieldInfo {
  std::string_view name;      ///< the canonical name, without index digits
  std::string_view spelling;  ///< the name as text files write it; `#` stands for index digits: `Src_PDO_Voltage#`
  std::array<EVifLocation, 3> locations{};   ///< the groups it stands in, outermost first; unused ones `eVifLocUnset`
  FieldStanding standing = {};               ///< how it stands to the definition table
  FieldType type = {};                       ///< the kind of its value
  std::string_view declares;                 ///< what it declares: a phrase, or a question that its value answers
  std::string_view note;                     ///< further remarks, or empty
  Confidence confidence = {};                ///< how certain `declares` is
  std::string_view sources;                  ///< codes of `Sources` behind `declares`, separated by blanks
  std::uint32_t files = 0;                   ///< how many files of the corpus have it by this name; 0: not seen
  EditionRange seen{};                       ///< the editions of these files; not known when there are none
  bool listedIn3_12 = false;                 ///< a public list of the fields of edition 3.12 has it
  bool listedIn3_18 = false;                 ///< a public list of the fields of edition 3.18 has it
  Edition goneBy{};                          ///< the first edition known to be without it; not known for a field in use
  std::span<const FieldValue> values;        ///< its values; for a boolean NO and YES
  std::span<const FieldUnit> units;          ///< its units, by condition; at most one condition holds at a time
  std::span<const FieldSpelling> spellings;  ///< its other names

  /// The group that the field stands in: the innermost of `locations`; `eVifLocUnset` when it stands in none.
  constexpr EVifLocation Group() const noexcept {
    EVifLocation group = eVifLocUnset;
    for (const EVifLocation location : locations) {
      if (location != eVifLocUnset) group = location;
    }
    return group;
  }

  /// The earliest edition known to have the field by this name: the first of a file with it or of a list that has it.
  constexpr Edition FirstKnown() const noexcept {
    if (seen.IsKnown() && seen.first <= Edition{3, 12}) return seen.first;
    if (listedIn3_12) return {3, 12};
    if (seen.IsKnown() && seen.first <= Edition{3, 18}) return seen.first;
    if (listedIn3_18) return {3, 18};
    return seen.first;
  }
};

/// What is known of a field in one edition.
enum class EditionFit : std::uint8_t {
  Unknown,   ///< the edition, or since when there has been such a field, is not known
  TooEarly,  ///< no source has the name that early
  Known,     ///< the field is known by then, and not known to be gone
  Gone,      ///< the field is known to be gone by then
};

/// What a name means.
struct NameMatch {
  NameKind kind = NameKind::Unknown;              ///< why it means the field
  const FieldInfo* field = nullptr;               ///< the field; null only when `kind` is Unknown
  const FieldInfo* otherField = nullptr;          ///< the other one, where an older field was split in two; else null
  const FieldSpelling* spelling = nullptr;        ///< the row behind `kind`; null where the field's own row is
  std::array<std::string_view, 2> indexDigits{};  ///< the index digits, outer group first; parts of the name looked up
};

/// A group of the format and its fields.
struct FieldGroup {
  EVifLocation location = eVifLocUnset;      ///< the group; `eVifLocUnset` for fields that stand in none
  std::span<const FieldInfo* const> fields;  ///< its fields, in the order of `Fields`
};

/// What decides which unit a number of a PDO is in.
struct PdoContext {
  std::optional<std::uint64_t> supplyType;     ///< the PDO's `Src_PDO_Supply_Type` or `Snk_PDO_Supply_Type`
  std::optional<std::uint64_t> apdoType;       ///< its `Src_PDO_APDO_Type` or `Snk_PDO_APDO_Type`
  std::optional<std::uint64_t> thresholdType;  ///< its `Src_PD_OCP_UV_Threshold_Type`
  Edition edition{};                           ///< the file's edition; may be not known
};

/// An exact amount of something.
struct Quantity {
  std::uint64_t amount = 0;  ///< how many of the unit
  Unit unit = {};            ///< never Watt, which is given in mW, and never Unknown
};

/// All fields: those of the definition table, in its order, then newer and older ones, XML structure and optional
/// content.
VIF_ANALYSIS_API std::span<const FieldInfo> Fields() noexcept;

/// All fields by group, the groups in the order in which the definition table first names them.
VIF_ANALYSIS_API std::span<const FieldGroup> FieldGroups() noexcept;

/// All names of fields other than the canonical ones. An older field that was split in two has two rows.
VIF_ANALYSIS_API std::span<const FieldSpelling> Spellings() noexcept;

/// What a name means: a canonical name, with or without the digits of its indexes (`Src_PDO_Voltage3`,
/// `SVID2_Mode1_Enter_SOP`), a text field's name with the dollar sign of the text form, or any other known spelling.
/// An exact match is preferred to one in another letter case, and a canonical name to other spellings. Only ASCII
/// letters have a letter case here. The time does not grow with the number of fields.
/// \return with the kind Unknown and no field when the name means none
VIF_ANALYSIS_API NameMatch FindField(std::string_view name) noexcept;

/// What is known of the field, by its canonical name, in an edition. A field is assumed to stay until it is known to be
/// gone, so it fits all editions newer than the corpus.
VIF_ANALYSIS_API EditionFit FitsEdition(const FieldInfo& field, const Edition& edition) noexcept;

/// What is known of the name in an edition. An older name is gone after the last edition of a file that has it. Unknown
/// for an older name that no file has, for a mistake, and for a name in a letter case that no edition has.
VIF_ANALYSIS_API EditionFit FitsEdition(const NameMatch& match, const Edition& edition) noexcept;

/// The name most probably meant: the canonical one for a spelling that loading does not know, or the one that differs
/// by the fewest inserted, omitted, changed or swapped characters. Index digits stay where they are:
/// `SVID1_num_modes_min_SOP` gives `SVID1_Num_Modes_Min_SOP`. Throws std::bad_alloc only.
/// \return empty when nothing is near enough, when two fields are equally near, and for a name that exists in some
///   edition, which is never taken for a misspelling of another
VIF_ANALYSIS_API std::string SuggestField(std::string_view name);

/// The row of a field's value; null when none is known.
VIF_ANALYSIS_API const FieldValue* FindValue(const FieldInfo& field, std::uint64_t value) noexcept;

/// What a field's value stands for in an edition, such as "Fixed"; in an edition that is not known, the newest text.
/// Empty when that is not known.
VIF_ANALYSIS_API std::string_view ValueText(const FieldInfo& field, std::uint64_t value,
                                            const Edition& edition = {}) noexcept;

/// The row that says which unit the field's numbers are in; null when the field has none or the context leaves that
/// open. Editions up to 3.12 have no APDO type, and their supply type 3 is PPS. Without a supply type (threshold type),
/// there is an answer only where the unit does not depend on it.
VIF_ANALYSIS_API const FieldUnit* FindUnit(const FieldInfo& field, const PdoContext& context = {}) noexcept;

/// What a field's number amounts to: 180 as the voltage of a fixed PDO is 9000 mV.
/// \return nothing when `FindUnit` gives no row, its unit is unknown, or the amount has more than 64 bits
VIF_ANALYSIS_API std::optional<Quantity> QuantityOf(const FieldInfo& field, std::uint64_t number,
                                                    const PdoContext& context = {}) noexcept;

/// A quantity for people, exact: "9 V", "2.25 A", "62.5 W", "10 ms", "95 %", "40 mOhm", "85 °C"; counts and decimal
/// identifiers as the plain number, identifiers as "0x18D1" and bits as "0x00000405", both with more digits when they
/// need them. Throws std::bad_alloc only.
VIF_ANALYSIS_API std::string QuantityText(const Quantity& quantity);

/// The symbol of a unit: "mV". Empty for counts, identifiers, bits and an unknown unit.
VIF_ANALYSIS_API std::string_view UnitSymbol(Unit unit) noexcept;

/// The type as one lower-case word: "text", "number", "boolean", "enumeration", "group", "unknown".
VIF_ANALYSIS_API std::string_view FieldTypeText(FieldType type) noexcept;

/// "high", "medium" or "low".
VIF_ANALYSIS_API std::string_view ConfidenceText(Confidence confidence) noexcept;

/// The kind of name in words that can follow a name and a dash: "older field", "other letter case".
VIF_ANALYSIS_API std::string_view NameKindText(NameKind kind) noexcept;

}  // namespace vifanalysis
