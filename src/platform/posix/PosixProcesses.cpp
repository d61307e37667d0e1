#include "platform/posix/PosixProcesses.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

extern char** environ;

namespace nomra::platform {

namespace {

constexpr std::chrono::milliseconds kNap{20};
constexpr int kSignalBase = 128;  // as a shell reports a program ended by a signal

}  // namespace

long PosixProcesses::Start(const std::vector<std::string>& command) {
  if (command.empty()) return -1;
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawnp(&child, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0) return -1;
  return static_cast<long>(child);
}

std::optional<int> PosixProcesses::ExitCode(long handle) {
  int status = 0;
  pid_t ended = 0;
  do {
    ended = waitpid(static_cast<pid_t>(handle), &status, WNOHANG);
  } while (ended < 0 && errno == EINTR);
  // A child that can't be waited for any more has ended for the caller too.
  if (ended < 0) return -1;
  if (ended == 0) return std::nullopt;
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  if (WIFSIGNALED(status)) return kSignalBase + WTERMSIG(status);
  return std::nullopt;
}

void PosixProcesses::Nap() { std::this_thread::sleep_for(kNap); }

}  // namespace nomra::platform
