// The line of a file that a finding or a reason is about.
#pragma once

#include <analysis/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vifanalysis {

/// A line, printable (see `Printable`) and with a blank for each tab. What is far from the place is cut off, with an
/// ellipsis in its stead.
struct SourceLine {
  std::string before;  ///< the text before the place
  std::string after;   ///< the text from the place on
};

/// The line of a file's content at a place. UTF-16 is decoded if it has a byte order mark; in any other encoding than
/// UTF-8, characters beyond ASCII become U+FFFD.
/// \param content the bytes of the file
/// \param line from 1; there is no text if the content has fewer lines, or for 0
/// \param column the character in the line, from 1; 0 if it is not known, which puts the whole line into `after`
/// \throws std::bad_alloc; may be called from any number of threads at once
VIF_ANALYSIS_API SourceLine FindSourceLine(std::string_view content, std::size_t line, std::size_t column);

}  // namespace vifanalysis
