// Everything known about one field, ready to be printed.
#pragma once

#include <analysis/Export.h>
#include <analysis/Vocabulary.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// A value, as `FieldExplanation` has it.
struct ExplainedValue {
  std::string value;           ///< the number in decimal
  std::string text;            ///< what it stands for
  bool seen = false;           ///< whether a file of the corpus has it
  Confidence confidence = {};  ///< how certain it is
};

/// Another name of the field, as `FieldExplanation` has it.
struct ExplainedSpelling {
  std::string name;            ///< the name; `#` stands for index digits
  NameKind kind = {};          ///< why it means the field
  std::string first;           ///< the first edition seen with it, or empty
  std::string last;            ///< the last edition seen with it, or empty
  std::string why;             ///< how that is known, or empty
  Confidence confidence = {};  ///< how certain it is
};

/// What is known about a field. Texts are UTF-8. The corpus is explained in `Vocabulary.h`.
struct FieldExplanation {
  NameKind asked = {};      ///< why the name asked for means this field
  std::string name;         ///< the canonical name
  std::string alsoMeans;    ///< the other field, where the name is that of an older field split in two; otherwise empty
  std::string group;        ///< the short name of the group, as `GetVifLocInfo` has it; empty for none
  std::string declares;     ///< what the field declares
  std::string note;         ///< further remarks, or empty
  std::string type;         ///< as `FieldTypeText` gives it
  std::string unit;         ///< "50 mV", or "50 mV (fixed); 100 mV (augmented)"; empty for none or one not known
  bool unitIsWeak = false;  ///< whether part of `unit` has low confidence
  std::vector<ExplainedValue> values;        ///< in rising order
  std::string firstEdition;                  ///< the first edition seen with this name, or empty
  std::string lastEdition;                   ///< the last one
  bool seen = false;                         ///< whether a file of the corpus has the field by this name
  std::vector<ExplainedSpelling> spellings;  ///< the other names
  Confidence confidence = {};                ///< how certain `declares` is
  std::vector<std::string> sources;          ///< what `declares` was taken from, in words
};

/// In which editions the name was seen: "2.04 to 3.36", "3.36", or "not seen in a file". Empty where that is not known.
/// Throws std::bad_alloc only. May be called from any number of threads at once.
VIF_ANALYSIS_API std::string EditionsText(const FieldExplanation& field);

/// Explains the field that a name means.
/// \param name as for `FindField`
/// \return nothing when the name means no field
/// Throws std::bad_alloc only. May be called from any number of threads at once.
VIF_ANALYSIS_API std::optional<FieldExplanation> ExplainField(std::string_view name);

}  // namespace vifanalysis
