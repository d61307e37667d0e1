#pragma once
#include <string>

namespace nomra::base {

// What went wrong, by the numbers the messages go by where they have one.
enum class FailureKind : int {
  TargetExists = 58,   // another file holds the name
  PathNotUsable = 75,  // access denied, a path that doesn't resolve, a name the volume refuses
  SourceMissing = 53,  // the file to act on has gone
  NotAFolder = 76,     // a file stands where a folder of the path should be
  OriginalKept = 70,   // the copy is whole; only the original could not be removed
  Other = 0,           // anything else; the system's own description goes with it
};

// The one way the engine reports what did not happen on disk: the commit's
// report rows, the file operations' messages, the rename history and the
// repair after a crash all start from it, and each front end tells it in
// its own words.
struct Failure {
  FailureKind kind = FailureKind::Other;
  int systemError = 0;     // errno of the call that failed; 0 when none did
  std::string path;        // the file or folder it is about
  std::string target;      // where it was to go; "" when nowhere
  std::string obstacle;    // with NotAFolder: the file standing in the way
  std::string systemText;  // the system's words for systemError, or the engine's where no errno fits
};

// The system's own description of an errno.
std::string SystemErrorText(int error);

// A failure of kind Other, told in the system's words for `error`.
Failure SystemFailure(int error, std::string path = {}, std::string target = {});

}  // namespace nomra::base
