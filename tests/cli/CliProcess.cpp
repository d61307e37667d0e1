#include "cli/CliProcess.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <stdexcept>

extern char** environ;

namespace nomra::testing {

namespace {

std::map<std::string, std::optional<std::string>> ChildEnvironment(const CliLaunch& launch,
                                                                   const std::string& sandbox) {
  std::map<std::string, std::optional<std::string>> variables;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string text = *entry;
    const std::size_t equals = text.find('=');
    if (equals != std::string::npos) variables[text.substr(0, equals)] = text.substr(equals + 1);
  }
  variables["NOMRA_DATA_DIR"] = std::nullopt;
  variables["HOME"] = sandbox + "home";
  variables["XDG_DATA_HOME"] = sandbox + "xdg";
  for (const auto& [name, value] : launch.environment) variables[name] = value;
  return variables;
}

void Check(int error, const char* what) {
  if (error != 0) throw std::runtime_error(std::string(what) + ": " + std::strerror(error));
}

}  // namespace

RunningCli::RunningCli(const CliLaunch& launch) : sandbox_(std::make_unique<TempFolder>()) {
  const std::string outPath = sandbox_->Path() + "stdout";
  const std::string errPath = sandbox_->Path() + "stderr";

  std::vector<std::string> texts;
  for (const auto& [name, value] : ChildEnvironment(launch, sandbox_->Path())) {
    if (value) texts.push_back(name + "=" + *value);
  }
  std::vector<char*> environment;
  for (std::string& text : texts) environment.push_back(text.data());
  environment.push_back(nullptr);

  std::string program = NOMRA_CLI_PATH;
  std::vector<std::string> argumentTexts = launch.arguments;
  std::vector<char*> argv{program.data()};
  for (std::string& argument : argumentTexts) argv.push_back(argument.data());
  argv.push_back(nullptr);

  posix_spawn_file_actions_t actions;
  Check(posix_spawn_file_actions_init(&actions), "posix_spawn_file_actions_init");
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  if (!launch.workingFolder.empty()) posix_spawn_file_actions_addchdir_np(&actions, launch.workingFolder.c_str());

  pid_t child = 0;
  const int spawned = posix_spawn(&child, program.c_str(), &actions, nullptr, argv.data(), environment.data());
  posix_spawn_file_actions_destroy(&actions);
  Check(spawned, "posix_spawn");
  child_ = child;
}

RunningCli::~RunningCli() {
  // A test that failed half-way must not leave a child running.
  if (!status_) {
    Signal(SIGKILL);
    Wait();
  }
}

bool RunningCli::Ended() {
  if (status_) return true;
  int status = 0;
  const pid_t done = waitpid(child_, &status, WNOHANG);
  if (done == child_) status_ = status;
  return status_.has_value();
}

void RunningCli::Signal(int signal) {
  if (!status_) kill(child_, signal);
}

CliResult RunningCli::Wait() {
  int status = 0;
  while (!status_) {
    if (waitpid(child_, &status, 0) >= 0) {
      status_ = status;
    } else if (errno != EINTR) {
      Check(errno, "waitpid");
    }
  }
  CliResult result;
  // A crash gives -signal, so it can never pass for an exit status.
  result.exitStatus = WIFEXITED(*status_) ? WEXITSTATUS(*status_) : -WTERMSIG(*status_);
  result.out = ReadWholeFile(sandbox_->Path() + "stdout");
  result.err = ReadWholeFile(sandbox_->Path() + "stderr");
  return result;
}

CliResult RunCli(const CliLaunch& launch) {
  RunningCli running(launch);
  return running.Wait();
}

}  // namespace nomra::testing
