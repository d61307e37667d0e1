#pragma once
#include "HeadlessFrontEnd.h"
#include "commit/CommitContext.h"
#include "core/AddFile.h"
#include "core/ExifDateReader.h"
#include "core/ListContext.h"
#include "core/ListOptions.h"
#include "core/ListState.h"
#include "core/Progress.h"
#include "core/StatusTexts.h"
#include "dialog/ScriptSession.h"
#include "platform/posix/PosixFileSystem.h"
#include "shell/WindowPreview.h"
#include "shell/WindowState.h"

namespace nomra::bench {

// A list as the window keeps it, without the window: what the engine's
// commands cost on their own, the window's refresh of its state included.
struct BenchList {
  BenchList() = default;
  BenchList(const BenchList&) = delete;
  BenchList& operator=(const BenchList&) = delete;

  core::ListContext List() { return {state, ui, preview}; }
  commit::CommitContext Commit() { return {state, fs, ui, options, texts}; }

  platform::PosixFileSystem fs;
  HeadlessFrontEnd ui;
  core::NoExifDates exif;
  core::NoProgress progress;
  core::ListOptions options;
  core::StatusTexts texts;
  core::ListState state{fs};
  shell::WindowState window;
  dialog::ScriptSession script;
  shell::WindowPreview preview{state, window, script, ui, texts};
  core::ListLoad load{state, fs, ui, progress, exif, options, texts};
};

}  // namespace nomra::bench
