#pragma once
#include <optional>
#include <string>

#include "core/FrontEnd.h"
#include "platform/FileSystem.h"

namespace nomra::fileops {

enum class CollisionChoice { Replace, KeepBoth, Skip, Stop };

// A file that would land on a name already taken.
struct Collision {
  std::string source;
  std::string target;
  platform::FileStatus sourceInfo;
  platform::FileStatus targetInfo;
  std::string keepBothTarget;  // the name the file gets beside the other
};

// The questions a user expects before anything is replaced: replace, keep
// both, or skip, and whether to do the same for the other taken names.
// Nothing is replaced without a Yes. A folder in the way can't be replaced:
// only keeping both or skipping is offered then.
class CollisionQuestions {
 public:
  explicit CollisionQuestions(core::FrontEnd& frontEnd) : frontEnd_(frontEnd) {}

  // `moreFollow`: further taken names are known to come, so "for all" is asked.
  CollisionChoice Ask(const Collision& collision, bool moreFollow);

 private:
  CollisionChoice AskOnce(const Collision& collision, bool replaceable);

  core::FrontEnd& frontEnd_;
  std::optional<CollisionChoice> forAll_;
};

}  // namespace nomra::fileops
