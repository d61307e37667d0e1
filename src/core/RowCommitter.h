#pragma once

namespace nomra::core {

// Turns pending names into renames on disk. The list's removal commands hand
// rows to it when the user wants their changes kept.
class RowCommitter {
 public:
  virtual ~RowCommitter() = default;
  // Every row of the list in one planned batch.
  virtual void CommitAll() = 0;
  // One row alone, by its position.
  virtual void CommitRow(int position) = 0;
};

}  // namespace nomra::core
