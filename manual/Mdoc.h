// Text in mdoc(7), the language of manual pages that mandoc and groff share.
#pragma once

#include <string>
#include <string_view>

namespace manual {

/// The text with every character that roff would take for its own escaped, and ASCII only. Quotes and hyphens stay
/// those of ASCII when the page is shown, so that commands can be copied from it.
/// \throws std::runtime_error for a text that is not UTF-8
std::string Escape(std::string_view text);

/// The text as one argument of a macro.
std::string Argument(std::string_view text);

/// The text as arguments of a macro, one for each word.
std::string Arguments(std::string_view text);

/// A paragraph, filled: lines end with sentences and fit 80 columns. Ends in a line feed, unless it is empty.
std::string Paragraph(std::string_view text);

/// The text with a full stop at its end.
std::string Sentence(std::string_view text);

/// Lines to be shown as they are, such as commands.
std::string Literal(std::string_view lines);

}  // namespace manual
