#pragma once

namespace nomra::cli {

// What the shell sees when nomra-cli ends.
enum ExitStatus : int {
  kExitSuccess = 0,
  kExitFault = 1,  // a path or a step met a fault; the run went on
  kExitUsage = 2,  // the command line itself was wrong; nothing ran
};

}  // namespace nomra::cli
