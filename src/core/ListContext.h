#pragma once
#include "core/FrontEnd.h"
#include "core/ListState.h"
#include "core/Preview.h"

namespace nomra::core {

// What every command on the list works with: the list's state, the user it
// asks and tells, and the preview that follows each change. Services beyond
// these (the file system, the options, the texts) are passed to the
// commands that need them.
struct ListContext {
  ListState& state;
  FrontEnd& frontEnd;
  Preview& preview;

  FileList& List() const { return state.list; }
};

}  // namespace nomra::core
