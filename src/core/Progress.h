#pragma once
#include <cstdint>
#include <string>

namespace nomra::core {

// Where a long task stands.
struct ProgressStep {
  // The language key of what is being done ("msgCopying"); "" where the
  // status panel tells it.
  const char* task = "";
  int index = 0;  // the item at work, from 1; 0 where items aren't counted
  int count = 0;
  std::string path;             // the item at work
  std::uint64_t bytesDone = 0;  // of all items together
  std::uint64_t bytesTotal = 0;
};

// The progress of every long task: loading the list, copying, moving and
// deleting files, and the tasks to come (duplicates, folder compare,
// checksums, tag writing). Tick runs between two pieces of work and lets
// the user be heard; false is the user's stop, after which the task begins
// nothing new. The window shows a progress and reads its cancel button, the
// command line shows nothing, tests say stop where they want to.
class Progress {
 public:
  virtual ~Progress() = default;
  // The task begins: task, count and bytesTotal of `task` are set.
  virtual void Begin(const ProgressStep& task) { (void)task; }
  virtual bool Tick(const ProgressStep& step) = 0;
  virtual void End() {}
};

// Nothing to show, never a stop.
class NoProgress final : public Progress {
 public:
  bool Tick(const ProgressStep&) override { return true; }
};

}  // namespace nomra::core
