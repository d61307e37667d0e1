#pragma once
#include <gtest/gtest.h>

#include <string>

#include "dialog/DialogModel.h"
#include "dialog/DialogState.h"
#include "dialog/ScriptSession.h"
#include "settings/SettingsKeys.h"
#include "support/RealFiles.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::testing {

// A data folder of its own with the settings file and the recording's work
// file in it, and a front end that notes the plain message boxes.
class DialogStateTest : public ::testing::Test {
 protected:
  DialogStateTest() {
    session.dataFolder = data.Path();
    session.settingsPath = data.Path() + settings::kSettingsFileName;
    session.tempPath = data.Path() + settings::kScriptTempFileName;
  }

  void Store(const dialog::DialogModel& dialog, const std::string& section) {
    dialog::StoreDialogState(dialog, section, dialog::kSettingsMode, session, nomra::testing::RealFiles());
  }
  void Restore(dialog::DialogModel& dialog, const std::string& section) {
    dialog::RestoreDialogState(dialog, section, dialog::kSettingsMode, session, nomra::testing::RealFiles(), frontEnd);
  }
  void RecordStep(const dialog::DialogModel& dialog, const std::string& type) {
    dialog::StoreDialogState(dialog, type, dialog::kScriptMode, session, nomra::testing::RealFiles());
  }

  // Stores the dialog under section "frmTest", then restores that section
  // into a dialog as it opened.
  dialog::DialogModel StoredAndRestored(const dialog::DialogModel& stored, dialog::DialogModel opened) {
    Store(stored, "frmTest");
    Restore(opened, "frmTest");
    return opened;
  }

  bool SettingsHaveLine(const std::string& line) const {
    return SettingsText().find("\r\n" + line + "\r\n") != std::string::npos;
  }

  std::string SettingsText() const { return ReadWholeFile(session.settingsPath); }
  std::string RecordingText() const { return ReadWholeFile(session.tempPath); }
  void WriteSettings(const std::string& text) const { data.WriteFile(settings::kSettingsFileName, text); }
  void WriteRecording(const std::string& text) const { data.WriteFile(settings::kScriptTempFileName, text); }

  TempFolder data;
  dialog::ScriptSession session;
  ScriptedFrontEnd frontEnd;
};

// U+0090 in UTF-8, the stand-in of a stored blank.
inline constexpr char kStandIn[] = "\xC2\x90";

}  // namespace nomra::testing
