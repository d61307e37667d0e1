#pragma once
#include "core/ListContext.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"

namespace nomra::rename {

// What an action dialog works with: the list with its user and preview, the
// status texts of the walk over the rows, and the script session, with the
// file system its remembered inputs and script steps are stored through.
struct ActionContext {
  core::ListContext list;
  const core::StatusTexts& texts;
  dialog::ScriptSession& script;
  platform::FileSystem& fileSystem;

  core::ListState& State() const { return list.state; }
  core::FrontEnd& User() const { return list.frontEnd; }
};

}  // namespace nomra::rename
