#pragma once
#include <string>
#include <string_view>

#include "base/Paths.h"

namespace nomra::fileops {

// The first free name of the form "name (2).ext", "name (3).ext", ... in
// the target's folder, as a file manager names a copy kept beside another.
// `taken` says whether a path is in use.
template <typename Taken>
std::string KeepBothName(std::string_view target, Taken&& taken);

// "name (n).ext" for one n; the extension starts at the last dot that
// isn't the first character.
std::string NumberedName(std::string_view target, int number);

template <typename Taken>
std::string KeepBothName(std::string_view target, Taken&& taken) {
  for (int number = 2;; ++number) {
    std::string candidate = NumberedName(target, number);
    if (!taken(candidate)) return candidate;
  }
}

}  // namespace nomra::fileops
