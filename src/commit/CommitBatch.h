#pragma once
#include <string>

#include "commit/CommitResult.h"
#include "commit/LocalClock.h"
#include "commit/PathKeys.h"
#include "commit/ProtocolWriter.h"
#include "commit/RenameFailure.h"
#include "core/MainModel.h"

namespace nomra {

// What every part of one commit shares: the model, the report being filled,
// the open protocol and the case rules asked for this commit.
class CommitBatch {
 public:
  CommitBatch(MainModel& model, CommitResult& result, ProtocolWriter& protocol, const LocalClock& clock)
      : model(model), result(result), keys(model.fileSystem), protocol_(protocol), clock_(clock) {}

  // The failure handler: one numbered report row; the commit goes on.
  void Fail(const std::string& rowKey, const Failure& failure, const std::string& src, const std::string& dst);

  // The protocol record of a row whose rename has just worked, taken from
  // its columns before they change; written only when renames are logged.
  void RecordRename(const FileEntry& row);

  MainModel& model;
  CommitResult& result;
  PathKeys keys;

 private:
  ProtocolWriter& protocol_;
  const LocalClock& clock_;
};

}  // namespace nomra
