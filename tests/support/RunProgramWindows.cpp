#include "support/RunProgram.h"

#include <BaseUtilities/StringConvert.h>

#include <windows.h>

#include <array>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <utility>

namespace testsupport {

namespace {

[[noreturn]] void ThrowLastError(const char* what) {
  throw std::system_error(static_cast<int>(GetLastError()), std::system_category(), what);
}

/// Closes the handle when destroyed.
class CHandle {
 public:
  CHandle() = default;
  explicit CHandle(HANDLE handle) : m_handle(handle) {}
  CHandle(const CHandle&) = delete;
  CHandle(CHandle&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)) {}
  CHandle& operator=(const CHandle&) = delete;
  CHandle& operator=(CHandle&& other) noexcept {
    std::swap(m_handle, other.m_handle);
    return *this;
  }
  ~CHandle() { Close(); }

  HANDLE get() const { return m_handle; }
  void Close() {
    if (m_handle != nullptr) CloseHandle(std::exchange(m_handle, nullptr));
  }

 private:
  HANDLE m_handle = nullptr;
};

/// The new process inherits handles created with these.
SECURITY_ATTRIBUTES Inherited() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

/// Both ends of a pipe; the new process inherits one of them.
struct Pipe {
  enum class End { Reading, Writing };

  Pipe(End inherited, std::size_t size) {
    SECURITY_ATTRIBUTES attributes = Inherited();
    HANDLE readingEnd = nullptr;
    HANDLE writingEnd = nullptr;
    if (CreatePipe(&readingEnd, &writingEnd, &attributes, static_cast<DWORD>(size)) == 0)
      ThrowLastError("cannot create a pipe");
    reading = CHandle(readingEnd);
    writing = CHandle(writingEnd);
    SetHandleInformation(inherited == End::Reading ? writingEnd : readingEnd, HANDLE_FLAG_INHERIT, 0);
  }

  CHandle reading;
  CHandle writing;
};

/// Can be opened but not written to.
CHandle OpenUnwritable() {
  SECURITY_ATTRIBUTES attributes = Inherited();
  const HANDLE handle = CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &attributes,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) ThrowLastError("NUL");
  return CHandle(handle);
}

std::string ReadAll(const CHandle& handle) {
  std::string text;
  std::array<char, 65536> chunk;
  DWORD count = 0;
  while (ReadFile(handle.get(), chunk.data(), static_cast<DWORD>(chunk.size()), &count, nullptr) != 0 && count > 0) {
    text.append(chunk.data(), count);
  }
  return text;
}

void WriteShortText(const CHandle& handle, const std::string& text) {
  DWORD count = 0;
  if (WriteFile(handle.get(), text.data(), static_cast<DWORD>(text.size()), &count, nullptr) == 0) {
    ThrowLastError("cannot write the input");
  }
}

/// Quotes an argument the way programs parse their command lines: a backslash is special only before a double quote.
std::wstring Quoted(const std::wstring& argument) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : argument) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L'"';
}

std::wstring CommandLine(const std::vector<std::string>& command) {
  std::wstring line;
  for (const std::string& argument : command) {
    if (!line.empty()) line += L' ';
    line += Quoted(Utf8ToUtf16(argument));
  }
  return line;
}

CHandle Start(const std::vector<std::string>& command, const ProgramSetting& setting, HANDLE input, HANDLE output,
              HANDLE error) {
  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = input;
  startup.hStdOutput = output;
  startup.hStdError = error;
  std::wstring line = CommandLine(command);
  const wchar_t* directory = setting.directory.empty() ? nullptr : setting.directory.c_str();
  PROCESS_INFORMATION process = {};
  if (CreateProcessW(Utf8ToUtf16(command.front()).c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, directory,
                     &startup, &process) == 0) {
    ThrowLastError("cannot start the program");
  }
  CloseHandle(process.hThread);
  return CHandle(process.hProcess);
}

int AwaitExit(const CHandle& process) {
  DWORD status = 0;
  WaitForSingleObject(process.get(), INFINITE);
  if (GetExitCodeProcess(process.get(), &status) == 0) ThrowLastError("cannot get the exit status");
  return static_cast<int>(status);
}

}  // namespace

ProgramResult RunProgram(const std::vector<std::string>& command, const ProgramSetting& setting) {
  Pipe input(Pipe::End::Reading, setting.input.size());
  Pipe output(Pipe::End::Writing, 0);
  Pipe error(Pipe::End::Writing, 0);
  if (!setting.canWrite) output.writing = OpenUnwritable();
  WriteShortText(input.writing, setting.input);  // before a reader exists, which could exit without reading it
  const CHandle process = Start(command, setting, input.reading.get(), output.writing.get(), error.writing.get());
  for (CHandle* end : {&input.reading, &input.writing, &output.writing, &error.writing}) end->Close();
  ProgramResult result;
  std::thread errorReader([&] { result.error = ReadAll(error.reading); });
  result.output = ReadAll(output.reading);
  errorReader.join();
  result.status = AwaitExit(process);
  return result;
}

// Windows has pseudo-consoles, but they do not pass on the output of a program as bytes.
bool HasTerminals() { return false; }

ProgramResult RunOnTerminal(const std::vector<std::string>&, unsigned short) { throw std::logic_error(kNoTerminals); }

ProgramResult RunOnTerminal(const std::vector<std::string>&, unsigned short, const std::string&) {
  throw std::logic_error(kNoTerminals);
}

}  // namespace testsupport
