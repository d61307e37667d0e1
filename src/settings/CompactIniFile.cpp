#include "settings/CompactIniFile.h"

#include <string_view>
#include <vector>

#include "base/Paths.h"
#include "base/Trim.h"
#include "formats/AtomicFile.h"
#include "formats/IniLines.h"
#include "settings/SettingsKeys.h"

namespace nomra::settings {

namespace {

using formats::JoinLines;
using formats::SplitLines;

// Lines are compared as bytes, so a Windows-1252 file keeps its encoding.
// "Previous" is the line read, whether it was kept or not: a section keeps
// its empty line ahead of it also when the key before it was dropped, and
// one pass never turns one empty line into two.
std::vector<std::string> CompactedLines(const std::vector<std::string>& lines) {
  std::vector<std::string> kept;
  kept.reserve(lines.size());
  std::string_view previous;
  for (const std::string& line : lines) {
    if (!line.empty() && line.front() == '[' && !previous.empty()) kept.emplace_back();
    if (!base::TrimBlanks(line).ends_with(kDeleteMarker)) kept.push_back(line);
    previous = line;
  }
  return kept;
}

}  // namespace

bool CompactIniFile(platform::FileSystem& fileSystem, const std::string& path, const std::string& dataFolder) {
  const auto source = fileSystem.ReadFile(path);
  if (!source || !fileSystem.MayWriteFile(path)) return false;
  const std::string temp = base::AddBackslash(dataFolder) + kCompactionTempName;
  const std::string compacted = JoinLines(CompactedLines(SplitLines(*source)));
  return formats::WriteThroughTemporary(fileSystem, path, temp, compacted) == 0;
}

}  // namespace nomra::settings
