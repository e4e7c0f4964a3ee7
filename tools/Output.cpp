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

namespace tool {

namespace {

[[noreturn]] void ThrowWriteFailure() {
  throw Failure(std::string("cannot write the output: ") + std::strerror(errno));
}

#ifdef _WIN32
void WriteBytesAsTheyAre() {
  SetConsoleOutputCP(CP_UTF8);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
}

bool IsTerminal() { return _isatty(_fileno(stdout)) != 0; }

size_t AskedWidth() {
  CONSOLE_SCREEN_BUFFER_INFO info;
  if (GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &info) == 0) return 0;
  return static_cast<size_t>(info.srWindow.Right - info.srWindow.Left + 1);
}
#else
void WriteBytesAsTheyAre() {}  // as this system always does

bool IsTerminal() { return isatty(STDOUT_FILENO) != 0; }

size_t AskedWidth() {
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

void PrepareOutput() { WriteBytesAsTheyAre(); }

void Write(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) ThrowWriteFailure();
}

void Flush() {
  if (std::fflush(stdout) != 0) ThrowWriteFailure();
}

std::optional<size_t> TerminalWidth() {
  if (!IsTerminal()) return std::nullopt;
  constexpr size_t usualWidth = 80;
  for (const size_t width : {AskedWidth(), WidthFromEnvironment()}) {
    if (width > 0) return width;
  }
  return usualWidth;
}

}  // namespace tool
