// Where the facts of the vocabulary and of the rules come from.
#pragma once

#include <analysis/Export.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// A source of facts. The texts are UTF-8 and live as long as the library is loaded.
struct Source {
  std::string_view code;      ///< as rows of facts name it: "C" and "N", "S2" of the vocabulary, "R2" of the rules
  std::string_view what;      ///< what it is
  std::string_view editions;  ///< the editions of the format that it covers, or empty
};

// May be called from any number of threads at once.

/// All sources.
VIF_ANALYSIS_API std::span<const Source> Sources() noexcept;

/// The source with a code; null when there is none.
VIF_ANALYSIS_API const Source* FindSource(std::string_view code) noexcept;

/// What the sources with these codes, separated by blanks, are. Codes that no source has are left out. Throws
/// std::bad_alloc only.
VIF_ANALYSIS_API std::vector<std::string> SourcesInWords(std::string_view codes);

}  // namespace vifanalysis
