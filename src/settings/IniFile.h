#pragma once
#include <string>
#include <string_view>

namespace nomra::settings {

// The settings store's reads and writes, one whole INI file per call: nothing
// is cached, every read parses the file and every write replaces it at once.
// A missing or unreadable file reads as if each key were missing.

// The value, "" when absent. A value longer than 999 characters loses its
// end; it is never cut inside a character.
std::string ReadIniString(std::string_view section, std::string_view key, const std::string& file);

// The value as a number; -1 when the key is missing or its value is empty.
// Throws nomra::RuntimeFault when the text is not a 32-bit number.
long ReadIniInt(std::string_view section, std::string_view key, const std::string& file);

// Writes the value at once, creating the file (not its folder) when missing.
// False, with the file unchanged, when it can't be written.
bool WriteIni(std::string_view section, std::string_view key, std::string_view value, const std::string& file);
bool WriteIni(std::string_view section, std::string_view key, long value, const std::string& file);

}  // namespace nomra::settings
