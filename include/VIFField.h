// One declared field of a Vendor Info File.
#pragma once

#include "BaseUtilities/SafeString.h"
#include "VIFExport.h"
#include "VIFLocations.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

/// The number of a group. Always 64 bits wide, and `std::size_t` where that is.
using VifIndexNumber = std::conditional_t<sizeof(std::size_t) == sizeof(std::uint64_t), std::size_t, std::uint64_t>;

/// One location index: a group of the file and its number, such as (eVifLocSrcPdo, 2) for source PDO 2. A slot whose
/// location is `eVifLocUnset` is unused, and its number means nothing.
using VifIndex = std::tuple<EVifLocation, std::uint64_t>;

namespace vif {
class CFieldDigests;
class CFieldQuery;
}  // namespace vif

/// One field: its name, value and description, whether the value is numeric and what number it stands for, and up to
/// three location indexes, outermost group first.
///
/// A field is a plain value, held and passed by value. Several threads may read one field at once; while a thread
/// assigns to it or moves from it, no other may use it. Texts are UTF-8 unless the file was not. Unless its comment
/// says otherwise, a member throws only `std::bad_alloc`.
class VIF_API CVIFField {
 public:
  /// The number of location slots in every field.
  static constexpr std::size_t MAX_INDEX_DEPTH = 3;

  /// In a field: a group without a number. In a query: any number at that location.
  static constexpr VifIndexNumber INDEX_NOT_SPECIFIED = 0xFFFFFFFFFFFFFFFF;

  /// An unused slot. In a query: a wildcard, which matches every field.
  static constexpr VifIndex UNSPECIFIED_INDEX = {eVifLocUnset, INDEX_NOT_SPECIFIED};

  /// Stands for the 64-bit number of a field that has none.
  static constexpr std::uint64_t VIF_VALUE_UNSET_64 = 0xFFFFFFFFFFFFFFFF;

  /// Stands for the 32-bit number of a field that has none.
  static constexpr std::uint32_t VIF_VALUE_UNSET = 0xFFFFFFFF;

  /// The empty field: empty texts, no locations, and numeric, with the value `VIF_VALUE_UNSET_64`, so that its number
  /// is "unset" and asking for it does not throw.
  CVIFField();

  /// A field whose description repeats its value.
  /// \param isNumeric whether to read the value as a number
  /// \param name the name, without index digits
  /// \param value the value's text
  /// \param indexes the location slots; unused ones hold `UNSPECIFIED_INDEX`
  CVIFField(bool isNumeric, const std::string& name, const std::string& value,
            const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes);

  /// The same with separate slots.
  CVIFField(bool isNumeric, const std::string& name, const std::string& value, const VifIndex& index1,
            const VifIndex& index2, const VifIndex& index3);

  /// A field with a description of its own.
  CVIFField(bool isNumeric, const std::string& name, const std::string& value, const std::string& description,
            const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes);

  /// The same, but moves the texts instead of copying them.
  CVIFField(bool isNumeric, std::string&& name, std::string&& value, std::string&& description,
            const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes);

  /// The same with separate slots.
  CVIFField(bool isNumeric, const std::string& name, const std::string& value, const std::string& description,
            const VifIndex& index1, const VifIndex& index2, const VifIndex& index3);

  /// An independent copy.
  CVIFField(const CVIFField& other);

  /// Copies the other's content.
  CVIFField& operator=(const CVIFField& other);

  /// Moves the three texts and copies the rest. The source is left with empty texts.
  CVIFField(CVIFField&& other) noexcept;

  /// Swaps the texts and location slots with the source, and copies its numeric flag and number. The source ends up
  /// with this field's former texts and slots, but keeps its own flag and number. Self-assignment does nothing.
  CVIFField& operator=(CVIFField&& other) noexcept;

  ~CVIFField();

  /// The name as declared; in a text VIF, the canonical one, without index digits. Never null. This pointer, and those
  /// of `Value` and `Description`, are valid until the field is changed or destroyed.
  const char* Name() const noexcept;

  /// The value's text as declared. Never null.
  const char* Value() const noexcept;

  /// The description. Never null.
  const char* Description() const noexcept;

  /// Whether the value is read as a number.
  bool IsNumeric() const noexcept;

  /// The three location slots. The reference is valid while the field lives.
  const std::array<VifIndex, MAX_INDEX_DEPTH>& Indexes() const noexcept;

  /// The number of slots in use.
  std::size_t IndexCount() const noexcept;

