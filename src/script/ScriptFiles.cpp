#include "script/ScriptFiles.h"

#include "base/CaseMap.h"
#include "base/DateText.h"
#include "base/Paths.h"
#include "base/Utf8.h"
#include "formats/IniFile.h"

namespace nomra::script {

namespace {

bool HasScriptEnding(std::string_view name) {
  return name.size() > kScriptFileEnding.size() &&
         base::EqualsNoCase(name.substr(name.size() - kScriptFileEnding.size()), kScriptFileEnding);
}

}  // namespace

std::string ScriptFolder(const std::string& dataFolder) {
  return base::AddBackslash(base::AddBackslash(dataFolder) + kScriptFolderName);
}

std::string ScriptFileName(const std::tm& moment) {
  return base::FormatTimeStamp(moment) + std::string(kScriptFileEnding);
}

std::string FormatScriptDate(std::string_view fileName) {
  const std::u32string chars = base::ToChars(fileName);
  // Characters from..to (1-based), as far as the name reaches.
  const auto cut = [&](std::size_t from, std::size_t to) {
    if (from > chars.size()) return std::string();
    return base::FromChars(std::u32string_view(chars).substr(from - 1, to - from + 1));
  };
  return cut(1, 4) + "-" + cut(5, 6) + "-" + cut(7, 8) + ", " + cut(9, 10) + ":" + cut(11, 12) + ":" + cut(13, 14);
}

std::string ScriptDisplayText(const formats::IniFile& script, std::string_view fileName) {
  return script.ReadString(kScriptMainSection, kScriptNameKey) + " [" + FormatScriptDate(fileName) + "]";
}

std::vector<StoredScript> ListStoredScripts(platform::FileSystem& fileSystem, const std::string& dataFolder) {
  std::vector<std::string> names;
  const std::string folder = ScriptFolder(dataFolder);
  fileSystem.ListFolder(folder, [&](std::string_view name, platform::EntryKind kind) {
    if (kind == platform::EntryKind::File && HasScriptEnding(name)) names.emplace_back(name);
  });
  std::vector<StoredScript> scripts;
  scripts.reserve(names.size());
  for (std::string& name : names) {
    std::string display = ScriptDisplayText(formats::IniFile(fileSystem, folder + name), name);
    scripts.push_back({std::move(name), std::move(display)});
  }
  return scripts;
}

}  // namespace nomra::script
