#include "shell/CommandState.h"

namespace nomra::shell {

const std::vector<std::string>& MainToolBarKeys() {
  static const std::vector<std::string> keys = {
      "OpenFile", "DelList",  "",         "TakeChanges", "RejectChanges", "Undo",     "",         "Rename01",
      "Rename02", "Rename03", "Rename04", "Rename05",    "Rename06",      "Rename07", "Rename08", "Rename09",
      "Rename10", "Rename99", "",         "ImgPreview",  "Options"};
  return keys;
}

}  // namespace nomra::shell
