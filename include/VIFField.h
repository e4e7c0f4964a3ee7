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

/// The number of a group: `std::size_t` where that has 64 bits, and 64 bits wide everywhere.
using VifIndexNumber = std::conditional_t<sizeof(std::size_t) == sizeof(std::uint64_t), std::size_t, std::uint64_t>;

/// One location index: a group of the file and its number, such as (eVifLocSrcPdo, 2) for source PDO 2.
/// A slot whose location is `eVifLocUnset` is not in use, and its number means nothing.
using VifIndex = std::tuple<EVifLocation, std::uint64_t>;

namespace vif {
class CFieldDigests;
class CFieldQuery;
}  // namespace vif

/// One field: a name, a value, a description, whether the value is numeric and which number it stands for, and
/// up to three location indexes, outermost group first.
///
/// A field is a plain value, held and passed by value. Threads may read one field at once; changing it (which
/// only assignment does) needs it alone. Texts are UTF-8 unless the file was not. Unless a member says
/// otherwise, it throws nothing but `std::bad_alloc`.
class VIF_API CVIFField {
 public:
  /// How many location slots every field has.
  static constexpr std::size_t MAX_INDEX_DEPTH = 3;

  /// In a field: a group without a number. In a query: any number at that location.
  static constexpr VifIndexNumber INDEX_NOT_SPECIFIED = 0xFFFFFFFFFFFFFFFF;

  /// A slot that is not in use. In a query: a wildcard, which every field passes.
  static constexpr VifIndex UNSPECIFIED_INDEX = {eVifLocUnset, INDEX_NOT_SPECIFIED};

  /// The 64-bit numeric value of a field that has none.
  static constexpr std::uint64_t VIF_VALUE_UNSET_64 = 0xFFFFFFFFFFFFFFFF;

  /// The 32-bit numeric value of a field that has none.
  static constexpr std::uint32_t VIF_VALUE_UNSET = 0xFFFFFFFF;

  /// The empty field: empty texts, no locations, and numeric, with the value `VIF_VALUE_UNSET_64`, so that
  /// asking it for its number answers "unset" instead of failing.
  CVIFField();

  /// A field whose description repeats its value.
  /// \param isNumeric whether the value is to be read as a number
  /// \param indexes the location slots; unused ones hold `UNSPECIFIED_INDEX`
  CVIFField(bool isNumeric, const std::string& name, const std::string& value,
            const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes);

  /// The same with the slots one by one.
  CVIFField(bool isNumeric, const std::string& name, const std::string& value, const VifIndex& index1,
            const VifIndex& index2, const VifIndex& index3);

  /// A field with a description of its own.
  CVIFField(bool isNumeric, const std::string& name, const std::string& value, const std::string& description,
            const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes);

  /// The same, with the texts taken over instead of copied.
  CVIFField(bool isNumeric, std::string&& name, std::string&& value, std::string&& description,
            const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes);

  /// The same with the slots one by one.
  CVIFField(bool isNumeric, const std::string& name, const std::string& value, const std::string& description,
            const VifIndex& index1, const VifIndex& index2, const VifIndex& index3);

  CVIFField(const CVIFField& other);
  CVIFField& operator=(const CVIFField& other);

  /// Takes the three texts and copies the rest; the source is left with empty texts.
  CVIFField(CVIFField&& other) noexcept;

  /// Swaps the texts and the location slots with the source, and takes its numeric flag and numeric value. The
  /// source is left with this field's former texts and slots but keeps its own flag and numeric value.
  /// Assigning a field to itself does nothing.
  CVIFField& operator=(CVIFField&& other) noexcept;

  ~CVIFField();

  /// The name as declared; a text VIF's name is the canonical one, without index digits. Never null; the three
  /// pointers are valid while the field lives unchanged.
  const char* Name() const noexcept;

  /// The value's text as declared. Never null.
  const char* Value() const noexcept;

  /// The description. Never null.
  const char* Description() const noexcept;

  /// Whether the value is to be read as a number.
  bool IsNumeric() const noexcept;

  /// The three location slots, valid while the field lives.
  const std::array<VifIndex, MAX_INDEX_DEPTH>& Indexes() const noexcept;

  /// The number of slots in use.
  std::size_t IndexCount() const noexcept;

