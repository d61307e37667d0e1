#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "formats/IniFile.h"

namespace nomra::open {

// A row of the filter list of the system open dialog.
struct FilterRow {
  std::string text;     // what the user sees
  std::string pattern;  // the row's tag: one pattern, or several joined by ";"

  bool operator==(const FilterRow&) const = default;
};

// Row 1 is `allFilesText` (language key FilterAll of FrmOpen) with "*.*";
// each key f1, f2, ... of section "Filter" ("Name|pattern") adds a row whose
// text is the value with every "|" replaced by " (" and ")" appended, and
// whose pattern is what follows the first "|". The list ends at the first
// key that is empty or holds no "|".
std::vector<FilterRow> BuildFilterList(const formats::IniFile& settingsFile, std::string_view allFilesText);

// The filter string of the system dialog: text, "|", pattern of each row,
// rows joined by "|".
std::string SystemDialogFilter(const std::vector<FilterRow>& rows);

// Whether a file name passes a filter row's pattern, without regard to
// case, by the list's wildcard rule. Only one pattern is tested: a pattern
// holding ";" never matches as such. By that rule "*.*" takes only names
// with a dot.
bool PassesFilter(std::string_view fileName, std::string_view pattern);

}  // namespace nomra::open
