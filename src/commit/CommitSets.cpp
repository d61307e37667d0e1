#include "commit/CommitSets.h"

#include <utility>

namespace nomra::commit {

void PathMap::Set(std::string_view path, std::string value) {
  values_.insert_or_assign(keys_.KeyOf(path), std::move(value));
}

const std::string* PathMap::Find(std::string_view path) const {
  const auto found = values_.find(keys_.KeyOf(path));
  return found == values_.end() ? nullptr : &found->second;
}

void PathMap::Erase(std::string_view path) { values_.erase(keys_.KeyOf(path)); }

void OrderedPathMap::Set(std::string_view path, std::string value) {
  std::string key = keys_.KeyOf(path);
  const auto found = index_.find(key);
  if (found != index_.end()) {
    found->second->value = std::move(value);
    return;
  }
  entries_.push_back(Entry{std::move(key), std::move(value)});
  const auto last = std::prev(entries_.end());
  index_.emplace(last->key, last);
}

bool OrderedPathMap::Contains(std::string_view path) const { return index_.contains(keys_.KeyOf(path)); }

bool OrderedPathMap::Erase(std::string_view path) {
  const auto found = index_.find(keys_.KeyOf(path));
  if (found == index_.end()) return false;
  const auto entry = found->second;
  index_.erase(found);
  entries_.erase(entry);
  return true;
}

}  // namespace nomra::commit
