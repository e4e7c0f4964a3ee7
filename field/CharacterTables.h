// The character tables of a locale, which libstdc++ fills at first use.
#pragma once

#include <locale>

namespace vif {

/// Fills the tables of the locale's `std::ctype<char>`, so that nothing writes to them afterwards. libstdc++ fills them
/// piece by piece while it compiles expressions, without a lock, although all threads share them.
///
/// Call it before each use of the locale with a regular expression. It costs a fraction of compiling one, and takes a
/// lock, so that each thread sees what another has filled.
void FillCharacterTables(const std::locale& locale);

}  // namespace vif
