#include "platform/DataLocations.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
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

std::string DefaultDataFolder() {
  const std::string overridden = Environment("NOMRA_DATA_DIR");
  if (!overridden.empty()) return WithSeparator(overridden);
  std::string base = Environment("XDG_DATA_HOME");
  // The XDG rule: a relative value is invalid and must be ignored.
  if (base.empty() || base.front() != '/') base = WithSeparator(Environment("HOME")) + ".local/share";
  return WithSeparator(base) + "NR-Software/Nomra/";
}

std::string ExecutableFolder() {
  std::vector<char> buffer(4096);
  const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size() - 1);
  if (length <= 0) return "./";
  std::string path(buffer.data(), static_cast<std::size_t>(length));
  return path.substr(0, path.rfind('/') + 1);
}

bool CreateFolderPath(const std::string& path) {
  std::string prefix;
  std::size_t from = 0;
  while (from < path.size()) {
    std::size_t slash = path.find('/', from);
    if (slash == std::string::npos) slash = path.size();
    prefix = path.substr(0, slash);
    if (!prefix.empty()) mkdir(prefix.c_str(), 0777);
    from = slash + 1;
  }
  struct stat st {};
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

}  // namespace nomra::platform
