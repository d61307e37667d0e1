#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "commit/CommitContext.h"
#include "core/AddFile.h"
#include "core/ListContext.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/Progress.h"
#include "core/RowCommitter.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "platform/posix/PosixFileSystem.h"
#include "rename/ActionContext.h"
#include "shell/WindowPreview.h"
#include "shell/WindowState.h"
#include "support/ForwardingFileSystem.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::testing {

// Records the rows handed over for taking their changes.
class RecordingCommitter final : public core::RowCommitter {
 public:
  void CommitAll() override { ++allCommits; }
  void CommitRow(int position) override { committedRows.push_back(position); }
  int allCommits = 0;
  std::vector<int> committedRows;
};

// A progress that counts its ticks; a tick says stop once after `stopNow`
// was set, as a click on the cancel button during the tick would.
class ScriptedProgress final : public core::Progress {
 public:
  bool Tick(const core::ProgressStep&) override {
    ++ticks;
    if (onTick) onTick();
    const bool stop = stopNow;
    stopNow = false;
    return !stop;
  }
  int ticks = 0;
  bool stopNow = false;
  // Runs at each tick, while the window's events would be let through.
  std::function<void()> onTick;
};

// A list over real files in a temporary folder, the file system `Files`
// over them, scripted answers, and everything the engine's commands are
// handed: options, status texts, the script session, the window's state and
// its preview, the load.
template <typename Files>
struct ListParts {
  ListParts() {
    texts.listSummary = "%1 files in %2 folders, %3 changed";
    texts.adding = "Adding";
    texts.noScript = "No script";
  }
  ListParts(const ListParts&) = delete;
  ListParts& operator=(const ListParts&) = delete;

  // Creates the files (relative paths) and adds each through AddFile.
  void AddFiles(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      std::string path = temp.WriteFile(name, "x");
      core::AddFile(load, path);
    }
    preview.Refresh();
  }

  std::vector<std::string> Column(int column) {
    std::vector<std::string> values;
    state.list.ForEach([&](const core::FileEntry& row) { values.push_back(row[column]); });
    return values;
  }

  void SetNewName(int position, const std::string& name) { state.list.Item(position)[core::kColNewName] = name; }

  core::ListContext List() { return {state, frontEnd, preview}; }
  rename::ActionContext Actions() { return {List(), texts, script, fileSystem}; }
  commit::CommitContext Commit() { return {state, fileSystem, frontEnd, options, texts}; }

  TempFolder temp;
  Files fileSystem;
  ScriptedFrontEnd frontEnd;
  ScriptedProgress progress;
  core::NoExifDates noExif;
  core::ListOptions options;
  core::StatusTexts texts;
  core::ListState state{fileSystem};
  shell::WindowState window;
  dialog::ScriptSession script;
  shell::WindowPreview preview{state, window, script, frontEnd, texts};
  core::ListLoad load{state, fileSystem, frontEnd, progress, noExif, options, texts};
  core::RowCommitter* rowCommitter = nullptr;  // takes pending names to disk before rows go
};

// The one fixture of the list.
template <typename Files>
class ListTestOver : public ::testing::Test, public ListParts<Files> {};

using ListTest = ListTestOver<platform::PosixFileSystem>;

}  // namespace nomra::testing
