#include "settings/IniFile.h"

#include "base/Cp1252.h"
#include "base/Fault.h"
#include "base/Utf8.h"
#include "settings/AtomicFile.h"
#include "settings/FileBytes.h"
#include "settings/IniLines.h"
#include "settings/IniNumber.h"

namespace nomra::settings {

namespace {

// A line break in a value would open a line of its own; the reader could
// never give back more than the first line anyway, so only that is stored.
std::string_view FirstLineOf(std::string_view value) {
  return value.substr(0, value.find_first_of("\r\n"));
}

}  // namespace

std::string ReadIniString(std::string_view section, std::string_view key, const std::string& file) {
  const auto bytes = ReadFileBytes(file);
  if (!bytes) return {};
  auto value = FindValue(SplitLines(text::DecodeTextFile(*bytes)), section, key);
  if (!value) return {};
  return CutToLongestValue(std::move(*value));
}

long ReadIniInt(std::string_view section, std::string_view key, const std::string& file) {
  const std::string value = ReadIniString(section, key, file);
  if (value.empty()) return -1;
  if (const auto number = ParseIniNumber(value)) return *number;
  throw RuntimeFault("The setting \"" + std::string(key) + "\" in section [" + std::string(section) + "] of \"" +
                     file + "\" is not a number: \"" + value + "\"");
}

bool WriteIni(std::string_view section, std::string_view key, std::string_view value, const std::string& file) {
  std::vector<std::string> lines;
  if (const auto bytes = ReadFileBytes(file)) {
    // A Windows-1252 file comes back as UTF-8 as a whole, so it never mixes
    // two encodings.
    lines = SplitLines(text::DecodeTextFile(*bytes));
  } else if (PathExists(file)) {
    return false;  // there but unreadable: rewriting it would lose its content
  }
  SetValue(lines, section, key, FirstLineOf(value));
  return ReplaceFileContent(file, JoinLines(lines));
}

bool WriteIni(std::string_view section, std::string_view key, long value, const std::string& file) {
  const std::string text = std::to_string(value);
  return WriteIni(section, key, std::string_view(text), file);
}

}  // namespace nomra::settings
