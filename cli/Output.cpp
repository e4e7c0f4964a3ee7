#include "Output.h"

#include "Command.h"

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace cli {

namespace {

[[noreturn]] void ThrowWriteFailure() {
  throw Failure(std::string("cannot write the output: ") + std::strerror(errno));
}

#ifdef _WIN32
/// The console mode of standard output; nothing when it is not a console.
std::optional<DWORD> ConsoleMode() {
  DWORD mode = 0;
  if (GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) == 0) return std::nullopt;
  return mode;
}

void PrepareConsole() {
  SetConsoleOutputCP(CP_UTF8);
  for (FILE* stream : {stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
    std::setvbuf(stream, nullptr, _IOFBF, 1 << 16);  // a console must get all bytes of a character at once
  }
  const std::optional<DWORD> mode = ConsoleMode();
  if (mode) SetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), *mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

bool IsTerminal() { return ConsoleMode().has_value(); }

// Consoles before Windows 10 print the sequences.
bool DoesTerminalHeedEscapes() { return (ConsoleMode().value_or(0) & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0; }

size_t ConsoleWidth() {
  CONSOLE_SCREEN_BUFFER_INFO info;
  if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) == 0) return 0;
  return static_cast<size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}
#else
void PrepareConsole() {}

bool IsTerminal() { return isatty(STDOUT_FILENO) != 0; }

bool DoesTerminalHeedEscapes() { return IsTerminal(); }

size_t ConsoleWidth() {
  winsize size = {};
  return ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0;
}
#endif

size_t WidthFromEnvironment() {
  const char* columns = std::getenv("COLUMNS");
  size_t width = 0;
  if (columns != nullptr) std::from_chars(columns, columns + std::strlen(columns), width);
  return width;
}

}  // namespace

void PrepareOutput() { PrepareConsole(); }

void Write(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) ThrowWriteFailure();
}

void Flush() {
  if (std::fflush(stdout) != 0) ThrowWriteFailure();
}

std::optional<size_t> TerminalWidth() {
  if (!IsTerminal()) return std::nullopt;
  constexpr size_t usualWidth = 80;
  for (const size_t width : {ConsoleWidth(), WidthFromEnvironment()}) {
    if (width > 0) return width;
  }
  return usualWidth;
}

bool HeedsEscapes() { return DoesTerminalHeedEscapes(); }

}  // namespace cli
