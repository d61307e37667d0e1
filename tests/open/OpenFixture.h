#pragma once
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "settings/SettingsKeys.h"
#include "support/ForwardingFileSystem.h"
#include "support/ListFixture.h"
#include "support/RealFiles.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

using nomra::testing::Ini;

namespace nomra::testing {

// The real file system, remembering every file it was asked about, in
// order: AddFile asks once for each path it adds, so this is the order in
// which files reached the list. Folders can be made unreadable.
class RecordingFileSystem final : public ForwardingFileSystem {
 public:
  platform::FileStatus Status(const std::string& path) override {
    platform::FileStatus status = real.Status(path);
    if (status.kind == platform::EntryKind::File) filesAsked.push_back(path);
    return status;
  }
  bool ListFolder(const std::string& folder, const EntryVisitor& visit) override {
    if (unreadable.contains(folder)) return false;
    return real.ListFolder(folder, visit);
  }

  std::vector<std::string> filesAsked;
  std::set<std::string> unreadable;  // folder paths ending with the separator
};

// A list over real files in a temporary folder with a settings file beside
// them, and a progress that can press the cancel button.
class OpenTest : public ListTestOver<RecordingFileSystem> {
 protected:
  OpenTest() {
    texts.listSummary = "%1 files in %2 folders, %3 changed";
    texts.adding = "Adding";
  }

  // The cancel button is pressed while the `count`-th file from now is
  // added: AddFile lets events through on every hundredth call.
  void CancelAtFile(long count) {
    state.addCounter = 100 - count;
    progress.onTick = [this] {
      busyDuringLoad = frontEnd.busyDepth;
      progress.stopNow = true;
    };
  }

  // The event pump runs during the next file added, and notes whether the
  // wait pointer was shown then.
  void WatchPointerAtNextFile() {
    state.addCounter = 99;
    progress.onTick = [this] { busyDuringLoad = frontEnd.busyDepth; };
  }

  std::set<std::string> RowKeys() const {
    std::set<std::string> keys;
    state.list.ForEach([&](const core::FileEntry& row) { keys.insert(row.key); });
    return keys;
  }

  // The refresh always enables the open command; nothing else here does.
  bool Refreshed() const { return window.commands.IsEnabled("OpenFile"); }

  std::string Setting(const char* key) const { return Ini(settingsFile).ReadString(settings::kSettingsSection, key); }

  TempFolder settingsFolder;
  const std::string settingsFile = settingsFolder.Path() + settings::kSettingsFileName;
  int busyDuringLoad = -1;
};

}  // namespace nomra::testing
