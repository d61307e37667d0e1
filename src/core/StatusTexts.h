#pragma once
#include <string>

namespace nomra::core {

// The texts of the status panel and the selected-script label, from the
// language file's Messages section (the keys are in lang/MessageKeys.h).
struct StatusTexts {
  std::string listSummary;  // "%1 files in %2 folders, %3 changed"
  std::string adding;       // followed by the running number of the file added
  std::string renamed;      // followed by the running number of the file renamed
  std::string noScript;     // the selected-script label without a script
  std::string rowOfCount;   // "%1 of %2": the row an action is at
};

}  // namespace nomra::core
