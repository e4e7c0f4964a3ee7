#include "CharacterTables.h"

#include <mutex>

namespace vif {

void FillCharacterTables(const std::locale& locale) {
  static std::mutex mutex;
  const auto& ctype = std::use_facet<std::ctype<char>>(locale);
  const std::lock_guard<std::mutex> lock(mutex);
  // The second argument is a character that no other is narrowed to, or the result is not kept.
  for (int c = 1; c < 256; ++c) ctype.narrow(static_cast<char>(c), '\0');
  ctype.widen('a');
}

namespace {

// Those of the first global locale are filled while the library is loaded, because a host may compile expressions of
// its own while its threads ask.
// NOLINTNEXTLINE(cert-err58-cpp): a program without a locale does not come this far
[[maybe_unused]] const bool filledAtLoad = (FillCharacterTables(std::locale()), true);

}  // namespace

}  // namespace vif
