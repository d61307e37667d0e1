#include "commit/CommitFixture.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "commit/RenameFiles.h"
#include "core/AddFile.h"

namespace nomra::testing {

std::tm FixedLocalTime() {
  std::tm when{};
  when.tm_year = 2004 - 1900;
  when.tm_mon = 2;
  when.tm_mday = 15;
  when.tm_hour = 14;
  when.tm_min = 23;
  when.tm_sec = 5;
  return when;
}

CommitTest::CommitTest() {
  texts.listSummary = "%1 files in %2 folders, %3 changed";
  texts.renamed = "Renamed";
  options.dataFolder = data.Path();
  fileSystem.ownFolder = data.Path();
}

core::FileEntry& CommitTest::AddRow(const std::string& name, const std::string& content) {
  std::string path = files.WriteFile(name, content.empty() ? "content of " + name : content);
  core::AddFile(load, path);
  preview.Refresh();
  core::FileEntry* row = state.list.Find(path);
  if (row == nullptr) throw std::runtime_error("no row for " + path);
  return *row;
}

void CommitTest::AddForeignFile(const std::string& name, const std::string& content) {
  files.WriteFile(name, content.empty() ? "content of " + name : content);
}

core::FileEntry& CommitTest::Row(const std::string& oldName) {
  for (int position = 1; position <= state.list.Count(); ++position) {
    core::FileEntry& row = state.list.Item(position);
    if (row[core::kColOldName] == oldName) return row;
  }
  throw std::runtime_error("no row named " + oldName);
}

void CommitTest::Rename(const std::string& oldName, const std::string& newName) {
  Row(oldName)[core::kColNewName] = newName;
  preview.Refresh();
}

commit::CommitResult CommitTest::CommitAll() {
  commit::CommitResult result = commit::mdlRenameFiles(Commit(), commit::kWholeList, FixedLocalTime);
  preview.Refresh();
  return result;
}

commit::CommitResult CommitTest::CommitRow(int position) {
  commit::CommitResult result = commit::mdlRenameFiles(Commit(), position, FixedLocalTime);
  preview.Refresh();
  return result;
}

std::vector<std::string> CommitTest::NamesOnDisk() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(files.Path())) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::multiset<std::string> CommitTest::Contents() const {
  std::multiset<std::string> contents;
  for (const std::string& name : NamesOnDisk()) contents.insert(ContentOf(name));
  return contents;
}

std::vector<std::string> CommitTest::Keys() {
  std::vector<std::string> keys;
  state.list.ForEach([&](const core::FileEntry& row) { keys.push_back(row.key); });
  std::sort(keys.begin(), keys.end());
  return keys;
}

std::vector<std::string> CommitTest::TextKeys(const commit::CommitResult& result) {
  std::vector<std::string> keys;
  for (const commit::ReportRow& row : result.notRenamed) keys.push_back(row.textKey);
  return keys;
}

}  // namespace nomra::testing
