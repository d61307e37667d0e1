#pragma once
#include <cstdint>
#include <string>

namespace nomra::dialog {

// What the dialogs share about remembering inputs and about scripts: the
// files the dialog state goes to and the state of recording and playback.
struct ScriptSession {
  std::string dataFolder;           // ends with the separator
  std::string settingsPath;         // the settings file: remembered inputs
  bool saveDialogSettings = false;  // "savset": dialogs remember their inputs

  std::string tempPath;        // the recording's work file, "script.tmp" in the data folder
  std::string runPath;         // the script being played; empty when none
  std::int16_t runStep = 0;    // the step being played, from 1
  std::int16_t recording = 0;  // 1 while a recording runs
  std::int16_t runMode = 0;    // 0 no playback, 1 run all steps, 2 single steps
};

}  // namespace nomra::dialog
