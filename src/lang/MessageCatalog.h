#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::lang {

// The texts of one language file, read once: a language file doesn't change
// while the program runs, and the main window alone asks for hundreds of
// keys. Lookups follow the settings store's INI rules (names without case,
// first match wins, values cut at 999 characters, never inside a character).
// A missing key, or no file at all, reads as "", which callers take as
// "leave the control as it is".
class MessageCatalog {
 public:
  MessageCatalog() = default;
  // A file that can't be read gives a catalog in which every text is "".
  // A file that is not valid UTF-8 is read as Windows-1252.
  MessageCatalog(platform::FileSystem& fileSystem, const std::string& languageFile);

  // The text, with "%1", "%2", ... filled from `arguments` in order; an empty
  // list fills nothing, so "%1" then stays as it is.
  std::string GetText(std::string_view section, std::string_view key,
                      const std::vector<std::string>& arguments = {}) const;

  const std::string& FilePath() const;
  // Main/lngname, the name the setting "lng" stores.
  std::string LanguageName() const;
  // Main/charset; -1 or missing read as 0.
  int Charset() const;

 private:
  std::string path_;
  std::vector<std::string> lines_;
};

}  // namespace nomra::lang
