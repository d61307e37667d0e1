#pragma once
#include <string>

#include "history/HistoryList.h"
#include "platform/FileSystem.h"

namespace nomra::history {

// writeHistoryData: writes every row of the list, in the order shown, to
// "renamed.nrp" in the data folder, one record a line ended by CR LF; so a
// sort is kept in the file. The lines go whole into "renamed.tmp" first,
// which then takes the place of the protocol in one step: a full disk or a
// folder that can't be written leaves the old protocol as it was, and no
// "renamed.tmp" behind. That failure throws RuntimeFault.
void writeHistoryData(const HistoryList& list, const std::string& dataFolder, platform::FileSystem& fileSystem);

}  // namespace nomra::history
