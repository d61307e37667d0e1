#include "formats/IniFile.h"

#include "base/Cp1252.h"
#include "base/Fault.h"
#include "formats/IniLines.h"
#include "formats/IniNumber.h"

namespace nomra::formats {

namespace {

// A line break in a value would open a line of its own; the reader could
// never give back more than the first line anyway, so only that is stored.
std::string_view FirstLineOf(std::string_view value) { return value.substr(0, value.find_first_of("\r\n")); }

}  // namespace

std::string IniFile::ReadString(std::string_view section, std::string_view key) const {
  const auto bytes = fileSystem_.ReadFile(path_);
  if (!bytes) return {};
  auto value = FindValue(SplitLines(base::DecodeTextFile(*bytes)), section, key);
  if (!value) return {};
  return CutToLongestValue(std::move(*value));
}

long IniFile::ReadInt(std::string_view section, std::string_view key) const {
  const std::string value = ReadString(section, key);
  if (value.empty()) return -1;
  if (const auto number = ParseIniNumber(value)) return *number;
  throw base::RuntimeFault("The setting \"" + std::string(key) + "\" in section [" + std::string(section) + "] of \"" +
                           path_ + "\" is not a number: \"" + value + "\"");
}

bool IniFile::Write(std::string_view section, std::string_view key, std::string_view value) const {
  std::vector<std::string> lines;
  if (const auto bytes = fileSystem_.ReadFile(path_)) {
    // A Windows-1252 file comes back as UTF-8 as a whole, so it never mixes
    // two encodings.
    lines = SplitLines(base::DecodeTextFile(*bytes));
  } else if (fileSystem_.Inspect(path_).kind != platform::EntryKind::Missing) {
    return false;  // there but unreadable: rewriting it would lose its content
  }
  SetValue(lines, section, key, FirstLineOf(value));
  return fileSystem_.ReplaceFile(path_, JoinLines(lines)) == 0;
}

bool IniFile::Write(std::string_view section, std::string_view key, long value) const {
  const std::string text = std::to_string(value);
  return Write(section, key, std::string_view(text));
}

}  // namespace nomra::formats
