#include "Console.h"

#include <BaseUtilities/StringConvert.h>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <iostream>

namespace host {

namespace {

/// Reads what is typed as Unicode: read as bytes, older consoles deliver only ASCII letters.
bool ReadTypedLine(HANDLE console, std::string& line) {
  std::wstring typed;
  std::array<wchar_t, 512> piece;
  DWORD count = 0;
  do {
    if (ReadConsoleW(console, piece.data(), static_cast<DWORD>(piece.size()), &count, nullptr) == 0) return false;
    typed.append(piece.data(), count);
  } while (count == piece.size() && typed.back() != L'\n');
  constexpr wchar_t endOfInput = 26;  // Ctrl-Z
  if (typed.empty() || typed.front() == endOfInput) return false;
  line = Utf16ToUtf8(typed.substr(0, typed.find_first_of(L"\r\n")));
  return true;
}

}  // namespace

void PrepareConsole() {
  SetConsoleOutputCP(CP_UTF8);
  for (FILE* stream : {stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
    std::setvbuf(stream, nullptr, _IOFBF, 1 << 16);  // a console must not get the bytes of a character one by one
  }
}

bool ReadLine(std::string& line) {
  const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
  DWORD mode = 0;
  if (GetConsoleMode(input, &mode) != 0) return ReadTypedLine(input, line);
  return static_cast<bool>(std::getline(std::cin, line));
}

}  // namespace host
