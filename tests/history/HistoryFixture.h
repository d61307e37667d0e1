#pragma once
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "history/HistoryList.h"
#include "history/UndoRenamings.h"
#include "support/ForwardingFileSystem.h"
#include "support/ProtocolFiles.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::testing {

inline constexpr const char* kTime = kProtocolTime;

// The real file system, with renames that can be made to fail on call.
class BendableFileSystem final : public ForwardingFileSystem {
 public:
  int refuseWith = 0;        // an errno: every rename is refused with it, the disk untouched
  bool pretendOnly = false;  // every rename reports success and changes nothing
  std::vector<std::string> renamedFrom;

  platform::RenameResult RenameNoReplace(const std::string& from, const std::string& to) override;
};

// A data folder with a protocol and a folder of files the protocol names.
class HistoryTest : public ::testing::Test {
 protected:
  // One record line, without its end, of a rename in the files folder.
  std::string Record(const std::string& oldName, const std::string& newName, const std::string& time = kTime) const;
  void WriteProtocol(const std::vector<std::string>& lines) const { WriteProtocolFile(data, lines); }
  std::string Protocol() const { return ReadProtocolFile(data); }
  std::string ProtocolPath() const { return data.Path() + "renamed.nrp"; }
  void CreateFiles(const std::vector<std::string>& names) const { CreateNamedFiles(files, names); }
  std::set<std::string> NamesOnDisk() const { return NamesIn(files.Path()); }

  void Load();
  void Select(const std::vector<int>& positions);  // from 1, in the order shown
  void SelectAll();
  // A column of the list as shown: 1 folder, 2 old name, 3 new name.
  std::vector<std::string> Column(int column) const;
  std::vector<bool> Black() const;

  // Answers Yes, then runs the undo; failures are recorded, not asked.
  history::UndoOutcome UndoWithYes();

  TempFolder data;
  TempFolder files;
  BendableFileSystem fileSystem;
  ScriptedFrontEnd frontEnd;
  std::vector<commit::ReportRow> shownFailures;
  history::HistoryServices services{fileSystem, frontEnd, data.Path(),
                                    [this](const commit::ReportRow& row) { shownFailures.push_back(row); }};
  history::HistoryList list;
};

}  // namespace nomra::testing