  /// The number in the first slot with that location; `INDEX_NOT_SPECIFIED` if there is no such slot or it has no
  /// number, and always for `eVifLocUnset`.
  VifIndexNumber Index(EVifLocation location) const noexcept;

  /// Whether any slot has that location. For `eVifLocUnset`: whether any slot is unused.
  bool HasIndex(EVifLocation location) const noexcept;

  /// The component's number minus one, so that the first component is 0. The subtraction is unconditional and may wrap:
  /// a field outside any component yields 0xFFFFFFFFFFFFFFFE, and component number 0 yields 0xFFFFFFFFFFFFFFFF.
  VifIndexNumber ComponentIndex() noexcept;

  /// The number that the value stands for; `VIF_VALUE_UNSET_64` if the text is not a number.
  ///
  /// NO and FALSE are 0, YES and TRUE are 1, in any letter case. Text that starts with 0x is read as hexadecimal, other
  /// text as decimal, up to the first character that is not a digit: "12 V" is 12. Text that does not begin with a
  /// digit (but, say, with a blank or a sign) is not a number, and neither is text whose number exceeds 64 bits. Units
  /// are those of the VIF format.
  /// \throws CZoRunTimeException "Field '<name>' is not Numeric." when the field is not numeric
  std::uint64_t GetULongNumericValue() const;

  /// The low 32 bits of that number; `VIF_VALUE_UNSET` if there is none or the field is not numeric. Never throws.
  std::uint32_t GetNumericValue() const noexcept;

  /// Whether the field matches a query. Locations are compared first, then the name.
  ///
  /// Every field matches a query slot whose location is `eVifLocUnset`. For any other query slot, the field must have a
  /// slot with that location, in any position, and the first such slot must have the number asked for, unless that is
  /// `INDEX_NOT_SPECIFIED`.
  /// \param pattern a regular expression (ECMAScript) that must match the whole name, ignoring letter case as the
  ///   global locale defines it; null or empty matches any name
  /// \param index1,index2,index3 the query slots, in any order
  /// \throws std::regex_error if the locations match and the pattern is not a regular expression, or compiling or
  ///   matching it takes too much stack, time or memory; see below
  ///
  /// A regular expression may use all the stack that the calling thread has left except 64 kB, but at most 64 MB. If
  /// that is not enough, the error is `error_stack`. Compiling takes up to 256 bytes for each term of the pattern (a
  /// character, a bracket expression, a group) and 2 kB for each group around it, so 8 MB are enough for a sequence of
  /// 30,000 plain characters, or for groups nested 3,500 deep. Matching takes 256 bytes for each alternative in the
  /// pattern, and about as much for each part of it that matches without consuming a character. Without back-references
  /// (`\1`), a pattern takes no more stack for a longer name; with one, it takes about 500 bytes per character, so 8 MB
  /// are enough for names of 10,000 characters. A thread with a stack of 256 kB has room for any ordinary pattern.
  ///
  /// The error is `error_complexity` if a pattern takes more than a second or two, which happens only with nested
  /// repetitions and a back-reference, with look-ahead, or with thousands of empty groups. It is `error_space` if a
  /// pattern needs more than 100,000 states, where braces count as often as they repeat. These figures are for
  /// libstdc++; other standard libraries have limits of their own, and the error may be `error_stack` or
  /// `error_complexity` for names of a few thousand characters.
  bool Match(const char* pattern, const VifIndex& index1, const VifIndex& index2, const VifIndex& index3) const;

  /// The same with the three query slots as one array.
  bool Match(const char* pattern, const std::array<VifIndex, MAX_INDEX_DEPTH>& query) const;

  /// The field as `name=value`, the value in double quotes unless the field is numeric. Nothing is escaped.
  CSafeString MakeOutputString() const;

 private:
  // Read the slots and names of many fields without a call for each.
  friend class vif::CFieldDigests;
  friend class vif::CFieldQuery;

  static std::uint64_t InitNumericValue(const std::string& text, bool isNumeric);

  bool MatchesSlot(const VifIndex& query) const noexcept;

  // What queries read comes first, so that it spans as few cache lines as possible.
  std::array<VifIndex, MAX_INDEX_DEPTH> m_indexes;
  CSafeString m_name;
  std::uint64_t m_numericValue;  // computed from the value, hence before that is moved
  bool m_isNumeric;
  CSafeString m_value;
  CSafeString m_description;
};
