#pragma once
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <string>
#include <vector>

#include "fileops/OperationServices.h"
#include "lang/MessageKeys.h"
#include "platform/posix/FreedesktopTrash.h"
#include "support/ForwardingFileSystem.h"
#include "support/RealFiles.h"
#include "support/ScriptedFrontEnd.h"
#include "support/TempFolder.h"

namespace nomra::fileops::testing {

using nomra::testing::ReadWholeFile;
using nomra::testing::ScriptedFrontEnd;
using nomra::testing::TempFolder;

using nomra::testing::ForwardingFileSystem;

// Each rename but that of a finished work file answers as if it crossed
// from one volume to another.
class CrossVolumeSystem : public ForwardingFileSystem {
 public:
  platform::RenameResult RenameNoReplace(const std::string& from, const std::string& to) override {
    if (IsWorkFile(from)) return real.RenameNoReplace(from, to);
    ++crossings;
    return {false, EXDEV};
  }
  int RenameReplacing(const std::string& from, const std::string& to) override {
    if (IsWorkFile(from)) return real.RenameReplacing(from, to);
    ++crossings;
    return EXDEV;
  }
  int crossings = 0;

 private:
  static bool IsWorkFile(const std::string& path) { return path.find("/.nomra-part-") != std::string::npos; }
};

// The names in a folder, sorted.
inline std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  nomra::testing::RealFiles().ListFolder(folder,
                                         [&](std::string_view name, platform::EntryKind) { names.emplace_back(name); });
  std::sort(names.begin(), names.end());
  return names;
}

// Remembers every step it was told of, and says stop at the step asked for.
class ScriptedProgress final : public core::Progress {
 public:
  void Begin(const core::ProgressStep& task) override { begun.push_back(task); }
  bool Tick(const core::ProgressStep& step) override {
    steps.push_back(step);
    return stopAtFile == 0 || step.index < stopAtFile;
  }
  void End() override { ++ended; }

  std::vector<core::ProgressStep> begun;
  std::vector<core::ProgressStep> steps;
  int ended = 0;
  int stopAtFile = 0;  // the file before which the user stops; 0 never
};

// Files in temporary folders, with scripted answers and progress.
class OperationsTest : public ::testing::Test {
 protected:
  // The keys of the messages asked, in order.
  std::vector<std::string> AskedKeys() const {
    std::vector<std::string> keys;
    for (const core::Message& message : frontEnd.asked) keys.push_back(message.textKey);
    return keys;
  }
  bool WasAsked(const std::string& key) const {
    for (const core::Message& message : frontEnd.asked)
      if (message.textKey == key) return true;
    return false;
  }

  TempFolder temp;
  ForwardingFileSystem os;
  platform::FreedesktopTrash trash{os, nomra::testing::RealLocations()};
  ScriptedFrontEnd frontEnd;
  ScriptedProgress progress;
  OperationServices services{os, trash, frontEnd, progress, [] {
                               std::tm fixed{};
                               fixed.tm_year = 2024 - 1900;
                               fixed.tm_mon = 2;
                               fixed.tm_mday = 5;
                               fixed.tm_hour = 14;
                               fixed.tm_min = 7;
                               fixed.tm_sec = 9;
                               return fixed;
                             }};
};

}  // namespace nomra::fileops::testing
