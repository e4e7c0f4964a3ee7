#include "CharacterTables.h"

#include <mutex>

namespace vif {

void FillCharacterTables(const std::locale& locale) {
  static std::mutex mutex;
  const auto& ctype = std::use_facet<std::ctype<char>>(locale);
  const std::lock_guard<std::mutex> lock(mutex);
  // The second argument must be a character that no other is narrowed to, or the result is not kept.
  for (int c = 1; c < 256; ++c) ctype.narrow(static_cast<char>(c), '\0');
  ctype.widen('a');
}

namespace {

// Fills the tables of the initial global locale while the library is loaded, because a host may compile expressions of
// its own while its threads run queries.
// NOLINTNEXTLINE(cert-err58-cpp): a program without a locale does not get this far
[[maybe_unused]] const bool filledAtLoad = (FillCharacterTables(std::locale()), true);

}  // namespace

}  // namespace vif
