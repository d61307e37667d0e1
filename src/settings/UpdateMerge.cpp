#include "settings/UpdateMerge.h"

#include <unistd.h>

#include <functional>
#include <string_view>
#include <vector>

#include "settings/CompactIniFile.h"
#include "settings/FileBytes.h"
#include "settings/IniFile.h"
#include "settings/SettingsKeys.h"

namespace nomra::settings {

namespace {

using Parts = std::vector<std::string>;

Parts SplitInstruction(std::string_view instruction) {
  Parts parts;
  std::size_t from = 0;
  for (;;) {
    const std::size_t bar = instruction.find(kInstructionSeparator, from);
    parts.emplace_back(instruction.substr(from, bar - from));
    if (bar == std::string_view::npos) break;
    from = bar + 1;
  }
  return parts;
}

// Runs each numbered instruction of a section (prefix + 1, 2, ...) until the
// first empty one. A line with too few parts is skipped.
void ForEachInstruction(const std::string& updateFile, const char* section, const char* keyPrefix,
                        std::size_t partsNeeded, const std::function<void(const Parts&)>& apply) {
  for (long n = 1;; ++n) {
    const std::string instruction = ReadIniString(section, keyPrefix + std::to_string(n), updateFile);
    if (instruction.empty()) return;
    const Parts parts = SplitInstruction(instruction);
    if (parts.size() >= partsNeeded) apply(parts);
  }
}

// A key already marked for deletion earlier in this merge has no value to
// give.
std::string ReadLiveValue(const std::string& section, const std::string& key, const std::string& settingsFile) {
  std::string value = ReadIniString(section, key, settingsFile);
  return value == kDeleteMarker ? std::string() : value;
}

void FinishMerge(const std::string& updateFile, const std::string& settingsFile, const std::string& dataFolder) {
  CompactIniFile(settingsFile, dataFolder);
  unlink(updateFile.c_str());  // may fail in a read-only folder; the version test guards a rerun
}

}  // namespace

MergeOutcome MergeUpdateInstructions(const std::string& updateFile, const std::string& settingsFile,
                                     const std::string& dataFolder) {
  if (!IsRegularFile(updateFile)) return MergeOutcome::NoInstructions;

  const std::string version = ReadIniString(kMainSection, kVersionKey, updateFile);
  if (version == ReadIniString(kMainSection, kVersionKey, settingsFile)) {
    FinishMerge(updateFile, settingsFile, dataFolder);
    return MergeOutcome::AlreadyApplied;
  }

  ForEachInstruction(updateFile, kAddSection, kAddKeyPrefix, 3, [&](const Parts& p) {
    if (ReadIniString(p[0], p[1], settingsFile).empty()) WriteIni(p[0], p[1], p[2], settingsFile);
  });
  ForEachInstruction(updateFile, kCopySection, kCopyKeyPrefix, 4, [&](const Parts& p) {
    const std::string value = ReadLiveValue(p[0], p[1], settingsFile);
    if (value.empty()) return;
    WriteIni(p[2], p[3], value, settingsFile);
    WriteIni(p[0], p[1], kDeleteMarker, settingsFile);
  });
  ForEachInstruction(updateFile, kDelSection, kDelKeyPrefix, 2,
                     [&](const Parts& p) { WriteIni(p[0], p[1], kDeleteMarker, settingsFile); });

  WriteIni(kMainSection, kVersionKey, version, settingsFile);
  FinishMerge(updateFile, settingsFile, dataFolder);
  return MergeOutcome::Applied;
}

}  // namespace nomra::settings
