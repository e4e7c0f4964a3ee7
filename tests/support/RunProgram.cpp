#include "support/RunProgram.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace testsupport {

namespace {

std::string ReadAll(int descriptor) {
  std::string text;
  std::array<char, 65536> chunk;
  for (ssize_t count = 0; (count = read(descriptor, chunk.data(), chunk.size())) > 0;) {
    text.append(chunk.data(), static_cast<size_t>(count));
  }
  close(descriptor);
  return text;
}

[[noreturn]] void Execute(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
  _exit(127);
}

int AwaitExit(pid_t child) {
  int state = 0;
  waitpid(child, &state, 0);
  return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
}

/// Runs a program on a terminal. The keys are there before the program asks; the terminal keeps them for it.
ProgramResult RunWithKeys(const std::vector<std::string>& command, unsigned short columns, const std::string& keys) {
  winsize size = {};
  size.ws_row = 50;
  size.ws_col = columns;
  int terminal = -1;
  const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
  if (child < 0) throw std::runtime_error("no terminal");
  if (child == 0) Execute(command);
  const bool isTyped = write(terminal, keys.data(), keys.size()) == static_cast<ssize_t>(keys.size());
  ProgramResult result;
  result.output = ReadAll(terminal);
  result.status = AwaitExit(child);
  if (!isTyped) throw std::runtime_error("the terminal takes no keys");
  return result;
}

}  // namespace

ProgramResult RunProgram(const std::vector<std::string>& command) {
  int output[2];
  int error[2];
  if (pipe(output) != 0 || pipe(error) != 0) throw std::runtime_error("no pipe");
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) {
    dup2(output[1], STDOUT_FILENO);
    dup2(error[1], STDERR_FILENO);
    for (const int descriptor : {output[0], output[1], error[0], error[1]}) close(descriptor);
    Execute(command);
  }
  close(output[1]);
  close(error[1]);
  ProgramResult result;
  std::thread errorReader([&] { result.error = ReadAll(error[0]); });
  result.output = ReadAll(output[0]);
  errorReader.join();
  result.status = AwaitExit(child);
  return result;
}

bool HasTerminals() {
  const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
  if (terminal >= 0) close(terminal);
  return terminal >= 0;
}

ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns) {
  return RunWithKeys(command, columns, {});
}

ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns, const std::string& typed) {
  constexpr char endOfInput = 4;  // Ctrl-D
  return RunWithKeys(command, columns, typed + endOfInput);
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (size_t begin = 0; begin < text.size();) {
    const size_t end = std::min(text.find('\n', begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    if (!lines.back().empty() && lines.back().back() == '\r') lines.back().pop_back();
    begin = end + 1;
  }
  return lines;
}

}  // namespace testsupport
