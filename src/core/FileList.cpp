#include "core/FileList.h"

#include <algorithm>

#include "base/CaseMap.h"
#include "base/Fault.h"
#include "base/Paths.h"

namespace nomra::core {

FileList::FileList(platform::FileSystem& caseRules) : caseRules_(caseRules) {}

FileEntry& FileList::Item(int position) {
  if (position < 1 || position > Count()) {
    throw base::RuntimeFault("There is no row " + std::to_string(position) + " in a list of " +
                             std::to_string(Count()) + " rows");
  }
  return *rows_[static_cast<std::size_t>(position - 1)];
}

const FileEntry& FileList::Item(int position) const { return const_cast<FileList*>(this)->Item(position); }

std::string_view FileList::IndexKeyOf(FileEntry& entry) {
  entry.foldedKey_.clear();
  if (caseRules_.IsCaseInsensitiveFolder(base::FolderOf(entry.key))) {
    entry.foldedKey_ = base::ToLower(entry.key);
    return entry.foldedKey_;
  }
  return entry.key;
}

FileEntry* FileList::Find(std::string_view key) {
  std::string probe(key);
  auto found = byKey_.find(probe);
  if (found != byKey_.end()) return found->second;
  if (caseRules_.IsCaseInsensitiveFolder(base::FolderOf(probe))) {
    found = byKey_.find(base::ToLower(probe));
    if (found != byKey_.end()) return found->second;
  }
  return nullptr;
}

FileEntry* FileList::Add(std::string key) {
  auto entry = std::make_unique<FileEntry>();
  entry->key = std::move(key);
  const std::string_view indexKey = IndexKeyOf(*entry);
  if (byKey_.contains(indexKey)) return nullptr;
  entry->position = Count() + 1;
  FileEntry* added = entry.get();
  byKey_.emplace(indexKey, added);
  rows_.push_back(std::move(entry));
  return added;
}

void FileList::Remove(int position) {
  FileEntry& entry = Item(position);
  byKey_.erase(entry.foldedKey_.empty() ? std::string_view(entry.key) : std::string_view(entry.foldedKey_));
  rows_.erase(rows_.begin() + (position - 1));
  Renumber(static_cast<std::size_t>(position - 1));
}

void FileList::RemoveWhere(const std::function<bool(const FileEntry&)>& remove) {
  std::vector<std::unique_ptr<FileEntry>> kept;
  kept.reserve(rows_.size());
  for (auto& row : rows_) {
    if (remove(*row)) {
      byKey_.erase(row->foldedKey_.empty() ? std::string_view(row->key) : std::string_view(row->foldedKey_));
    } else {
      kept.push_back(std::move(row));
    }
  }
  rows_ = std::move(kept);
  Renumber(0);
}

void FileList::Clear() {
  byKey_.clear();
  rows_.clear();
}

bool FileList::ChangeKey(FileEntry& entry, std::string newKey) {
  FileEntry* holder = Find(newKey);
  if (holder != nullptr && holder != &entry) return false;
  byKey_.erase(entry.foldedKey_.empty() ? std::string_view(entry.key) : std::string_view(entry.foldedKey_));
  entry.key = std::move(newKey);
  byKey_.emplace(IndexKeyOf(entry), &entry);
  return true;
}

void FileList::MoveRow(int dragged, int target) {
  if (dragged == target) return;
  Item(dragged);
  Item(target);
  auto row = std::move(rows_[static_cast<std::size_t>(dragged - 1)]);
  rows_.erase(rows_.begin() + (dragged - 1));
  rows_.insert(rows_.begin() + (target - 1), std::move(row));
  Renumber(static_cast<std::size_t>(std::min(dragged, target) - 1));
}

void FileList::Reorder(const std::vector<int>& order) {
  std::vector<bool> named(rows_.size(), false);
  bool permutation = order.size() == rows_.size();
  for (std::size_t i = 0; permutation && i < order.size(); ++i) {
    const auto index = static_cast<std::size_t>(order[i]);
    permutation = order[i] >= 0 && index < rows_.size() && !named[index];
    if (permutation) named[index] = true;
  }
  if (!permutation) throw base::RuntimeFault("A new row order must name every row once");
  std::vector<std::unique_ptr<FileEntry>> next;
  next.reserve(rows_.size());
  for (int index : order) next.push_back(std::move(rows_[static_cast<std::size_t>(index)]));
  rows_ = std::move(next);
  Renumber(0);
}

void FileList::Renumber(std::size_t from) {
  for (std::size_t i = from; i < rows_.size(); ++i) rows_[i]->position = static_cast<int>(i + 1);
}

}  // namespace nomra::core
