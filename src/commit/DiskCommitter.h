#pragma once
#include <utility>

#include "commit/CommitContext.h"
#include "commit/CommitResult.h"
#include "commit/CommitServices.h"
#include "core/RowCommitter.h"

namespace nomra::commit {

// Lets the list's removal commands take pending changes to disk before rows
// go: the whole list as one planned batch, or one row alone. A commit that
// left rows not renamed is shown through the services. The caller refreshes.
class DiskCommitter final : public core::RowCommitter {
 public:
  explicit DiskCommitter(const CommitContext& context, CommitServices services = {})
      : context_(context), services_(std::move(services)) {}

  void CommitAll() override;
  void CommitRow(int position) override;

  // What the last commit through this committer left.
  const CommitResult& LastResult() const { return lastResult_; }

 private:
  CommitContext context_;
  CommitServices services_;
  CommitResult lastResult_;
};

}  // namespace nomra::commit
