#pragma once
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/FileEntry.h"
#include "platform/FileSystem.h"

namespace nomra::core {

// The one document: ordered rows, addressed by 1-based position or by key.
// Keys are unique by the case rule of the volume that holds them: exact on
// case-sensitive volumes, without regard to case on FAT, exFAT, CIFS and
// casefolded folders.
class FileList {
 public:
  explicit FileList(platform::FileSystem& caseRules);
  FileList(const FileList&) = delete;
  FileList& operator=(const FileList&) = delete;

  int Count() const { return static_cast<int>(rows_.size()); }
  bool Empty() const { return rows_.empty(); }

  // Throws RuntimeFault for a position outside 1..Count().
  FileEntry& Item(int position);
  const FileEntry& Item(int position) const;

  FileEntry* Find(std::string_view key);

  // Appends a row with that key and empty text; nullptr when the key exists.
  FileEntry* Add(std::string key);

  void Remove(int position);
  // Removes, in one pass, every row the predicate picks; the others keep their order.
  void RemoveWhere(const std::function<bool(const FileEntry&)>& remove);
  void Clear();

  // Gives a row a new key; false (nothing changed) when another row holds it.
  bool ChangeKey(FileEntry& entry, std::string newKey);

  // Takes the dragged row to the target's place, with all it carries.
  void MoveRow(int dragged, int target);

  // Puts the rows in a new order: order[i] is the 0-based index of the row
  // that comes to place i.
  void Reorder(const std::vector<int>& order);

  // The list control's sort column and direction (0 ascending, 1 descending),
  // and the column head clicked last, whose second click turns the order.
  int sortKey = 0;
  int sortOrder = 0;
  int lastClickedHead = 0;

  // Visits the rows in order. Rows lie wherever they were allocated, so in
  // sorted order each visit would wait for memory; asking for the rows a few
  // places ahead keeps a walk over 100,000 rows from doing that.
  template <typename F>
  void ForEach(F&& f) {
    const std::size_t count = rows_.size();
    for (std::size_t i = 0; i < count; ++i) {
      if (i + kPrefetchDistance < count) Prefetch(rows_[i + kPrefetchDistance].get());
      f(*rows_[i]);
    }
  }
  template <typename F>
  void ForEach(F&& f) const {
    const std::size_t count = rows_.size();
    for (std::size_t i = 0; i < count; ++i) {
      if (i + kPrefetchDistance < count) Prefetch(rows_[i + kPrefetchDistance].get());
      f(static_cast<const FileEntry&>(*rows_[i]));
    }
  }

 private:
  static constexpr std::size_t kPrefetchDistance = 8;
  static void Prefetch(const FileEntry* entry) {
    const char* bytes = reinterpret_cast<const char*>(entry);
    for (std::size_t offset = 0; offset < sizeof(FileEntry); offset += 64) __builtin_prefetch(bytes + offset);
  }

  std::string_view IndexKeyOf(FileEntry& entry);
  void Renumber(std::size_t from);

  platform::FileSystem& caseRules_;
  std::vector<std::unique_ptr<FileEntry>> rows_;
  std::unordered_map<std::string_view, FileEntry*> byKey_;
};

}  // namespace nomra::core
