#pragma once
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>

#include "commit/PathKeys.h"

namespace nomra::commit {

// The working sets of a commit: values stored under full paths, the paths
// compared by the case rule of their volume. Setting a path that is there
// already replaces its value. The case rules belong to the whole commit and
// remember what they were asked, so a look-up leaves only the map unchanged.

// Without order: the names a row will hold.
class PathMap {
 public:
  explicit PathMap(PathKeys& keys) : keys_(keys) {}

  void Set(std::string_view path, std::string value);
  // nullptr when the path isn't there; valid until the next change.
  const std::string* Find(std::string_view path) const;
  bool Contains(std::string_view path) const { return Find(path) != nullptr; }
  void Erase(std::string_view path);

 private:
  PathKeys& keys_;
  std::unordered_map<std::string, std::string> values_;
};

// In the order of first insertion; a replaced value keeps its place. The
// settling of the plan walks it from the end.
class OrderedPathMap {
 public:
  explicit OrderedPathMap(PathKeys& keys) : keys_(keys) {}
  OrderedPathMap(const OrderedPathMap&) = delete;
  OrderedPathMap& operator=(const OrderedPathMap&) = delete;

  void Set(std::string_view path, std::string value);
  bool Contains(std::string_view path) const;
  // False when the path wasn't there.
  bool Erase(std::string_view path);

  bool Empty() const { return entries_.empty(); }
  std::size_t Size() const { return entries_.size(); }
  // The value last inserted; the map must not be empty.
  const std::string& LastValue() const { return entries_.back().value; }

  template <typename F>
  void ForEach(F&& f) const {
    for (const Entry& entry : entries_) f(entry.value);
  }

 private:
  struct Entry {
    std::string key;
    std::string value;
  };

  PathKeys& keys_;
  std::list<Entry> entries_;
  // Views into the entries' keys, which never move.
  std::unordered_map<std::string_view, std::list<Entry>::iterator> index_;
};

}  // namespace nomra::commit
