#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "formats/IniFile.h"

namespace nomra::open {

// One entry of the filter check list of Nomra's own open dialog.
struct PowerFilter {
  bool checked = false;
  std::string pattern;

  bool operator==(const PowerFilter&) const = default;
};

// Section "PowerFilter": f1, f2, ... each "1" or "0" and the pattern; the
// list ends at the first empty key. With no entries at all the list is the
// one entry "*.*", checked.
std::vector<PowerFilter> ReadPowerFilters(const formats::IniFile& settingsFile);

// Rewrites f1, f2, ... and writes an empty key after the last, which closes
// the list.
void WritePowerFilters(const std::vector<PowerFilter>& filters, const formats::IniFile& settingsFile);

// A click on the check of entry `index` (0-based). Entry 0 is "*.*" and
// excludes the others: checking it clears all others, checking another
// clears entry 0, and clearing the last checked entry checks entry 0 again.
void SetFilterChecked(std::vector<PowerFilter>& filters, int index, bool checked);

// The pattern the folder listing uses: the checked entries joined by ";".
std::string CheckedPattern(const std::vector<PowerFilter>& filters);

// What the filter editor keeps of a typed pattern: the characters
// " / : < > \ | are removed.
std::string CleanFilterText(std::string_view typed);

// Whether a file name passes a pattern of the check list: any of its
// ";"-separated patterns matches, without regard to case. As in a folder
// listing, "*.*" takes every name, one without a dot too.
bool PassesAnyPattern(std::string_view fileName, std::string_view patterns);

}  // namespace nomra::open
