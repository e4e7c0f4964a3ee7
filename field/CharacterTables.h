// The character tables of a locale, which libstdc++ fills at first use.
#pragma once

#include <locale>

namespace vif {

/// Fills the tables of the locale's `std::ctype<char>`, so that nobody writes to them afterwards. libstdc++ fills them
/// piece by piece while it compiles expressions, and takes no lock for it, although all threads share them.
///
/// To be called before each use of the locale with a regular expression. That costs a fraction of compiling one, and
/// takes a lock, so that what one thread has filled the next one sees.
void FillCharacterTables(const std::locale& locale);

}  // namespace vif
