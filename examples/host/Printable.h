// Text that is safe to show.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// The text as valid UTF-8 on one line, with control characters and those that change the direction of text as escapes
/// such as `\u001b`. File names and file contents come from strangers: printed as they are, they could control the
/// operator's terminal or forge a line of the log.
std::string Printable(std::string_view text);

}  // namespace host
