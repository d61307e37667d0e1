#include "history/WriteHistory.h"

#include <cerrno>

#include "base/Failure.h"
#include "base/Fault.h"
#include "base/Paths.h"
#include "formats/AtomicFile.h"
#include "history/LoadHistory.h"
#include "settings/SettingsKeys.h"

namespace nomra::history {

namespace {

constexpr char kLineEnd[] = "\r\n";

[[noreturn]] void Fail(const std::string& path, int error) {
  throw base::RuntimeFault("the rename history " + path + " could not be written" +
                           (error != 0 ? std::string(": ") + base::SystemErrorText(error) : std::string()));
}

}  // namespace

void writeHistoryData(const HistoryList& list, const std::string& dataFolder, platform::FileSystem& fileSystem) {
  const std::string path = HistoryFilePath(dataFolder);
  if (path.empty()) throw base::RuntimeFault("there is no data folder to keep the rename history in");
  std::string content;
  for (const HistoryRow& row : list.rows) content.append(HistoryRecordLine(row)).append(kLineEnd);

  // A protocol made read-only is left alone, as every rewrite of a settings
  // file leaves it; the rename below would replace it all the same.
  if (fileSystem.Inspect(path).kind != platform::EntryKind::Missing && !fileSystem.MayWriteFile(path)) {
    Fail(path, EACCES);
  }
  // Written afresh, not appended to: a "renamed.tmp" that a crash left
  // behind must not put its lines in front of these.
  const std::string temporary = base::AddBackslash(dataFolder) + settings::kProtocolTempFileName;
  if (const int error = formats::WriteThroughTemporary(fileSystem, path, temporary, content); error != 0) {
    Fail(path, error);
  }
}

}  // namespace nomra::history
