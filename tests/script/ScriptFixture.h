#pragma once
#include <algorithm>
#include <ctime>
#include <string>
#include <vector>

#include "base/LocalClock.h"
#include "rename/ActionFixture.h"
#include "script/ScriptFiles.h"
#include "script/ScriptPlayback.h"
#include "shell/SelectedScript.h"

namespace nomra::testing {

// A moment of local time, as the clock gives it.
inline std::tm Moment(int year, int month, int day, int hour, int minute, int second) {
  std::tm moment{};
  moment.tm_year = year - 1900;
  moment.tm_mon = month - 1;
  moment.tm_mday = day;
  moment.tm_hour = hour;
  moment.tm_min = minute;
  moment.tm_sec = second;
  moment.tm_isdst = -1;
  return moment;
}

inline std::tm ScriptMoment() { return Moment(2026, 11, 15, 2, 33, 3); }

// A list over real files and a data folder with its scripts folder; the
// clock stands still unless a test lets it run.
class ScriptTest : public ActionTest {
 protected:
  std::string ScriptFolderPath() const { return data.Path() + "Script/"; }

  // Writes a script file into the scripts folder, bytes as given.
  std::string WriteScript(const std::string& fileName, const std::string& content) const {
    return data.WriteFile("Script/" + fileName, content);
  }

  // Opens each step's dialog without a window, noting the types opened.
  script::StepOpener HeadlessOpener() {
    return [this](int stepType) {
      openedTypes.push_back(stepType);
      script::PlayStepWithoutWindow(Actions(), stepType);
    };
  }

  std::vector<std::string> ScriptFilesOnDisk() {
    std::vector<std::string> names;
    fileSystem.ListFolder(ScriptFolderPath(),
                          [&](std::string_view name, platform::EntryKind) { names.emplace_back(name); });
    std::sort(names.begin(), names.end());
    return names;
  }

  std::vector<int> openedTypes;
  std::tm now = ScriptMoment();
  base::LocalClock clock = [this] { return now; };
};

}  // namespace nomra::testing
