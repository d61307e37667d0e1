#pragma once
#include <string>

namespace nomra::testing {

// A fresh folder under the system's temporary folder, removed with all it
// holds when the object goes. Path() ends with the separator.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& Path() const { return path_; }

  // Writes a file (folders on the way are made) and returns its full path.
  std::string WriteFile(const std::string& relative, const std::string& content = "") const;
  std::string MakeFolder(const std::string& relative) const;

 private:
  std::string path_;
};

std::string ReadWholeFile(const std::string& path);
bool Exists(const std::string& path);

}  // namespace nomra::testing
