#pragma once
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Trim.h"

namespace nomra::formats {

// The text rules of our INI files, apart from any file: how lines split, what
// a section header and an entry are, where a value is found and where a new
// one goes. Names compare without regard to case; the first matching section
// and, inside it, the first matching key win, as the Windows profile routines
// do.

// The longest value the profile routines give back, in characters.
inline constexpr std::size_t kLongestIniValue = 999;

// A value cut to kLongestIniValue characters, never inside a character.
std::string CutToLongestValue(std::string value);

// Lines without their ends; LF and CR LF both end a line. A last line without
// an end counts; the empty rest after a final line end does not.
std::vector<std::string> SplitLines(std::string_view text);

// Each line followed by CR LF, the line end our files are written with.
std::string JoinLines(const std::vector<std::string>& lines);

// The trimmed name of a "[name]" line; nothing for any other line. A header
// without its "]" still opens a section, named by the rest of the line.
std::optional<std::string_view> SectionNameOf(std::string_view line);

struct IniEntry {
  std::string_view key;    // trimmed, spelled as in the file
  std::string_view value;  // trimmed, quotes kept
};

// A "key=value" line (split at the first "="); nothing for headers and for
// lines without "=", which are kept but never read.
std::optional<IniEntry> EntryOf(std::string_view line);

std::optional<std::string> FindValue(const std::vector<std::string>& lines, std::string_view section,
                                     std::string_view key);

// Replaces the value of an existing key (keeping the key's spelling), else
// adds "key=value" after the last non-empty line of the section, else adds
// the section and the entry at the end.
void SetValue(std::vector<std::string>& lines, std::string_view section, std::string_view key, std::string_view value);

}  // namespace nomra::formats
