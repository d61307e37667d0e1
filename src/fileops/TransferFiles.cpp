#include "fileops/TransferFiles.h"

#include <cerrno>

#include "fileops/CollisionQuestions.h"
#include "fileops/FilePaths.h"
#include "fileops/FileTransfer.h"

namespace nomra::fileops {

namespace {

bool SameFile(const platform::FileStatus& a, const platform::FileStatus& b) {
  return a.device == b.device && a.inode == b.inode;
}

// One run over the pairs, with what it needs to know across files.
class TransferRun {
 public:
  TransferRun(OperationKind kind, const std::vector<TransferPair>& pairs, bool renameOnCollision,
              OperationServices& services)
      : kind_(kind),
        pairs_(pairs),
        renameOnCollision_(renameOnCollision),
        services_(services),
        questions_(services.frontEnd) {}

  TransferOutcome Run();

 private:
  // False when the user stopped the run.
  bool Handle(std::size_t index);
  // The name to put the file under, "" to skip it; false when stopped.
  bool ChooseTarget(std::size_t index, std::string& target, bool& replace);
  bool Fail(std::size_t index, base::Failure failure);
  std::string KeepBothTarget(const std::string& target) {
    return KeepBothName(target, [this](const std::string& path) {
      return services_.fileSystem.Inspect(path).kind != platform::EntryKind::Missing;
    });
  }

  OperationKind kind_;
  const std::vector<TransferPair>& pairs_;
  bool renameOnCollision_;
  OperationServices& services_;
  CollisionQuestions questions_;
  std::vector<platform::FileStatus> sources_;
  std::vector<bool> takenAtStart_;
  int collisionsLeft_ = 0;
  core::ProgressStep step_;
  TransferOutcome outcome_;
};

TransferOutcome TransferRun::Run() {
  const std::size_t count = pairs_.size();
  outcome_.placed.assign(count, std::string());
  step_.task = ProgressTaskOf(kind_);
  step_.count = static_cast<int>(count);
  for (const TransferPair& pair : pairs_) {
    sources_.push_back(services_.fileSystem.Inspect(pair.from));
    step_.bytesTotal += sources_.back().size;
    // Counted ahead, so that "the same for all" is asked only where more follow.
    takenAtStart_.push_back(services_.fileSystem.Inspect(pair.to).kind != platform::EntryKind::Missing);
    if (takenAtStart_.back()) ++collisionsLeft_;
  }
  services_.progress.Begin(step_);
  for (std::size_t index = 0; index < count; ++index) {
    if (takenAtStart_[index]) --collisionsLeft_;
    step_.index = static_cast<int>(index) + 1;
    step_.path = pairs_[index].from;
    if (!services_.progress.Tick(step_) || !Handle(index)) {
      outcome_.aborted = true;
      break;
    }
    step_.bytesDone += sources_[index].size;
  }
  services_.progress.End();
  return outcome_;
}

bool TransferRun::Handle(std::size_t index) {
  const TransferPair& pair = pairs_[index];
  const platform::FileStatus& source = sources_[index];
  if (source.kind != platform::EntryKind::File) {
    base::Failure failure;
    failure.systemError = source.kind == platform::EntryKind::Missing ? ENOENT : EISDIR;
    if (source.kind == platform::EntryKind::Missing) failure.kind = base::FailureKind::SourceMissing;
    failure.path = pair.from;
    failure.target = pair.to;
    return Fail(index, std::move(failure));
  }
  std::string target = pair.to;
  bool replace = false;
  if (!ChooseTarget(index, target, replace)) return false;
  if (target.empty()) return true;
  const std::uint64_t before = step_.bytesDone;
  const platform::CopyTick tick = [this, before](std::uint64_t copied) {
    step_.bytesDone = before + copied;
    return services_.progress.Tick(step_);
  };
  FileResult result =
      PutFile(services_.fileSystem, pair.from, target, source, kind_ == OperationKind::Move, replace, tick);
  step_.bytesDone = before;
  if (result.stopped) return false;
  if (result.done) {
    outcome_.placed[index] = target;
    if (target != pair.to) outcome_.renamed.push_back({pair.from, target});
  }
  if (result.failure) return Fail(index, std::move(*result.failure));
  return true;
}

bool TransferRun::ChooseTarget(std::size_t index, std::string& target, bool& replace) {
  const platform::FileStatus& source = sources_[index];
  const platform::FileStatus there = services_.fileSystem.Inspect(target);
  if (there.kind == platform::EntryKind::Missing) return true;
  if (SameFile(source, there)) {
    // A file can't be replaced by itself; a copy of it goes beside it.
    if (kind_ == OperationKind::Move) {
      outcome_.placed[index] = target;
      target.clear();
    } else {
      target = KeepBothTarget(target);
    }
    return true;
  }
  if (renameOnCollision_) {
    target = KeepBothTarget(target);
    return true;
  }
  const Collision collision{pairs_[index].from, target, source, there, KeepBothTarget(target)};
  switch (questions_.Ask(collision, collisionsLeft_ > 0)) {
    case CollisionChoice::Replace: replace = true; return true;
    case CollisionChoice::KeepBoth: target = collision.keepBothTarget; return true;
    case CollisionChoice::Skip: target.clear(); return true;
    case CollisionChoice::Stop: break;
  }
  return false;
}

bool TransferRun::Fail(std::size_t index, base::Failure failure) {
  if (outcome_.result == 0) outcome_.result = failure.systemError;
  ShowTransferFailure(services_.frontEnd, kind_, failure);
  return AskGoOn(services_.frontEnd, static_cast<int>(pairs_.size() - index - 1));
}

}  // namespace

TransferOutcome TransferFiles(OperationKind kind, const std::vector<TransferPair>& pairs, bool renameOnCollision,
                              OperationServices& services) {
  return TransferRun(kind, pairs, renameOnCollision, services).Run();
}

}  // namespace nomra::fileops
