#include "support/RunProgram.h"

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <thread>

namespace testsupport {

namespace {

/// Both ends of a pipe.
struct Pipe {
  Pipe() {
    if (pipe(ends) != 0) throw std::runtime_error("cannot create a pipe");
  }

  int ends[2];
};

std::string ReadAll(int descriptor) {
  std::string text;
  std::array<char, 65536> chunk;
  for (ssize_t count = 0; (count = read(descriptor, chunk.data(), chunk.size())) > 0;) {
    text.append(chunk.data(), static_cast<size_t>(count));
  }
  close(descriptor);
  return text;
}

/// Writes text that fits into the pipe at once.
void WriteShortText(int descriptor, const std::string& text) {
  if (write(descriptor, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("the text is too long to write at once");
  }
}

[[noreturn]] void Execute(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  execv(arguments[0], arguments.data());
  _exit(127);
}

/// What the new process does before it becomes the program.
[[noreturn]] void ExecuteIn(const ProgramSetting& setting, const Pipe (&pipes)[3],
                            const std::vector<std::string>& command) {
  dup2(pipes[0].ends[0], STDIN_FILENO);
  dup2(setting.canWrite ? pipes[1].ends[1] : open("/dev/full", O_WRONLY), STDOUT_FILENO);
  dup2(pipes[2].ends[1], STDERR_FILENO);
  for (const Pipe& pipe : pipes) {
    for (const int descriptor : pipe.ends) close(descriptor);
  }
  if (!setting.directory.empty() && chdir(setting.directory.c_str()) != 0) _exit(127);
  Execute(command);
}

int AwaitExit(pid_t child) {
  int state = 0;
  waitpid(child, &state, 0);
  return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
}

/// Runs a program on a terminal. The keys are typed before the program reads; the terminal buffers them.
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

ProgramResult RunProgram(const std::vector<std::string>& command, const ProgramSetting& setting) {
  const Pipe pipes[3];
  const auto& [input, output, error] = pipes;
  WriteShortText(input.ends[1], setting.input);  // before a reader exists, which could exit without reading it
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) ExecuteIn(setting, pipes, command);
  for (const int descriptor : {input.ends[0], input.ends[1], output.ends[1], error.ends[1]}) close(descriptor);
  ProgramResult result;
  std::thread errorReader([&, end = error.ends[0]] { result.error = ReadAll(end); });
  result.output = ReadAll(output.ends[0]);
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

}  // namespace testsupport
