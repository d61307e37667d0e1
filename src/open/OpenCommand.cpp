#include "open/OpenCommand.h"

#include <limits>

#include "base/Fault.h"
#include "base/Paths.h"
#include "core/AddFile.h"
#include "core/BusyPointer.h"
#include "formats/IniFile.h"
#include "open/FolderWalk.h"
#include "settings/SettingsKeys.h"

namespace nomra::open {

namespace {

// A stop by the user: what was added so far is shown, and the stop is
// spent.
LoadOutcome StopLoading(core::ListLoad& load, core::Preview& preview) {
  preview.Refresh();
  load.stopAsked = false;
  return LoadOutcome::Cancelled;
}

// A path the user chose that names nothing ends the command with a fault;
// the rows added before it are shown first.
void AddChosenPath(core::ListLoad& load, core::Preview& preview, std::string path) {
  try {
    core::AddFile(load, path);
  } catch (const base::RuntimeFault&) {
    preview.Refresh();
    throw;
  }
}

// The pattern of the chosen filter row; an index the list doesn't have
// means the first row.
std::string PatternOf(const std::vector<FilterRow>& filters, int filterIndex) {
  if (filters.empty()) return "*.*";
  if (filterIndex < 1 || static_cast<std::size_t>(filterIndex) > filters.size()) return filters.front().pattern;
  return filters[filterIndex - 1].pattern;
}

// The folder whose files are all taken: a chosen file stands for its folder.
std::string FolderToTake(platform::FileSystem& fileSystem, const std::string& chosen) {
  if (fileSystem.Status(chosen).kind == platform::EntryKind::File) return base::FolderOf(chosen);
  return base::AddBackslash(chosen);
}

// False when the user stopped the walk.
bool AddAllFiles(core::ListLoad& load, const std::string& folder, const OpenChoice& choice,
                 const std::vector<FilterRow>& filters, bool showHiddenFiles) {
  const std::string pattern = PatternOf(filters, choice.filterIndex);
  const bool walked =
      WalkFolders(load.fileSystem, {folder}, choice.subFolders,
                  [&](std::size_t, const std::string& current, const std::vector<std::string>& fileNames) {
                    for (const std::string& name : fileNames) {
                      if (load.stopAsked) return false;
                      if (!PassesFilter(name, pattern)) continue;
                      if (IsHiddenName(name) && !showHiddenFiles) continue;
                      std::string path = current + name;
                      try {
                        core::AddFile(load, path);
                      } catch (const base::RuntimeFault&) {
                        // A file that went away during the walk is passed over.
                      }
                    }
                    return true;
                  });
  // A stop pressed while the very last file was added counts as well, so
  // the stop never outlives the load.
  return walked && !load.stopAsked;
}

}  // namespace

LoadOutcome RunOpenChoice(core::ListLoad& load, core::Preview& preview, const OpenChoice& choice,
                          const std::vector<FilterRow>& filters, const formats::IniFile& settingsFile,
                          bool showHiddenFiles) {
  if (choice.paths.empty()) return LoadOutcome::Finished;  // nothing chosen is a dialog cancelled
  core::BusyPointer busy(load.frontEnd);

  std::string lastPath = base::FolderOf(choice.paths.front());
  if (choice.mode == OpenMode::Files && choice.allFiles) {
    const std::string folder = FolderToTake(load.fileSystem, choice.paths.front());
    lastPath = folder;
    if (!AddAllFiles(load, folder, choice, filters, showHiddenFiles)) return StopLoading(load, preview);
  } else {
    for (const std::string& path : choice.paths) {
      if (choice.mode == OpenMode::Playlists) {
        LoadPlaylist(load, preview, path);
      } else {
        AddChosenPath(load, preview, path);
      }
      if (load.stopAsked) return StopLoading(load, preview);
    }
  }

  preview.Refresh();
  settingsFile.Write(settings::kSettingsSection, settings::kLastPathKey, lastPath);
  settingsFile.Write(settings::kSettingsSection, settings::kLastFilterKey, choice.filterIndex);
  return LoadOutcome::Finished;
}

std::string InitialFolder(const formats::IniFile& settingsFile, const std::string& homeFolder) {
  const std::string lastPath = settingsFile.ReadString(settings::kSettingsSection, settings::kLastPathKey);
  if (!lastPath.empty() && settingsFile.Files().Status(lastPath).kind == platform::EntryKind::Folder) return lastPath;
  return base::AddBackslash(homeFolder.empty() ? "/" : homeFolder);
}

int LastFilterIndex(const formats::IniFile& settingsFile) {
  try {
    const long stored = settingsFile.ReadInt(settings::kSettingsSection, settings::kLastFilterKey);
    if (stored >= 1 && stored <= std::numeric_limits<int>::max()) return static_cast<int>(stored);
  } catch (const base::RuntimeFault&) {
    // A damaged index shows the first row, as a missing one does.
  }
  return 1;
}

void RememberLastPath(formats::IniFile& settingsFile, const std::string& folder) {
  settingsFile.Write(settings::kSettingsSection, settings::kLastPathKey, base::AddBackslash(folder));
}

}  // namespace nomra::open
