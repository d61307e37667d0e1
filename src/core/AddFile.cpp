#include "core/AddFile.h"

#include <cerrno>
#include <vector>

#include "base/CaseMap.h"
#include "base/DateText.h"
#include "base/Failure.h"
#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Paths.h"

namespace nomra::core {

namespace {

constexpr long kPumpInterval = 100;

bool IsJpegName(const std::string& name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos) return false;
  const std::string extension = base::ToLower(name.substr(dot));
  return extension == ".jpg" || extension == ".jpeg";
}

void FillRow(const ListState& state, FileEntry& row, const platform::FileStatus& status) {
  const std::size_t slash = row.key.rfind(base::kPathSeparator);
  row[kColPath] = row.key.substr(0, slash + 1);
  row[kColOldName] = row.key.substr(slash + 1);
  row[kColNewName] = row[kColOldName];
  row[kColSize] = base::FormatGrouped(status.size);
  row.sizeTag = base::FormatPadded(status.size, 12);
  // A file whose dates can't be read keeps the 1980 text.
  row[kColCreated] = status.created ? base::FormatListDate(*status.created) : base::kDefaultListDate;
  row[kColModified] = status.modified ? base::FormatListDate(*status.modified) : base::kDefaultListDate;
  // A row added late gets as many history levels as the others have.
  for (int column = kColHistory0; column <= kColHistory0 + state.undoLevels && column <= kColHistoryLast; ++column) {
    row[column] = row[kColOldName];
  }
}

}  // namespace

void AddFile(ListLoad& load, std::string& path) {
  ListState& state = load.state;
  if (++state.addCounter % kPumpInterval == 0 && !load.progress.Tick({})) load.stopAsked = true;

  platform::FileStatus status = load.fileSystem.Status(path);
  if (status.kind == platform::EntryKind::Folder) {
    AddFolder(load, load.fileSystem.AbsolutePath(path));
    return;
  }
  if (status.kind != platform::EntryKind::File) {
    if (load.options.checkExistence) return;
    const int error = status.error != 0 ? status.error : ENOENT;
    throw base::RuntimeFault("Cannot add \"" + path + "\": " + base::SystemErrorText(error));
  }
  path = load.fileSystem.AbsolutePath(path);

  FileEntry* row = state.list.Add(path);
  if (row == nullptr) return;  // a file is never listed twice
  FillRow(state, *row, status);

  ++state.statusCounter;
  load.frontEnd.SetStatusText(load.texts.adding + " " + std::to_string(state.statusCounter));

  if (load.options.loadExifDates && IsJpegName((*row)[kColOldName])) {
    if (auto date = load.exifDates.ReadExifDate(row->key)) (*row)[kColExifDate] = *date;
  }
}

void AddFolder(ListLoad& load, const std::string& folder) {
  const std::string base = base::AddBackslash(folder);
  std::vector<std::string> subfolders;
  load.fileSystem.ListFolder(base, [&](std::string_view name, platform::EntryKind kind) {
    if (kind == platform::EntryKind::File) {
      std::string path = base + std::string(name);
      try {
        AddFile(load, path);
      } catch (const base::RuntimeFault&) {
        // A file that went away during the walk is passed over.
      }
    } else if (kind == platform::EntryKind::Folder) {
      subfolders.push_back(base + std::string(name));
    }
  });
  for (const std::string& subfolder : subfolders) AddFolder(load, subfolder);
}

}  // namespace nomra::core
