#pragma once
#include "commit/CommitContext.h"
#include "core/AddFile.h"
#include "core/ExifDateReader.h"
#include "core/ListContext.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/PlainPreview.h"
#include "core/Progress.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "platform/FileSystem.h"
#include "rename/ActionContext.h"
#include "shell/Startup.h"

namespace nomra::cli {

// Everything one run of nomra-cli works with: the list and its options, the
// script session, and the services the engine's commands are handed. The
// command line shows no status panel and no progress, so the texts stay
// empty and nothing ever asks to stop.
class CliSession {
 public:
  CliSession(platform::FileSystem& fileSystem, core::FrontEnd& frontEnd)
      : fileSystem(fileSystem), frontEnd(frontEnd), state(fileSystem) {}
  CliSession(const CliSession&) = delete;
  CliSession& operator=(const CliSession&) = delete;

  // Reads the options and the script session's files from the settings.
  void Start(const shell::StartupPaths& paths) {
    shell::LoadStartupSettings(paths, {fileSystem, frontEnd, options, script});
  }

  core::ListContext List() { return {state, frontEnd, preview}; }
  rename::ActionContext Actions() { return {List(), texts, script, fileSystem}; }
  commit::CommitContext Commit() { return {state, fileSystem, frontEnd, options, texts}; }

  platform::FileSystem& fileSystem;
  core::FrontEnd& frontEnd;
  core::NoExifDates exifDates;
  core::NoProgress progress;
  core::ListOptions options;
  core::StatusTexts texts;
  core::ListState state;
  dialog::ScriptSession script;
  core::PlainPreview preview{state, frontEnd, texts};
  core::ListLoad load{state, fileSystem, frontEnd, progress, exifDates, options, texts};
};

}  // namespace nomra::cli