  /// The number in the first slot with that location; `INDEX_NOT_SPECIFIED` when there is none, when the slot
  /// has no number, and always for `eVifLocUnset`.
  VifIndexNumber Index(EVifLocation location) const noexcept;

  /// Whether a slot has that location. For `eVifLocUnset` that means: whether a slot is unused.
  bool HasIndex(EVifLocation location) const noexcept;

  /// The component's number minus one, so that the first component is 0. The subtraction is unconditional: a
  /// field outside any component gives 0xFFFFFFFFFFFFFFFE, and component number 0 gives 0xFFFFFFFFFFFFFFFF.
  VifIndexNumber ComponentIndex() noexcept;

  /// The number that the value stands for, `VIF_VALUE_UNSET_64` when the text is no number.
  ///
  /// NO and FALSE are 0, YES and TRUE 1, in any letter case. Text that starts with 0x is read as hexadecimal,
  /// other text as decimal, up to the first character that is no digit: "12 V" is 12. Text with no digit at its
  /// start (a blank or a sign included) or with a number of more than 64 bits is no number. Units are those of
  /// the VIF format.
  /// \throws CZoRunTimeException "Field '<name>' is not Numeric." when the field is not numeric
  std::uint64_t GetULongNumericValue() const;

  /// The low 32 bits of that number; `VIF_VALUE_UNSET` when there is none, and for a field that is not numeric.
  /// Never fails.
  std::uint32_t GetNumericValue() const noexcept;

  /// Whether the field passes a query: its locations first, then its name.
  ///
  /// A query slot whose location is `eVifLocUnset` is passed by every field. Any other asks that the field have
  /// a slot with that location, wherever it stands, and that the first such slot have the number asked for,
  /// unless that is `INDEX_NOT_SPECIFIED`.
  /// \param pattern a regular expression (ECMAScript) that must fit the whole name, without regard to letter case
  ///   as the global locale has it; null or empty means any name
  /// \throws std::regex_error when the locations pass and the pattern is not a regular expression, or when compiling or
  ///   matching it takes more than there is; see below
  ///
  /// A regular expression uses the stack that the calling thread has left, but for 64 kB and never more than 64 MB, and
  /// ends in `error_stack` where that is not enough. Compiling takes up to 256 bytes for each term of the pattern
  /// (a character, a bracket expression, a group) and 2 kB for each group around it, so 8 MB are enough for
  /// 30,000 plain characters in a row, or for 3,500 groups inside each other. Matching takes 256 bytes for each
  /// alternative of the pattern, and about as much for each part of it that matches nothing. A pattern that does not
  /// refer back to a group (`\1`) takes no more stack for a longer name; one that does takes about 500 bytes for each
  /// character, so names of 10,000 characters are answered in 8 MB. A thread with 256 kB has room for any usual
  /// pattern.
  ///
  /// A pattern ends in `error_complexity` when it takes more than a second or two, which only nested repetitions with a
  /// reference, look-ahead or thousands of empty groups do, and in `error_space` when it needs more than 100,000
  /// states, repetitions counted as often as braces ask for them. These numbers are those of libstdc++; other standard
  /// libraries set their own, and may end in `error_stack` or `error_complexity` on names of a few thousand characters.
  bool Match(const char* pattern, const VifIndex& index1, const VifIndex& index2, const VifIndex& index3) const;

  /// The same with the three query slots as one array.
  bool Match(const char* pattern, const std::array<VifIndex, MAX_INDEX_DEPTH>& query) const;

  /// The field as `name=value`, the value in double quotes unless the field is numeric. Nothing is escaped.
  CSafeString MakeOutputString() const;

 private:
  // Look at the slots and names of many fields, without a call for each.
  friend class vif::CFieldDigests;
  friend class vif::CFieldQuery;

  static std::uint64_t InitNumericValue(const std::string& text, bool isNumeric);

  bool MatchesSlot(const VifIndex& query) const noexcept;

  // What queries look at stands first, so that it lies in as few cache lines as possible.
  std::array<VifIndex, MAX_INDEX_DEPTH> m_indexes;
  CSafeString m_name;
  std::uint64_t m_numericValue;  // made of the value, so before the value can be taken over
  bool m_isNumeric;
  CSafeString m_value;
  CSafeString m_description;
};
