#pragma once
#include <gtest/gtest.h>

#include <ctime>
#include <set>
#include <string>
#include <vector>

#include "base/Quoting.h"
#include "commit/CommitFileSystem.h"
#include "commit/CommitResult.h"
#include "support/ListFixture.h"

namespace nomra::testing {

// 2004-03-15 14:23:05, the time every protocol record of the tests carries.
std::tm FixedLocalTime();

// A list over real files, a data folder of its own and a file system that
// logs every rename; each file holds a text of its own, so a test can tell
// where each one went.
class CommitTest : public ListTestOver<CommitFileSystem> {
 protected:
  CommitTest();

  // Creates the file (content: "content of NAME" unless given) and loads it
  // as the next row.
  core::FileEntry& AddRow(const std::string& name, const std::string& content = "");
  // Creates a file the list doesn't hold.
  void AddForeignFile(const std::string& name, const std::string& content = "");
  // The row whose name on disk is `oldName`.
  core::FileEntry& Row(const std::string& oldName);
  // Sets the pending name of the row named `oldName` and refreshes, as an edit does.
  void Rename(const std::string& oldName, const std::string& newName);

  // The whole list, then the refresh the caller runs.
  commit::CommitResult CommitAll();
  commit::CommitResult CommitRow(int position);

  std::string PathOf(const std::string& name) const { return files.Path() + name; }
  // The names in the folder of the files, sorted.
  std::vector<std::string> NamesOnDisk() const;
  std::string ContentOf(const std::string& name) const { return ReadWholeFile(PathOf(name)); }
  std::vector<std::string> Keys();
  std::string ProtocolPath() const { return data.Path() + "renamed.nrp"; }
  std::string JournalPath() const { return data.Path() + "commit.journal"; }
  // What the files of the folder hold, whatever their names.
  std::multiset<std::string> Contents() const;

  static std::vector<std::string> TextKeys(const commit::CommitResult& result);

  TempFolder files;
  TempFolder data;
};

}  // namespace nomra::testing
