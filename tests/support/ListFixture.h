#pragma once
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/AddFile.h"
#include "core/MainModel.h"
#include "core/RefreshPreview.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/ForwardingFileSystem.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::testing {

// Records the rows handed over for taking their changes.
class RecordingCommitter final : public RowCommitter {
 public:
  void CommitAll() override { ++allCommits; }
  void CommitRow(int position) override { committedRows.push_back(position); }
  int allCommits = 0;
  std::vector<int> committedRows;
};

// A list over real files in a temporary folder, with scripted answers.
class ListTest : public ::testing::Test {
 protected:
  ListTest() {
    model.statusTexts[1] = "%1 files in %2 folders, %3 changed";
    model.statusTexts[2] = "Adding";
    model.statusTexts[5] = "No script";
  }

  // Creates the files (relative paths) and adds each through AddFile.
  void AddFiles(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      std::string path = temp.WriteFile(name, "x");
      AddFile(model, path);
    }
    refreshPreview(model);
  }

  std::vector<std::string> Column(int column) {
    std::vector<std::string> values;
    model.list.ForEach([&](const FileEntry& row) { values.push_back(row[column]); });
    return values;
  }

  void SetNewName(int position, const std::string& name) { model.list.Item(position)[kColNewName] = name; }

  TempFolder temp;
  platform::PosixFileSystem fileSystem;
  ScriptedFrontEnd frontEnd;
  NoExifDates noExif;
  MainModel model{fileSystem, frontEnd, noExif};
};

}  // namespace nomra::testing
