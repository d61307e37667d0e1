#include "open/StagedFiles.h"

#include "base/Fault.h"
#include "base/Paths.h"
#include "core/AddFile.h"
#include "core/BusyPointer.h"
#include "open/FolderWalk.h"
#include "open/PowerFilters.h"

namespace nomra::open {

std::vector<std::string> StageFiles(const FolderSelection& selection, platform::FileSystem& fileSystem) {
  const std::string shown = base::AddBackslash(selection.folder);
  std::vector<std::string> staged;
  for (const std::string& name : selection.allFiles ? selection.listedFiles : selection.selectedFiles) {
    staged.push_back(shown + name);
  }

  if (!selection.subFolders && selection.selectedFolders.empty()) return staged;
  // With no folder selected the walk starts at the shown folder, whose files
  // are staged already; a selected folder's files are not, so the first
  // folder's files count only then.
  const bool firstFolderStaged = selection.selectedFolders.empty();
  std::vector<std::string> workList = selection.selectedFolders;
  if (workList.empty()) workList.push_back(shown);
  WalkFolders(fileSystem, workList, true,
              [&](std::size_t position, const std::string& folder, const std::vector<std::string>& fileNames) {
                if (position == 0 && firstFolderStaged) return true;
                for (const std::string& name : fileNames) {
                  if (!PassesAnyPattern(name, selection.pattern)) continue;
                  if (IsHiddenName(name) && !selection.showHiddenFiles) continue;
                  staged.push_back(folder + name);
                }
                return true;
              });
  return staged;
}

LoadOutcome LoadStagedFiles(core::ListLoad& load, core::Preview& preview, std::vector<std::string>& staged) {
  core::BusyPointer busy(load.frontEnd);
  LoadOutcome outcome = LoadOutcome::Finished;
  try {
    for (std::string path : staged) {
      core::AddFile(load, path);
      if (load.stopAsked) {
        load.stopAsked = false;
        outcome = LoadOutcome::Cancelled;
        break;
      }
    }
  } catch (const base::RuntimeFault&) {
    // A staged path that names nothing ends the load with a fault; what
    // came before it is shown, and nothing stays staged for a later load.
    preview.Refresh();
    staged.clear();
    throw;
  }
  preview.Refresh();
  staged.clear();
  return outcome;
}

}  // namespace nomra::open
