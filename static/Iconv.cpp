// iconv for the static command, from tables. The C library's own would load modules of the system on which the command
// runs, which may be missing there or belong to another version of that library.
#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "BaseUtilities/Encode.h"

namespace {

/// A sequence of bytes, as a big-endian number, and its character.
struct Sequence {
  std::uint32_t bytes;
  std::uint32_t character;
};

struct Encoding {
  std::string_view name;  // in upper case
  std::span<const Sequence> table;
};

#include "EncodingTables.h"

constexpr std::size_t kLongestSequence = 4;
constexpr auto kFailed = static_cast<std::size_t>(-1);

/// The same for both directions; only decoding works.
struct Converter {
  const Encoding* encoding;
  bool decodes;
};

char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

const Encoding* FindEncoding(std::string_view name) {
  const auto hasName = [&](const Encoding& encoding) {
    return std::equal(name.begin(), name.end(), encoding.name.begin(), encoding.name.end(),
                      [](char a, char b) { return UpperCase(a) == b; });
  };
  const auto found = std::find_if(std::begin(kEncodings), std::end(kEncodings), hasName);
  return found != std::end(kEncodings) ? &*found : nullptr;
}

/// The first sequence of a table that is not below a number.
auto LowerBound(std::span<const Sequence> table, std::uint64_t bytes) {
  return std::lower_bound(table.begin(), table.end(), bytes,
                          [](const Sequence& sequence, std::uint64_t value) { return sequence.bytes < value; });
}

/// Whether a table has longer sequences with this beginning.
bool IsBeginning(std::span<const Sequence> table, std::uint32_t bytes, std::size_t length) {
  for (std::size_t more = 1; length + more <= kLongestSequence; ++more) {
    const auto first = static_cast<std::uint64_t>(bytes) << (8 * more);
    const auto found = LowerBound(table, first);
    if (found != table.end() && found->bytes < first + (std::uint64_t{1} << (8 * more))) return true;
  }
  return false;
}

struct Decoded {
  std::uint32_t character = 0;
  std::size_t length = 0;  ///< of its sequence
  int error = 0;           ///< EILSEQ or EINVAL when there is no character
};

/// Decodes the first character of a text that is not empty.
Decoded Decode(std::span<const Sequence> table, std::string_view text) {
  std::uint32_t bytes = 0;
  const std::size_t longest = std::min(text.size(), kLongestSequence);
  for (std::size_t length = 1; length <= longest; ++length) {
    bytes = bytes << 8 | static_cast<unsigned char>(text[length - 1]);
    const auto found = LowerBound(table, bytes);
    if (found != table.end() && found->bytes == bytes) return {found->character, length};
    if (!IsBeginning(table, bytes, length)) return {0, 0, EILSEQ};
  }
  return {0, 0, EINVAL};
}

}  // namespace

extern "C" {

iconv_t iconv_open(const char* to, const char* from) {
  const bool decodes = std::string_view(to) == "UTF-8";
  const Encoding* encoding = FindEncoding(decodes ? from : to);
  if (encoding == nullptr) {
    errno = EINVAL;
    return reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr): as POSIX has it
  }
  return new Converter{encoding, decodes};
}

std::size_t iconv(iconv_t handle, char** in, std::size_t* inLeft, char** out, std::size_t* outLeft) {
  const auto& converter = *static_cast<const Converter*>(handle);
  if (in == nullptr || *in == nullptr) return 0;
  std::string encoded;
  while (*inLeft > 0) {
    const Decoded decoded =
        converter.decodes ? Decode(converter.encoding->table, {*in, *inLeft}) : Decoded{0, 0, EILSEQ};
    errno = decoded.error;
    if (decoded.error != 0) return kFailed;
    encoded.clear();
    zotext::AppendUtf8(encoded, decoded.character);
    if (encoded.size() > *outLeft) {
      errno = E2BIG;
      return kFailed;
    }
    *out = std::copy(encoded.begin(), encoded.end(), *out);
    *outLeft -= encoded.size();
    *in += decoded.length;
    *inLeft -= decoded.length;
  }
  return 0;
}

int iconv_close(iconv_t handle) {
  delete static_cast<Converter*>(handle);
  return 0;
}
}
