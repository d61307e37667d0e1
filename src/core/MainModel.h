#pragma once
#include <array>
#include <string>

#include "core/CommandState.h"
#include "core/ExifDateReader.h"
#include "core/FileList.h"
#include "core/FrontEnd.h"
#include "core/RowCommitter.h"
#include "core/ScriptSession.h"
#include "platform/FileSystem.h"

namespace nomra {

// The state behind the main window, without a window: the list, the flags
// read from the settings at start, and what the refresh computes. Services
// are passed in; nothing here reaches for a global.
struct MainModel {
  MainModel(platform::FileSystem& fileSystem, FrontEnd& frontEnd, ExifDateReader& exifDates)
      : fileSystem(fileSystem), frontEnd(frontEnd), exifDates(exifDates), list(fileSystem) {}

  platform::FileSystem& fileSystem;
  FrontEnd& frontEnd;
  ExifDateReader& exifDates;
  RowCommitter* committer = nullptr;  // none until the commit is wired in

  FileList list;

  // Read from the settings at start.
  bool checkExistence = false;
  bool loadExifDates = true;
  // 0 guards undoing pending names, 1 taking changes, 2 rejecting changes.
  std::array<bool, 3> securityQuestions{};
  bool expertMode = false;
  // The per-user data folder, ending with the separator; the rename protocol
  // lives there.
  std::string dataFolder;
  // Whether each rename is written to the protocol.
  bool protocolRenames = false;

  // Texts of the language file's MsgStat00 to MsgStat10.
  std::array<std::string, 11> statusTexts{};

  // 0 all rows, 1 the selected rows, 2 the rows that aren't selected.
  int applyScope = 0;

  // Set by the cancel button during a pump; long loops test and clear it.
  bool cancelLoading = false;

  long addCounter = 0;     // calls of AddFile since start
  long statusCounter = 0;  // running number of the status panel

  // Computed by the refresh.
  int changedCount = 0;
  int folderCount = 0;
  int undoLevels = 0;
  CommandState commands;
  std::string selectedScriptLabel;

  int lastClickedColumn = 0;
  bool iconView = false;

  // Remembered dialog inputs, recording and playback of scripts.
  ScriptSession script;

  // Facts the refresh needs from other parts of the window.
  bool scriptMenuHasEntries = false;

  // Variant of the removal button: "", "DelList1" to "DelList5".
  std::string delListTag;
};

}  // namespace nomra
