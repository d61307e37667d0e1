#include "history/WriteHistory.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "base/Fault.h"
#include "base/Helpers.h"
#include "history/LoadHistory.h"
#include "settings/AtomicFile.h"
#include "settings/FileBytes.h"
#include "settings/SettingsKeys.h"

namespace nomra::history {

namespace {

constexpr char kLineEnd[] = "\r\n";

// Takes the half-written temporary file away, then ends the command.
[[noreturn]] void Fail(const std::string& path, const std::string& temporary) {
  const int error = errno;
  unlink(temporary.c_str());
  throw RuntimeFault("the rename history " + path + " could not be written" +
                     (error != 0 ? std::string(": ") + std::strerror(error) : std::string()));
}

}  // namespace

void writeHistoryData(const HistoryList& list, const std::string& dataFolder) {
  const std::string path = HistoryFilePath(dataFolder);
  if (path.empty()) throw RuntimeFault("there is no data folder to keep the rename history in");
  std::string content;
  for (const HistoryRow& row : list.rows) content.append(HistoryRecordLine(row)).append(kLineEnd);

  const std::string temporary = AddBackslash(dataFolder) + settings::kProtocolTempFileName;
  errno = 0;
  // A protocol made read-only is left alone, as every rewrite of a settings
  // file leaves it; the rename below would replace it all the same.
  if (settings::PathExists(path) && !settings::MayReplaceFile(path)) {
    if (errno == 0) errno = EACCES;
    Fail(path, temporary);
  }
  // Written afresh, not appended to: a "renamed.tmp" that a crash left
  // behind must not put its lines in front of these.
  if (!settings::WriteTemporaryFile(temporary, content, path)) Fail(path, temporary);
  if (!settings::MoveFileOver(temporary, path)) Fail(path, temporary);
}

}  // namespace nomra::history
