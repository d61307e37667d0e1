#include "support/TempFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace nomra::testing {

namespace fs = std::filesystem;

TempFolder::TempFolder() {
  std::string pattern = (fs::temp_directory_path() / "nomra-test-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = pattern + "/";
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  // Tests may leave read-only folders behind; give write access back first.
  for (auto it = fs::recursive_directory_iterator(path_, fs::directory_options::skip_permission_denied, ignored);
       it != fs::recursive_directory_iterator(); it.increment(ignored)) {
    fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
  }
  fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ignored);
  fs::remove_all(path_, ignored);
}

std::string TempFolder::WriteFile(const std::string& relative, const std::string& content) const {
  const fs::path full = fs::path(path_) / relative;
  fs::create_directories(full.parent_path());
  std::ofstream out(full, std::ios::binary);
  out << content;
  if (!out) throw std::runtime_error("cannot write " + full.string());
  return full.string();
}

std::string TempFolder::MakeFolder(const std::string& relative) const {
  const fs::path full = fs::path(path_) / relative;
  fs::create_directories(full);
  std::string result = full.string();
  if (result.back() != '/') result.push_back('/');
  return result;
}

std::string ReadWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream content;
  content << in.rdbuf();
  return content.str();
}

bool Exists(const std::string& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

}  // namespace nomra::testing
