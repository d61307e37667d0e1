#pragma once
#include <string>

#include "settings/SettingsKeys.h"
#include "support/ListFixture.h"

namespace nomra::testing {

// A list over real files, with a data folder of its own for the settings
// file, the recording's work file and the scripts.
class ActionTest : public ListTest {
 protected:
  ActionTest() {
    texts.rowOfCount = "File %1 of %2";
    script.dataFolder = data.Path();
    script.settingsPath = data.Path() + settings::kSettingsFileName;
    script.tempPath = data.Path() + settings::kScriptTempFileName;
  }

  std::vector<std::string> PendingNames() { return Column(core::kColNewName); }

  std::string SettingsText() const { return ReadWholeFile(script.settingsPath); }
  std::string RecordingText() const { return ReadWholeFile(script.tempPath); }

  TempFolder data;
};

}  // namespace nomra::testing
