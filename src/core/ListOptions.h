#pragma once
#include <array>
#include <string>

namespace nomra::core {

// What the user chose in the settings that the list's commands follow,
// read once at start.
struct ListOptions {
  bool checkExistence = false;  // a path that is no file is passed over in silence
  bool loadExifDates = true;    // JPEG files get their EXIF date as they are added
  // 0 guards undoing pending names, 1 taking changes, 2 rejecting changes.
  std::array<bool, 3> securityQuestions{};
  bool expertMode = false;       // commands that change files at once are offered
  bool protocolRenames = false;  // each rename is written to the rename protocol
  // The per-user data folder, ending with the separator; the rename protocol
  // and the commit journal live there.
  std::string dataFolder;
};

}  // namespace nomra::core
