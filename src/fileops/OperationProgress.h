#pragma once
#include <cstdint>
#include <string>

namespace nomra::fileops {

enum class OperationKind { Copy, Move, Trash, Delete };

// Where a running operation stands.
struct ProgressStep {
  OperationKind kind = OperationKind::Copy;
  int index = 0;  // the file at work, from 1
  int count = 0;
  std::string path;  // its source
  std::uint64_t bytesDone = 0;   // of all files together
  std::uint64_t bytesTotal = 0;
};

// The progress of copies, moves and deletions. Report runs before each file
// and while a large file is copied; its answer false is the user's stop,
// after which no further file is begun and the operation counts as aborted.
class OperationProgress {
 public:
  virtual ~OperationProgress() = default;
  virtual void Begin(OperationKind kind, int count, std::uint64_t bytesTotal) = 0;
  virtual bool Report(const ProgressStep& step) = 0;
  virtual void End() = 0;
};

}  // namespace nomra::fileops
