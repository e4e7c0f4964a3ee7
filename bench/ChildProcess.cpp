#include "ChildProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <stdexcept>

namespace bench {

namespace {

/// What to do with a new process's descriptors.
class CFileActions {
 public:
  CFileActions() { posix_spawn_file_actions_init(&m_actions); }
  CFileActions(const CFileActions&) = delete;
  CFileActions& operator=(const CFileActions&) = delete;
  ~CFileActions() { posix_spawn_file_actions_destroy(&m_actions); }

  posix_spawn_file_actions_t* Get() { return &m_actions; }

 private:
  posix_spawn_file_actions_t m_actions = {};
};

void Run(const std::vector<std::string>& command, CFileActions& actions) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawn(&child, arguments[0], actions.Get(), nullptr, arguments.data(), environ) != 0) {
    throw std::runtime_error("cannot run " + command[0]);
  }
  int state = 0;
  waitpid(child, &state, 0);
  if (!WIFEXITED(state) || WEXITSTATUS(state) != 0) throw std::runtime_error(command[0] + " failed");
}

}  // namespace

double SecondsOf(const std::vector<std::string>& command) {
  CFileActions actions;
  posix_spawn_file_actions_addopen(actions.Get(), STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(actions.Get(), STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const auto begin = std::chrono::steady_clock::now();
  Run(command, actions);
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

std::string OutputOf(const std::vector<std::string>& command) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  CFileActions actions;
  posix_spawn_file_actions_adddup2(actions.Get(), ends[1], STDOUT_FILENO);
  std::array<char, 4096> buffer;  // less than a pipe holds, so that the program never waits for a reader
  ssize_t length = 0;
  try {
    Run(command, actions);
    length = read(ends[0], buffer.data(), buffer.size());
  } catch (...) {
    close(ends[0]);
    close(ends[1]);
    throw;
  }
  close(ends[0]);
  close(ends[1]);
  return {buffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0};
}

}  // namespace bench
