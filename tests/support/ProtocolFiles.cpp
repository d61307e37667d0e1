#include "support/ProtocolFiles.h"

#include <filesystem>

namespace nomra::testing {

std::string ProtocolLine(const std::string& folder, const std::string& oldName, const std::string& newName,
                         const std::string& time) {
  return time + "\"" + folder + "\"" + oldName + "\"" + newName;
}

void WriteProtocolFile(const TempFolder& data, const std::vector<std::string>& lines) {
  std::string content;
  for (const std::string& line : lines) content += line + "\r\n";
  data.WriteFile("renamed.nrp", content);
}

std::string ReadProtocolFile(const TempFolder& data) { return ReadWholeFile(data.Path() + "renamed.nrp"); }

void CreateNamedFiles(const TempFolder& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) folder.WriteFile(name, name);
}

std::set<std::string> NamesIn(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    names.insert(entry.path().filename().string());
  }
  return names;
}

}  // namespace nomra::testing
