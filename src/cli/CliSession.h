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
  CliSession(platform::FileSystem& fileSystem, FrontEnd& frontEnd)
      : fileSystem(fileSystem), frontEnd(frontEnd), state(fileSystem) {}
  CliSession(const CliSession&) = delete;
  CliSession& operator=(const CliSession&) = delete;

  // Reads the options and the script session's files from the settings.
  void Start(const StartupPaths& paths) { LoadStartupSettings(paths, {fileSystem, frontEnd, options, script}); }

  ListContext List() { return {state, frontEnd, preview}; }
  ActionContext Actions() { return {List(), texts, script, fileSystem}; }
  CommitContext Commit() { return {state, fileSystem, frontEnd, options, texts}; }

  platform::FileSystem& fileSystem;
  FrontEnd& frontEnd;
  NoExifDates exifDates;
  NoProgress progress;
  ListOptions options;
  StatusTexts texts;
  ListState state;
  ScriptSession script;
  PlainPreview preview{state, frontEnd, texts};
  ListLoad load{state, fileSystem, frontEnd, progress, exifDates, options, texts};
};

}  // namespace nomra::cli
