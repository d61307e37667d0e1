#include "fileops/FrmSelAction.h"

#include <stdexcept>
#include <unordered_set>
#include <vector>

#include "base/Fault.h"
#include "base/Paths.h"
#include "core/BusyPointer.h"
#include "dialog/DialogState.h"
#include "fileops/FileListOperations.h"
#include "fileops/FilePaths.h"
#include "fileops/PathList.h"
#include "fileops/ShellOperation.h"
#include "lang/MessageKeys.h"

namespace nomra::fileops {

namespace {

constexpr char kRenOriginal[] = "optRenOriginal";
constexpr char kRenCopy[] = "optRenCopy";
constexpr char kRenBoth[] = "optRenBoth";
constexpr char kTargetPath[] = "txtTargetPath";
constexpr char kUpdateList[] = "chkUpdateList";
constexpr char kRenGroup[] = "frameCopy";

SelActionMode ModeOf(const std::string& tag) {
  if (tag == kSelActionTag) return SelActionMode::TakeChanges2;
  if (tag == kCopyFilesTag) return SelActionMode::CopyFiles;
  if (tag == kMoveFilesTag) return SelActionMode::MoveFiles;
  throw std::invalid_argument("frmSelAction has no mode " + tag);
}

std::string SourceOf(const core::FileEntry& row) {
  return base::AddBackslash(row[core::kColPath]) + row[core::kColOldName];
}

// Whether a picked row has a later row, picked or not, with the same name
// in `column`. The copies of the two would land on one name.
template <typename Picked>
bool NamesCollide(const core::FileList& list, int column, Picked&& picked) {
  std::unordered_set<std::string> later;
  for (int position = list.Count(); position >= 1; --position) {
    const core::FileEntry& row = list.Item(position);
    if (picked(row) && later.contains(row[column])) return true;
    later.insert(row[column]);
  }
  return false;
}

void ShowNamesCollide(core::FrontEnd& frontEnd) {
  frontEnd.Ask({lang::kCopiesCollideText, lang::kAttentionCaption, core::MessageStyle::OkStop, {}});
}

// The row stands for its file at its new place. A name given beside a file
// already there is taken by the pending name too, where none was pending.
void FollowFile(core::FileList& list, core::FileEntry& row, const std::string& placed) {
  const std::string name = base::NameOf(placed);
  if (row[core::kColNewName] == row[core::kColOldName]) row[core::kColNewName] = name;
  row[core::kColPath] = base::FolderOf(placed);
  row[core::kColOldName] = name;
  list.ChangeKey(row, placed);  // a key held by another row stays with it
}

}  // namespace

FrmSelAction::FrmSelAction(std::string tag) : tag_(std::move(tag)), mode_(ModeOf(tag_)), model_(tag_) {
  model_.AddOption(kRenOriginal, kRenGroup);
  model_.AddOption(kRenCopy, kRenGroup).selected = true;
  model_.AddOption(kRenBoth, kRenGroup);
  model_.AddText(kTargetPath);
  model_.AddNoValue("cmdSelPath");
  model_.AddCheck(kUpdateList);
  for (const char* name : {"frameCopy", "lblTargetDir", "cmdOK", "cmdCancel"}) model_.AddNoValue(name);
}

void FrmSelAction::Activate(const rename::ActionContext& context) {
  dialog::RestoreDialogState(model_, tag_, dialog::kSettingsMode, context.script, context.fileSystem, context.User());
  if (mode_ == SelActionMode::MoveFiles) model_.SetNumber(kUpdateList, 1);
  txtTargetPath_Change(context.fileSystem);
}

void FrmSelAction::txtTargetPath_Change(platform::FileSystem& fileSystem) {
  const std::string& path = model_.Text(kTargetPath);
  okEnabled_ = !path.empty() && fileSystem.Status(path).kind == platform::EntryKind::Folder;
}

void FrmSelAction::cmdSelPath(const std::string& chosenFolder, platform::FileSystem& fileSystem) {
  if (chosenFolder.empty()) return;
  model_.SetText(kTargetPath, chosenFolder);
  txtTargetPath_Change(fileSystem);
}

bool FrmSelAction::cmdOK(const rename::ActionContext& context, core::RowCommitter* committer,
                         OperationServices& services) {
  core::BusyPointer busy(context.User());
  const bool done = mode_ == SelActionMode::TakeChanges2 ? CopyForTakeChanges(context, committer, services)
                                                         : CopyOrMoveSelected(context, services);
  if (!done) return false;
  context.list.preview.Refresh();
  dialog::StoreDialogState(model_, tag_, dialog::kSettingsMode, context.script, context.fileSystem);
  return true;
}

bool FrmSelAction::CopyOrMoveSelected(const rename::ActionContext& context, OperationServices& services) {
  core::FileList& list = context.State().list;
  if (NamesCollide(list, core::kColOldName, [](const core::FileEntry& row) { return row.selected; })) {
    ShowNamesCollide(context.User());
    return false;
  }
  const std::string target = base::AddBackslash(model_.Text(kTargetPath));
  std::vector<std::string> sources;
  std::vector<std::string> targets;
  std::vector<core::FileEntry*> rows;
  list.ForEach([&](core::FileEntry& row) {
    if (!row.selected) return;
    sources.push_back(SourceOf(row));
    targets.push_back(target + row[core::kColOldName]);
    rows.push_back(&row);
  });
  const std::uint32_t function = mode_ == SelActionMode::MoveFiles ? FO_MOVE : FO_COPY;
  ShellOperation record = TransferRecord(function, JoinPathList(sources), JoinPathList(targets), false);
  RunShellOperation(record, services);
  if (model_.Number(kUpdateList) == 0) return true;
  // A row follows its file only where the file was put; a skipped file's
  // row stays with the file it stands for.
  for (std::size_t i = 0; i < rows.size() && i < record.placed.size(); ++i) {
    if (!record.placed[i].empty()) FollowFile(list, *rows[i], record.placed[i]);
  }
  return true;
}

bool FrmSelAction::CopyForTakeChanges(const rename::ActionContext& context, core::RowCommitter* committer,
                                      OperationServices& services) {
  core::FileList& list = context.State().list;
  const bool renameOriginal = model_.IsSelected(kRenOriginal);
  const bool renameBoth = model_.IsSelected(kRenBoth);
  const int copyName = renameOriginal ? core::kColOldName : core::kColNewName;
  if (NamesCollide(list, copyName, [](const core::FileEntry&) { return true; })) {
    ShowNamesCollide(context.User());
    return false;
  }
  const std::string target = base::AddBackslash(model_.Text(kTargetPath));
  std::vector<std::string> sources;
  std::vector<std::string> targets;
  list.ForEach([&](const core::FileEntry& row) {
    sources.push_back(SourceOf(row));
    targets.push_back(target + row[copyName]);
  });
  int aborted = 0;
  CopyFileList(JoinPathList(sources), JoinPathList(targets), false, aborted, services);
  // A copy the user stopped is taken like a finished one on purpose: the
  // rename and the list follow all the same, as they always have.
  if ((renameOriginal || renameBoth) && list.Count() > 0) {
    if (committer == nullptr) throw base::RuntimeFault("The new names can't be taken here");
    committer->CommitAll();
  }
  list.ForEach([&](core::FileEntry& row) {
    if (renameOriginal) {
      // The originals have their new names; a row that failed loses its pending name.
      row[core::kColNewName] = row[core::kColOldName];
    } else {
      // The row now stands for the copy.
      row[core::kColPath] = target;
      row[core::kColOldName] = row[core::kColNewName];
    }
    list.ChangeKey(row, row[core::kColPath] + row[core::kColOldName]);
    for (int column = core::kColHistory0; column <= core::kColHistoryLast; ++column) row[column].clear();
  });
  return true;
}

}  // namespace nomra::fileops
