#pragma once
#include "core/FrontEnd.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/StatusTexts.h"
#include "platform/FileSystem.h"

namespace nomra::commit {

// What taking changes to disk works with: the list whose pending names go
// to disk, the file system, the user, the options that decide on the
// protocol and the questions, and the status text that counts the renames.
struct CommitContext {
  core::ListState& state;
  platform::FileSystem& fileSystem;
  core::FrontEnd& frontEnd;
  const core::ListOptions& options;
  const core::StatusTexts& texts;

  core::FileList& List() const { return state.list; }
};

}  // namespace nomra::commit
