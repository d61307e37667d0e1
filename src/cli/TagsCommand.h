#pragma once
#include <ostream>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace nomra::cli {

inline constexpr char kTagsCommand[] = "tags";

// "nomra-cli tags FILE... [--json]": everything the media readers find in
// each file and what each file tag of a name structure gives for it. A file
// that can't be read is told on `messages` and makes the exit status 1.
int RunTagsCommand(platform::Platform& system, const std::vector<std::string>& arguments, std::ostream& out,
                   std::ostream& messages);

}  // namespace nomra::cli
