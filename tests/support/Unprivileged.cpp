#include "support/Unprivileged.h"

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace nomra::testing {

namespace {

constexpr uid_t kNobody = 65534;
constexpr gid_t kNoGroup = 65534;
// What the child answers when it could not give up root.
constexpr int kStillRoot = 255;

void HandOver(const std::string& tree) {
  namespace fs = std::filesystem;
  std::error_code ignored;
  lchown(tree.c_str(), kNobody, kNoGroup);
  for (auto it = fs::recursive_directory_iterator(tree, ignored); it != fs::recursive_directory_iterator();
       it.increment(ignored)) {
    lchown(it->path().c_str(), kNobody, kNoGroup);
  }
}

}  // namespace

std::optional<int> AsUserWithoutPrivileges(const std::string& tree, const std::function<int()>& work) {
  if (geteuid() != 0) return work();
  HandOver(tree);
  const pid_t child = fork();
  if (child < 0) return std::nullopt;
  if (child == 0) {
    if (setgroups(0, nullptr) != 0 || setgid(kNoGroup) != 0 || setuid(kNobody) != 0 || geteuid() == 0) {
      _exit(kStillRoot);
    }
    _exit(work() & 0xFF);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return std::nullopt;
  }
  if (!WIFEXITED(status) || WEXITSTATUS(status) == kStillRoot) return std::nullopt;
  return WEXITSTATUS(status);
}

}  // namespace nomra::testing
