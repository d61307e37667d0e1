#pragma once
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

namespace nomra::formats {

// One INI file of ours, read and written whole on every call: nothing is
// cached, every read parses the file and every write replaces it at once.
// A missing or unreadable file reads as if each key were missing.
class IniFile {
 public:
  IniFile(platform::FileSystem& fileSystem, std::string path) : fileSystem_(fileSystem), path_(std::move(path)) {}

  const std::string& Path() const { return path_; }
  platform::FileSystem& Files() const { return fileSystem_; }

  // The value, "" when absent. A value longer than 999 characters loses its
  // end; it is never cut inside a character.
  std::string ReadString(std::string_view section, std::string_view key) const;

  // The value as a number; -1 when the key is missing or its value is empty.
  // Throws RuntimeFault when the text is not a 32-bit number.
  long ReadInt(std::string_view section, std::string_view key) const;

  // Writes the value at once, creating the file (not its folder) when
  // missing. False, with the file unchanged, when it can't be written.
  bool Write(std::string_view section, std::string_view key, std::string_view value) const;
  bool Write(std::string_view section, std::string_view key, long value) const;

 private:
  platform::FileSystem& fileSystem_;
  std::string path_;
};

}  // namespace nomra::formats
