#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "platform/FileSystem.h"

namespace nomra::formats {

// The small reader and writer of delimited text (mdlCSV) behind the stored
// structures and the name tables: one row a line, fields joined by a
// separator, a field that holds the separator written between double quotes.

// One row as a list view shows it: its key, its text (field 0) and the
// further fields as sub-items.
struct DelimitedRow {
  std::string key;
  std::string text;
  std::vector<std::string> subItems;
};

// The rows of a list view with its number of columns. Loading fills the
// sub-items of the columns behind the first, padded with "" where a line has
// fewer fields; 0 columns takes every field a line has.
struct DelimitedList {
  int columns = 0;
  std::vector<DelimitedRow> rows;
};

// Tab, ",", ";" or "" (none), by which character stands in every line of the
// file: tab when each line holds one and not each holds a comma or a
// semicolon; else "," when each holds one and not each holds a semicolon;
// else ";" when each holds one. A missing or empty file gives "".
std::string DetectSeparator(platform::FileSystem& fileSystem, const std::string& file);

// The fields of a line, from 0. Blanks before a field are skipped; a field
// that starts with a double quote runs to the next double quote followed by
// the separator (or, without one, to the next double quote) and loses its
// quotes, two quotes in a row inside it standing for one. A line that ends
// with the separator has one empty field more.
std::vector<std::string> SplitDelimitedLine(std::string_view line, std::string_view separator);

// Reads the file into the list. When no separator can be detected the list
// stays as it is; otherwise it is cleared, and each line becomes a row, but
// the first when it is a header and rows whose field 0 is blank. A row's
// text is field 0 from behind its first "|", its key "K" and the line
// number. A field that is a number has its "," and "." turned into the
// locale's decimal separator.
void LoadListFromFile(platform::FileSystem& fileSystem, const std::string& file, bool firstLineIsData,
                      DelimitedList& list);

// Writes the header (unless empty) and every row, each field followed by the
// separator, into file + ".tmp", which then takes the file's place: a failure
// leaves the old file whole. False when the file couldn't be written.
bool SaveListToFile(platform::FileSystem& fileSystem, const std::string& file, std::string_view separator,
                    std::string_view header, const DelimitedList& list);

// The same for a single row of values.
bool SaveLineToFile(platform::FileSystem& fileSystem, const std::string& file, std::string_view separator,
                    const std::vector<std::string>& values);

}  // namespace nomra::formats
