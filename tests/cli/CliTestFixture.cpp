#include "cli/CliTestFixture.h"

#include <fcntl.h>
#include <unistd.h>

#include <sstream>
#include <stdexcept>

#include "cli/CommandLineMain.h"
#include "core/FileEntry.h"
#include "support/ScopedEnvironment.h"

namespace nomra::testing {

CliResult CliTest::Run(const std::vector<std::string>& arguments) const {
  CliLaunch launch;
  launch.arguments = arguments;
  launch.environment["NOMRA_DATA_DIR"] = data.Path();
  return RunCli(launch);
}

CliResult CliTest::RunWithin(platform::Platform& system, const std::vector<std::string>& arguments) const {
  const ScopedEnvironment dataFolder("NOMRA_DATA_DIR", data.Path());
  std::ostringstream out;
  std::ostringstream messages;
  CliResult result;
  result.exitStatus = cli::RunCliArguments(system, arguments, out, messages);
  result.out = out.str();
  result.err = messages.str();
  return result;
}

JsonValue CliTest::RunJson(const std::vector<std::string>& arguments) const {
  std::vector<std::string> withJson{"--json"};
  withJson.insert(withJson.end(), arguments.begin(), arguments.end());
  const CliResult result = Run(withJson);
  if (result.exitStatus != 0) {
    throw std::runtime_error("nomra-cli ended with " + std::to_string(result.exitStatus) + ": " + result.err);
  }
  return ParseJson(result.out);
}

void CliTest::WriteSettings(const std::vector<std::string>& lines) const {
  std::string content = "[Settings]\r\n";
  for (const std::string& line : lines) content += line + "\r\n";
  data.WriteFile("settings.nrp", content);
}

std::string CliTest::CreateFileNamed(const std::string& rawName) const {
  const std::string path = files.Path() + rawName;
  const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0644);
  if (fd < 0) throw std::runtime_error("cannot create a file named " + rawName);
  close(fd);
  return path;
}

std::vector<std::string> ColumnOfRows(const JsonValue& document, int column) {
  std::vector<std::string> texts;
  for (const JsonValue& row : document["rows"].items) {
    texts.push_back(row["columns"][static_cast<std::size_t>(column)].text);
  }
  return texts;
}

std::vector<std::string> SelectedNames(const JsonValue& document) {
  std::vector<std::string> names;
  for (const JsonValue& row : document["rows"].items) {
    if (row["selected"].boolean) names.push_back(row["columns"][core::kColOldName].text);
  }
  return names;
}

const JsonValue& RowNamed(const JsonValue& document, const std::string& oldName) {
  for (const JsonValue& row : document["rows"].items) {
    if (row["columns"][core::kColOldName].text == oldName) return row;
  }
  throw std::runtime_error("no row named " + oldName);
}

}  // namespace nomra::testing
