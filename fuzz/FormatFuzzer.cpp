// Formats arbitrary arguments with arbitrary formats, narrow and wide, and compares the results with snprintf.
//
// The first line is the format, and every other line an argument: a letter for its type, then its value.
#include "BaseUtilities/SimpleBuffer.h"
#include "BaseUtilities/StringConvert.h"
#include "Checks.h"
#include "Input.h"
#include "PrintedBySystem.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using fuzz::Require;
using Arguments = std::vector<CFormatArgument>;

constexpr std::size_t kMostArguments = 4;

/// The arguments in an input, and the texts that they borrow.
class CArgumentList {
 public:
  explicit CArgumentList(std::string_view lines) {
    while (!lines.empty() && m_arguments.size() < kMostArguments) Add(fuzz::TakeUpTo('\n', lines));
  }

  const Arguments& Get() const { return m_arguments; }

 private:
  void Add(std::string_view line) {
    const char type = line.empty() ? 'n' : line.front();
    line.remove_prefix(line.empty() ? 0 : 1);
    switch (type) {
      case 'b': m_arguments.emplace_back(static_cast<std::int8_t>(fuzz::NumberIn<std::int64_t>(line))); break;
      case 'h': m_arguments.emplace_back(static_cast<std::int16_t>(fuzz::NumberIn<std::int64_t>(line))); break;
      case 'i': m_arguments.emplace_back(static_cast<std::int32_t>(fuzz::NumberIn<std::int64_t>(line))); break;
      case 'l': m_arguments.emplace_back(fuzz::NumberIn<std::int64_t>(line)); break;
      case 'B': m_arguments.emplace_back(static_cast<std::uint8_t>(fuzz::NumberIn<std::uint64_t>(line))); break;
      case 'H': m_arguments.emplace_back(static_cast<std::uint16_t>(fuzz::NumberIn<std::uint64_t>(line))); break;
      case 'I': m_arguments.emplace_back(static_cast<std::uint32_t>(fuzz::NumberIn<std::uint64_t>(line))); break;
      case 'L': m_arguments.emplace_back(fuzz::NumberIn<std::uint64_t>(line)); break;
      case 'c': m_arguments.emplace_back(line.empty() ? '\0' : line.front()); break;
      case 'C': m_arguments.emplace_back(static_cast<wchar_t>(fuzz::NumberIn<std::int32_t>(line))); break;
      case 's': m_arguments.emplace_back(m_narrow.emplace_back(line).Get()); break;
      case 'w': m_arguments.emplace_back(m_wide.emplace_back(Utf8ToUtf16(line)).Get()); break;
      default: m_arguments.emplace_back(nullptr); break;
    }
  }

  Arguments m_arguments;
  std::deque<fuzz::CExactText<char>> m_narrow;
  std::deque<fuzz::CExactText<wchar_t>> m_wide;
};

template <typename Char>
const Char* Print(CSimpleBuffer& buffer, const Char* format, const Arguments& arguments) {
  switch (arguments.size()) {
    case 0: return buffer.Printf(format);
    case 1: return buffer.Printf(format, arguments[0]);
    case 2: return buffer.Printf(format, arguments[0], arguments[1]);
    case 3: return buffer.Printf(format, arguments[0], arguments[1], arguments[2]);
    default: return buffer.Printf(format, arguments[0], arguments[1], arguments[2], arguments[3]);
  }
}

void CheckNarrow(CSimpleBuffer& buffer, const std::string& format, const Arguments& arguments) {
  const std::string printed = Print(buffer, fuzz::CExactText<char>(format).Get(), arguments);
  Require(buffer.get() == printed, "the buffer holds what it has returned");
  const std::optional<std::string> expected = fuzz::PrintedBySystem(format, arguments);
  if (expected) fuzz::RequireSame(printed, *expected, "the output is what the system prints");
  const std::string twice = buffer.Printf("%s<%s>", buffer.get(), buffer.get());
  Require(twice == printed + '<' + printed + '>', "a buffer may be formatted into itself");
}

/// A wide format yields what the narrow one yields.
void CheckWide(CSimpleBuffer& buffer, const std::string& format, const Arguments& arguments) {
  const std::wstring wideFormat = Utf8ToUtf16(format);
  const std::string sameFormat = Utf16ToUtf8(wideFormat);
  const std::wstring printed = Print(buffer, fuzz::CExactText<wchar_t>(wideFormat).Get(), arguments);
  Require(buffer.getWide() == printed, "the buffer holds the wide text that it has returned");
  const std::wstring expected = Utf8ToUtf16(Print(buffer, sameFormat.c_str(), arguments));
  fuzz::RequireSame(Utf16ToUtf8(printed), Utf16ToUtf8(expected), "a wide format prints what a narrow one prints");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(data, data + size);
  std::string_view lines = input;
  std::string format(fuzz::TakeUpTo('\n', lines));
  format.resize(std::min(format.size(), format.find('\0')));
  const CArgumentList arguments(lines);
  CSimpleBuffer buffer;
  CheckNarrow(buffer, format, arguments.Get());
  CheckWide(buffer, format, arguments.Get());
  return 0;
}
