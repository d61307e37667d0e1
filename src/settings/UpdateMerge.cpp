#include "settings/UpdateMerge.h"

#include <functional>
#include <string_view>
#include <vector>

#include "settings/CompactIniFile.h"
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
void ForEachInstruction(const formats::IniFile& updateFile, const char* section, const char* keyPrefix,
                        std::size_t partsNeeded, const std::function<void(const Parts&)>& apply) {
  for (long n = 1;; ++n) {
    const std::string instruction = updateFile.ReadString(section, keyPrefix + std::to_string(n));
    if (instruction.empty()) return;
    const Parts parts = SplitInstruction(instruction);
    if (parts.size() >= partsNeeded) apply(parts);
  }
}

// A key already marked for deletion earlier in this merge has no value to
// give.
std::string ReadLiveValue(const std::string& section, const std::string& key, const formats::IniFile& settingsFile) {
  std::string value = settingsFile.ReadString(section, key);
  return value == kDeleteMarker ? std::string() : value;
}

void FinishMerge(const formats::IniFile& updateFile, const formats::IniFile& settingsFile,
                 const std::string& dataFolder) {
  CompactIniFile(settingsFile.Files(), settingsFile.Path(), dataFolder);
  // May fail in a read-only folder; the version test guards a rerun.
  updateFile.Files().RemoveFile(updateFile.Path());
}

}  // namespace

MergeOutcome MergeUpdateInstructions(const formats::IniFile& updateFile, const formats::IniFile& settingsFile,
                                     const std::string& dataFolder) {
  if (updateFile.Files().Status(updateFile.Path()).kind != platform::EntryKind::File) {
    return MergeOutcome::NoInstructions;
  }

  const std::string version = updateFile.ReadString(kMainSection, kVersionKey);
  if (version == settingsFile.ReadString(kMainSection, kVersionKey)) {
    FinishMerge(updateFile, settingsFile, dataFolder);
    return MergeOutcome::AlreadyApplied;
  }

  ForEachInstruction(updateFile, kAddSection, kAddKeyPrefix, 3, [&](const Parts& p) {
    if (settingsFile.ReadString(p[0], p[1]).empty()) settingsFile.Write(p[0], p[1], p[2]);
  });
  ForEachInstruction(updateFile, kCopySection, kCopyKeyPrefix, 4, [&](const Parts& p) {
    const std::string value = ReadLiveValue(p[0], p[1], settingsFile);
    if (value.empty()) return;
    settingsFile.Write(p[2], p[3], value);
    settingsFile.Write(p[0], p[1], kDeleteMarker);
  });
  ForEachInstruction(updateFile, kDelSection, kDelKeyPrefix, 2,
                     [&](const Parts& p) { settingsFile.Write(p[0], p[1], kDeleteMarker); });

  settingsFile.Write(kMainSection, kVersionKey, version);
  FinishMerge(updateFile, settingsFile, dataFolder);
  return MergeOutcome::Applied;
}

}  // namespace nomra::settings
