#pragma once
#include <optional>
#include <string>
#include <string_view>

#include "history/HistoryList.h"
#include "platform/FileSystem.h"

namespace nomra::history {

// The protocol's path in a data folder; "" without a data folder, which
// keeps no protocol.
std::string HistoryFilePath(const std::string& dataFolder);

// Whether the row's new name exists as a file in its folder: the row is
// black. A folder that is no absolute path, or a new name that no file can
// have (empty, holding a separator, a forbidden character or a NUL), names
// no file, so a damaged line can never point an undo at another folder.
bool NamesExistingFile(const HistoryRow& row, platform::FileSystem& fileSystem);

// One line of the protocol as a row, painted; none for an empty line.
// Nomra writes UTF-8. A line that isn't valid UTF-8 either holds a name that
// isn't UTF-8 on disk, which the commit logs byte for byte, and is kept as it
// is when its new name exists that way; or it comes from a protocol written
// in the Western code page, and is read as Windows-1252. Each line is judged
// alone, so one odd line never changes how the others read.
std::optional<HistoryRow> ReadHistoryLine(std::string_view line, platform::FileSystem& fileSystem);

// LoadHistory: clears the list and fills it from "renamed.nrp" in the data
// folder, in file order, every row unselected and painted. Lines end in CR LF,
// LF or CR. A missing file or data folder gives an empty list. Throws
// RuntimeFault when the file is there but can't be read; the list is then
// empty.
void LoadHistory(HistoryList& list, const std::string& dataFolder, platform::FileSystem& fileSystem);

}  // namespace nomra::history
