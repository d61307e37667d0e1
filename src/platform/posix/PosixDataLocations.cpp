#include "platform/posix/PosixDataLocations.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <vector>

namespace nomra::platform {

namespace {

std::string WithSeparator(std::string path) {
  if (path.empty() || path.back() != '/') path.push_back('/');
  return path;
}

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? std::string(value) : std::string();
}

}  // namespace

std::string PosixDataLocations::DataFolder() {
  const std::string overridden = Environment("NOMRA_DATA_DIR");
  if (!overridden.empty()) return WithSeparator(overridden);
  std::string base = Environment("XDG_DATA_HOME");
  // The XDG rule: a relative value is invalid and must be ignored.
  if (base.empty() || base.front() != '/') base = WithSeparator(Environment("HOME")) + ".local/share";
  return WithSeparator(base) + "NR-Software/Nomra/";
}

std::string PosixDataLocations::DataHome() {
  // The XDG base directory rules count only an absolute $XDG_DATA_HOME.
  std::string data = Environment("XDG_DATA_HOME");
  if (data.empty() || data.front() != '/') data = HomeFolder() + "/.local/share";
  while (data.size() > 1 && data.back() == '/') data.pop_back();
  return data;
}

std::string PosixDataLocations::HomeFolder() {
  std::string home = Environment("HOME");
  if (home.empty()) {
    if (const passwd* user = getpwuid(getuid())) home = user->pw_dir;
  }
  return home;
}

std::string PosixDataLocations::ExecutableFolder() {
  std::vector<char> buffer(4096);
  const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size() - 1);
  if (length <= 0) return "./";
  std::string path(buffer.data(), static_cast<std::size_t>(length));
  return path.substr(0, path.rfind('/') + 1);
}

unsigned PosixDataLocations::UserId() { return static_cast<unsigned>(getuid()); }

}  // namespace nomra::platform
